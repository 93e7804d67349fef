// Letter icons. A theme has no two pictures that tell a global from a constant at 16 pixels.
#include "workbench/SymbolIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cstring>

namespace {

struct Kind {
    const char* name;
    char letter;
    int hue;       // degrees
    bool outlined; // what belongs to another symbol
};

constexpr Kind Kinds[] = {
    {"imgFunctions", 'F', 212, false}, {"imgLocals", 'L', 172, true},   {"imgTypes", 'T', 28, false},
    {"imgFields", 'F', 28, true},      {"imgGlobals", 'G', 140, false}, {"imgArrays", 'A', 268, false},
    {"imgConstants", 'C', 350, false}, {"imgLabels", 'L', 190, false},  {"imgIncludes", 'I', 312, false},
};

constexpr qreal Margin = 1.0 / 16;
constexpr qreal Corner = 3.0 / 16;
constexpr qreal LetterSize = 11.0 / 16;
constexpr int MiddleLightness = 128;

class LetterIcon : public QIconEngine {
public:
    explicit LetterIcon(const Kind& kind) : kind_(kind) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const qreal side = std::min(rect.width(), rect.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(rect).center());
        square.adjust(side * Margin, side * Margin, -side * Margin, -side * Margin);
        const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < MiddleLightness;
        const QColor colour = QColor::fromHsl(kind_.hue, mode == QIcon::Disabled ? 0 : 120, dark ? 150 : 105);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(kind_.outlined ? QPen(colour, side * Margin) : QPen(Qt::NoPen));
        painter->setBrush(kind_.outlined ? QBrush(Qt::NoBrush) : QBrush(colour));
        painter->drawRoundedRect(square, side * Corner, side * Corner);
        QFont font = QGuiApplication::font();
        font.setPixelSize(std::max(6, qRound(side * LetterSize)));
        font.setBold(true);
        painter->setFont(font);
        painter->setPen(kind_.outlined ? colour : dark ? QColor(24, 24, 24) : QColor(Qt::white));
        painter->drawText(square, Qt::AlignCenter, QChar::fromLatin1(kind_.letter));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new LetterIcon(kind_); }

private:
    const Kind& kind_;
};

}

QIcon SymbolIcon(const char* name) {
    for (const Kind& kind : Kinds)
        if (std::strcmp(kind.name, name) == 0) return QIcon(new LetterIcon(kind));
    return {};
}
