// Painted here and not by a label: a pane is written on every key, and a label would have the whole bar laid
// out anew for it.
#include "host/qt/commands/StatusText.h"

#include <QPainter>

namespace {

constexpr int SideMargin = 6;
constexpr int MiddleLightness = 128;
constexpr int LightOnDark = 170;
constexpr int DarkOnLight = 96;

}

StatusText::StatusText(int width, QWidget* parent) : QWidget(parent), width_(width) {
    setSizePolicy(width > 0 ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize StatusText::sizeHint() const { return {width_, fontMetrics().height()}; }

void StatusText::Show(const QString& left, const QString& hot, const QString& right, QColor colour) {
    if (left == left_ && hot == hot_ && right == right_ && colour == colour_) return;
    left_ = left;
    hot_ = hot;
    right_ = right;
    colour_ = colour;
    setAccessibleName(left + hot + right);
    setToolTip(fontMetrics().horizontalAdvance(left + hot + right) > width() - 2 * SideMargin
                   ? left + hot + right
                   : QString());
    update();
}

// Returns the colour with a lightness that contrasts with the bar.
QColor StatusText::Readable() const {
    const bool dark = palette().color(backgroundRole()).lightness() < MiddleLightness;
    QColor colour = colour_;
    colour.setHsl(colour.hslHue(), colour.hslSaturation(), dark ? LightOnDark : DarkOnLight);
    return colour;
}

void StatusText::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QFontMetrics metrics = fontMetrics();
    const int baseline = (height() + metrics.ascent() - metrics.descent()) / 2;
    const QColor plain = palette().color(foregroundRole());
    int x = SideMargin;
    const auto draw = [&](const QString& text, const QColor& colour) {
        const int room = width() - SideMargin - x;
        if (text.isEmpty() || room <= 0) return;
        const QString shown = metrics.elidedText(text, Qt::ElideRight, room);
        painter.setPen(colour);
        painter.drawText(x, baseline, shown);
        x += metrics.horizontalAdvance(shown);
    };
    draw(left_, plain);
    draw(hot_, Readable());
    draw(right_, plain);
}
