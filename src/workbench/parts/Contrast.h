// The contrast of two colours, as the accessibility guidelines for the web measure it.
#pragma once

#include <QColor>

// What the guidelines ask of text of usual size.
inline constexpr double ReadableContrast = 4.5;

// From 0 (black) to 1 (white).
double Luminance(const QColor& colour);
// From 1 (equal) to 21 (black on white).
double Contrast(const QColor& one, const QColor& other);
