// Shows where a dragged tab would be dropped.
#include "host/qt/tabs/DropMark.h"

#include <QPainter>

namespace {
constexpr int FillAlpha = 60;
constexpr int BorderAlpha = 200;
constexpr int BorderWidth = 2;
}

DropMark::DropMark(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropMark::Show(const QRect& place) {
    if (place.isEmpty()) return hide();
    setGeometry(place);
    raise();
    show();
}

void DropMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor color = palette().color(QPalette::Highlight);
    color.setAlpha(FillAlpha);
    painter.fillRect(rect(), color);
    color.setAlpha(BorderAlpha);
    painter.setPen(QPen(color, BorderWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
