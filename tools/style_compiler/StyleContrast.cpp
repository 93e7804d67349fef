// Contrast of the pairs of colours that meet on the screen.
#include "StyleContrast.h"

#include <algorithm>
#include <cmath>

namespace styles {

namespace {

double luminance(Rgb colour) {
    auto linear = [](std::uint8_t value) {
        const double v = value / 255.0;
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

Pairing pair(const StyleTable& table, std::string_view text, std::string_view ground,
             double required = leastContrast) {
    const Rgb a = colourOf(table, *findTag(text)), b = colourOf(table, *findTag(ground));
    return {std::string(text), std::string(ground), contrastRatio(a, b), required};
}

}

double contrastRatio(Rgb a, Rgb b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

std::vector<Pairing> measureContrast(const StyleTable& table) {
    // Text keeps its colour on the line of the caret, with and without the focus.
    static constexpr std::string_view textGrounds[] = {
        "picBackground",
        "picFunBackground",
        "STYLE_Currentline",
        "Style_InactiveCurrentLine",
    };
    std::vector<Pairing> pairings;
    for (const Tag& tag : tagList()) {
        if (!tag.isText || tag.name == "STYLE_LineNumber") continue;
        const double required = tag.slot == 0 ? leastNormalTextContrast : leastContrast;
        for (std::string_view ground : textGrounds)
            pairings.push_back(pair(table, tag.name, ground, required));
    }
    for (std::string_view ground : textGrounds) pairings.push_back(pair(table, "STYLE_Cursor", ground));
    pairings.push_back(pair(table, "STYLE_LineNumber", "STYLE_NONFOLDINGMARGINS"));
    pairings.push_back(pair(table, "STYLE_SelectionFore", "STYLE_SelectionBack", leastNormalTextContrast));
    pairings.push_back(pair(table, "STYLE_SelectionFore", "Style_InactiveSelectionBack"));
    pairings.push_back(pair(table, "STYLE_CalltipFore", "STYLE_CallTipBack", leastNormalTextContrast));
    pairings.push_back(pair(table, "STYLE_CallTipHigh", "STYLE_CallTipBack"));
    // A breakpoint may be shown as the background of its line, with the word Stop and plain text on it.
    pairings.push_back(pair(table, "STYLE_Keyword", "Style_BREAKPOINTS"));
    pairings.push_back(pair(table, "STYLE_Text", "Style_BREAKPOINTS"));
    return pairings;
}

}
