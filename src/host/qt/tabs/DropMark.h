// Shows where a dragged tab would be dropped: a tinted rectangle over the document area.
#pragma once

#include <QWidget>

class DropMark : public QWidget {
public:
    explicit DropMark(QWidget* parent);

    // In the parent's coordinates; an empty rectangle hides the mark.
    void Show(const QRect& place);

protected:
    void paintEvent(QPaintEvent* event) override;
};
