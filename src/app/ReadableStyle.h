// The desktop's style, with selections and hints that can be read.
#pragma once

#include <QPalette>
#include <QProxyStyle>

// The contrast of two colours: from 1 (equal) to 21 (black on white).
double Contrast(const QColor& one, const QColor& other);

// Called for each new palette, so that it follows every change of the desktop's colours.
class ReadableStyle : public QProxyStyle {
public:
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
};
