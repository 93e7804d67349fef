// Moves colours of the desktop only as far as reading them needs.
#include "app/ReadableStyle.h"

#include "workbench/parts/Contrast.h"

#include <cmath>

namespace {

constexpr int Steps = 50;

// `share` of the first colour and the rest of the second, both without their transparency.
QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto part = [share](int a, int b) {
        return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return {part(one.red(), other.red()), part(one.green(), other.green()), part(one.blue(), other.blue())};
}

// Returns the colour, moved towards another one only as far as needed to contrast with `ground`.
QColor Readable(const QColor& colour, const QColor& towards, const QColor& ground) {
    for (int step = 0; step < Steps; ++step) {
        const QColor moved = Mixed(towards, colour, static_cast<double>(step) / Steps);
        if (Contrast(moved, ground) >= ReadableContrast) return moved;
    }
    return towards;
}

}

void ReadableStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        // A selection keeps its hue and gives way: darker under a light text, lighter under a dark one.
        const QColor text = palette.color(group, QPalette::HighlightedText);
        const QColor away = Luminance(text) > 0.18 ? Qt::black : Qt::white;
        palette.setColor(group, QPalette::Highlight,
                         Readable(palette.color(group, QPalette::Highlight), away, text));
        // A hint is half of the text's colour, or as much more as it needs.
        const QColor base = palette.color(group, QPalette::Base);
        const QColor full = palette.color(group, QPalette::Text);
        palette.setColor(group, QPalette::PlaceholderText, Readable(Mixed(full, base, 0.5), full, base));
    }
}
