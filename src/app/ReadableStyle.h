// The desktop's style, with selections and hints that can be read.
#pragma once

#include <QPalette>
#include <QProxyStyle>

// Called for each new palette, so that it follows every change of the desktop's colours.
class ReadableStyle : public QProxyStyle {
public:
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
};
