// The control draws single bytes as Latin-1, which has no characters at 0x80 to 0x9F. Each such box is
// painted over with its background, and the character is drawn in the same cell.
#include "host/qt/view/HighBytes.h"

#include "host/Text.h"

#include <Qsci/qsciscintillabase.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using Base = QsciScintillaBase;

constexpr long LongestLine = 20000; // bytes; a longer one is not searched on every paint
constexpr int LastTextStyle = 20;

bool IsHigh(char c) { return static_cast<unsigned char>(c) >= 0x80 && static_cast<unsigned char>(c) < 0xA0; }

QColor Colour(Base& view, unsigned message, long style) {
    const auto bgr = static_cast<int>(view.SendScintilla(message, static_cast<unsigned long>(style)));
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

QFont FontOf(Base& view, long style) {
    const auto ask = [&](unsigned message) {
        return view.SendScintilla(message, static_cast<unsigned long>(style));
    };
    std::vector<char> face(static_cast<std::size_t>(ask(Base::SCI_STYLEGETFONT)) + 1);
    view.SendScintilla(Base::SCI_STYLEGETFONT, static_cast<unsigned long>(style), face.data());
    QFont font(QString::fromUtf8(face.data()));
    font.setPointSizeF(
        static_cast<double>(ask(Base::SCI_STYLEGETSIZE) + view.SendScintilla(Base::SCI_GETZOOM)));
    font.setBold(ask(Base::SCI_STYLEGETBOLD) != 0);
    font.setItalic(ask(Base::SCI_STYLEGETITALIC) != 0);
    return font;
}

// All styles of a line on the screen share one base line.
int Ascent(Base& view) {
    double ascent = QFontMetricsF(FontOf(view, Base::STYLE_DEFAULT)).ascent();
    for (int style = 0; style <= LastTextStyle; ++style)
        ascent = std::max(ascent, QFontMetricsF(FontOf(view, style)).ascent());
    return static_cast<int>(ascent); // rounded as the control does it
}

// Returns the colour at a position of the picture being painted; `otherwise` if it is not in memory.
QColor Painted(const QPainter& painter, QPoint at, QColor otherwise) {
    const QPaintDevice* device = painter.paintEngine()->paintDevice();
    if (device->devType() != QInternal::Image) return otherwise;
    const auto* image = static_cast<const QImage*>(device);
    const QPoint pixel = painter.deviceTransform().map(QPointF(at)).toPoint();
    return image->valid(pixel) ? image->pixelColor(pixel) : otherwise;
}

// The places (bytes) of all such characters on the screen.
std::vector<long> HighPositions(Base& view) {
    std::vector<long> positions;
    const long first = view.SendScintilla(Base::SCI_GETFIRSTVISIBLELINE);
    const long last = first + view.SendScintilla(Base::SCI_LINESONSCREEN);
    const auto lineAt = [&](long visible) {
        return view.SendScintilla(Base::SCI_DOCLINEFROMVISIBLE, static_cast<unsigned long>(visible));
    };
    long previous = -1;
    std::vector<char> text;
    for (long visible = first; visible <= last; ++visible) {
        const long line = lineAt(visible);
        if (line == previous) continue;
        previous = line;
        const long length = view.SendScintilla(Base::SCI_LINELENGTH, static_cast<unsigned long>(line));
        if (length == 0 || length > LongestLine) continue;
        text.resize(static_cast<std::size_t>(length));
        view.SendScintilla(Base::SCI_GETLINE, static_cast<unsigned long>(line), text.data());
        const long start = view.SendScintilla(Base::SCI_POSITIONFROMLINE, static_cast<unsigned long>(line));
        for (long i = 0; i < length; ++i)
            if (IsHigh(text[static_cast<std::size_t>(i)])) positions.push_back(start + i);
    }
    return positions;
}

}

void PaintHighBytes(QsciScintillaBase& view) {
    const std::vector<long> positions = HighPositions(view);
    if (positions.empty()) return;
    const auto place = [&](long position) {
        return QPoint(static_cast<int>(view.SendScintilla(Base::SCI_POINTXFROMPOSITION, 0UL, position)),
                      static_cast<int>(view.SendScintilla(Base::SCI_POINTYFROMPOSITION, 0UL, position)));
    };
    QPainter painter(view.viewport());
    int text = 0; // left edge of the text
    for (unsigned long margin = 0; margin < 5; ++margin)
        text += static_cast<int>(view.SendScintilla(Base::SCI_GETMARGINWIDTHN, margin));
    painter.setClipRect(view.viewport()->rect().adjusted(text, 0, 0, 0));
    const int height = static_cast<int>(view.SendScintilla(Base::SCI_TEXTHEIGHT, 0UL));
    const int ascent = Ascent(view) + static_cast<int>(view.SendScintilla(Base::SCI_GETEXTRAASCENT));
    const long caret = view.SendScintilla(Base::SCI_GETCURRENTPOS);
    const int caretWidth = static_cast<int>(view.SendScintilla(Base::SCI_GETCARETWIDTH));
    for (const long position : positions) {
        const auto byte = static_cast<unsigned char>(
            view.SendScintilla(Base::SCI_GETCHARAT, static_cast<unsigned long>(position)));
        const QChar character(CharacterOf(byte));
        if (character.unicode() == byte) continue; // it has none
        const long style =
            view.SendScintilla(Base::SCI_GETSTYLEAT, static_cast<unsigned long>(position)) & 0xFF;
        const QFont font = FontOf(view, style);
        const double advance = QFontMetricsF(font).horizontalAdvance(character);
        const QPoint at = place(position), next = place(position + 1);
        const int width = next.y() == at.y() ? next.x() - at.x() : static_cast<int>(std::lround(advance));
        if (width <= 0 || !view.viewport()->rect().intersects(QRect(at, QSize(width, height)))) continue;
        const QColor back =
            Painted(painter, at + QPoint(width - 1, 0), Colour(view, Base::SCI_STYLEGETBACK, style));
        const int kept = position == caret ? caretWidth : 0;
        // The box may reach into the next cell, which a blank leaves empty.
        const auto behind = view.SendScintilla(Base::SCI_GETCHARAT, static_cast<unsigned long>(position + 1));
        const int over = behind <= ' ' ? 1 : 0;
        painter.fillRect(QRect(at + QPoint(kept, 0), QSize(width - kept + over, height)), back);
        painter.save();
        painter.translate(at);
        // A cell may be too narrow for it; one that lost a fraction to the pixels is not.
        if (advance > width + 1) painter.scale(width / advance, 1);
        painter.setFont(font);
        painter.setPen(Colour(view, Base::SCI_STYLEGETFORE, style));
        painter.drawText(0, ascent, QString(character));
        painter.restore();
    }
}
