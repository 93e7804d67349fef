// Letter icons. No theme has different pictures for a global and a constant at 16 pixels.
#include "workbench/parts/SymbolIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <algorithm>
#include <cstring>

namespace {

struct Kind {
    const char* name;
    char letter;
    int hue;       // degrees
    bool outlined; // an outline marks what belongs to another symbol
};

constexpr Kind Kinds[] = {
    {"imgFunctions", 'F', 212, false}, {"imgLocals", 'L', 172, true},   {"imgTypes", 'T', 28, false},
    {"imgFields", 'F', 28, true},      {"imgGlobals", 'G', 140, false}, {"imgArrays", 'A', 268, false},
    {"imgConstants", 'C', 350, false}, {"imgLabels", 'L', 190, false},  {"imgIncludes", 'I', 312, false},
};

constexpr qreal Margin = 1.0 / 16;
constexpr qreal Corner = 3.0 / 16;
constexpr qreal LetterSize = 11.0 / 16;
constexpr int SmallestLetter = 6; // pixels
constexpr int MiddleLightness = 128;

class LetterIcon : public QIconEngine {
public:
    explicit LetterIcon(const Kind& kind) : kind_(kind) {}

    // A list paints dozens of icons at once, so each size is drawn only once.
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const qreal scale = painter->device()->devicePixelRatio();
        const int side = std::min(rect.width(), rect.height());
        QRect square(0, 0, side, side);
        square.moveCenter(rect.center());
        painter->drawPixmap(square, Picture(qRound(side * scale), mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        return Picture(std::min(size.width(), size.height()), mode);
    }

    QIconEngine* clone() const override { return new LetterIcon(kind_); }

private:
    QPixmap Picture(int pixels, QIcon::Mode mode) const {
        const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < MiddleLightness;
        const QString key = QString("%1 %2 %3 %4").arg(kind_.name).arg(pixels).arg(mode).arg(dark);
        QPixmap picture;
        if (QPixmapCache::find(key, &picture)) return picture;
        picture = QPixmap(pixels, pixels);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        Draw(painter, pixels, mode == QIcon::Disabled, dark);
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }

    void Draw(QPainter& painter, qreal side, bool disabled, bool dark) const {
        const QRectF square(side * Margin, side * Margin, side * (1 - 2 * Margin), side * (1 - 2 * Margin));
        const QColor colour = QColor::fromHsl(kind_.hue, disabled ? 0 : 120, dark ? 150 : 105);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(kind_.outlined ? QPen(colour, side * Margin) : QPen(Qt::NoPen));
        painter.setBrush(kind_.outlined ? QBrush(Qt::NoBrush) : QBrush(colour));
        painter.drawRoundedRect(square, side * Corner, side * Corner);
        QFont font = QGuiApplication::font();
        font.setPixelSize(std::max(SmallestLetter, qRound(side * LetterSize)));
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(kind_.outlined ? colour : dark ? QColor(24, 24, 24) : QColor(Qt::white));
        painter.drawText(square, Qt::AlignCenter, QChar::fromLatin1(kind_.letter));
    }

    const Kind& kind_;
};

}

QIcon SymbolIcon(const char* name) {
    for (const Kind& kind : Kinds)
        if (std::strcmp(kind.name, name) == 0) return QIcon(new LetterIcon(kind));
    return {};
}
