// Paints a row of the Code Explorer: an icon and a line of text. The toolkit's own delegate lays every text
// out anew each time, which is most of what a repaint of the pane costs.
#pragma once

#include <QCache>
#include <QStaticText>
#include <QStyledItemDelegate>

class CodeDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const QStaticText& LaidOut(const QString& text, const QStyleOptionViewItem& option, int width) const;

    struct Key {
        QString text;
        int width;
        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) {
            return qHashMulti(seed, key.text, key.width);
        }
    };
    static constexpr int MostTexts = 1000;
    mutable QCache<Key, QStaticText> texts_{MostTexts};
    mutable QFont font_; // the font of the laid-out texts
};
