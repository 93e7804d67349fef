// Checks that a colour style is readable: the contrast of each text colour with each background it appears
// on. The measure is the WCAG contrast ratio, from 1 (same colour) to 21 (black on white).
#pragma once

#include "StyleTable.h"

namespace styles {

constexpr double leastContrast = 4.5;           // any text
constexpr double leastNormalTextContrast = 7.0; // normal text, which is read all day

// One text colour on one ground.
struct Pairing {
    std::string text, ground;
    double ratio;    // measured
    double required; // least ratio that passes
    bool passes() const { return ratio >= required; }
};

// The WCAG 2 contrast ratio of two colours; the order does not matter.
double contrastRatio(Rgb a, Rgb b);

// Every pairing that the editor can show, with its measured and its required ratio.
std::vector<Pairing> measureContrast(const StyleTable& table);

}
