// What of a colour style can be edited: the text styles, and the cells that hold one colour each.
#pragma once

#include <array>
#include <cstdint>
#include <span>

struct TextStyle {
    int slot; // of the style table, and the number of the view's style
    const char* tag;
    const char* label;
};

struct ColourCell {
    const char* tag;
    const char* label;
    std::array<std::int32_t, 41>* colours; // the array of the style table that holds the colour
    int slot;
};

std::span<const TextStyle> TextStyles();
std::span<const ColourCell> ColourCells();
