// The desktop's style, with selections and hints that can be read.
#pragma once

#include <QPalette>
#include <QProxyStyle>

// How far two colours stand apart: from 1, the same, to 21, black on white.
double Contrast(const QColor& one, const QColor& other);

// Follows every change of the desktop's colours, because the toolkit asks the style for each new palette.
class ReadableStyle : public QProxyStyle {
public:
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
};
