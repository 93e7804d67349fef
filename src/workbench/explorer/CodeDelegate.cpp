// Paints from texts that are laid out once.
#include "workbench/explorer/CodeDelegate.h"

#include <QApplication>
#include <QPainter>

namespace {
constexpr int Gap = 4; // pixels, around the icon and before the text
}

// Returns the text, shortened to the width of its column.
const QStaticText& CodeDelegate::LaidOut(const QString& text, const QStyleOptionViewItem& option,
                                         int width) const {
    if (font_ != option.font) {
        texts_.clear();
        font_ = option.font;
    }
    const Key key{text, width};
    if (const QStaticText* found = texts_.object(key)) return *found;
    auto* laidOut = new QStaticText(option.fontMetrics.elidedText(text, option.textElideMode, width));
    laidOut->setTextFormat(Qt::PlainText);
    laidOut->prepare(QTransform(), option.font);
    texts_.insert(key, laidOut);
    // The cache deletes what costs more than its limit; one text costs 1.
    return *laidOut; // NOLINT(clang-analyzer-cplusplus.NewDelete)
}

void CodeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                         const QModelIndex& index) const {
    QStyleOptionViewItem option = given;
    option.index = index;
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    int left = option.rect.left() + Gap;
    if (const auto icon = index.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const QSize size = option.decorationSize;
        icon.paint(painter, left, option.rect.top() + (option.rect.height() - size.height()) / 2,
                   size.width(), size.height());
        left += size.width() + Gap;
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    const int room = option.rect.right() - left;
    if (text.isEmpty() || room <= 0) return;
    const bool selected = option.state & QStyle::State_Selected;
    const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(option.font);
    const QStaticText& laidOut = LaidOut(text, option, room);
    painter->drawStaticText(
        left, option.rect.top() + (option.rect.height() - option.fontMetrics.height()) / 2, laidOut);
}
