// The styles of one line, gathered while a pass walks its tokens and sent to the view in as few runs as
// they make. A later style wins over an earlier one.
#pragma once

#include <array>
#include <cstdint>

// Style numbers, which are slots of the style table too.
enum : int {
    STYLE_Text = 0,
    STYLE_Comment = 1,
    STYLE_Keyword = 2,
    STYLE_Number = 3,
    STYLE_Operator = 4,
    STYLE_String = 5,
    STYLE_Comment2 = 6,
    STYLE_Function = 7,
    STYLE_Scope = 8,
    STYLE_Separator = 9,
    STYLE_GlobalVar = 10,
    STYLE_LocalVar = 11,
    STYLE_Constant = 12,
    STYLE_Label = 13,
    STYLE_ArrayVar = 14,
    STYLE_Type = 15,
    STYLE_Bad = 16,
    STYLE_Block = 17,
    STYLE_BraceBad = 19,
};

class LineStyles {
public:
    // Starts a pass over a line at a document position, `length` bytes long. With `clear` every byte
    // that gets no style becomes text; without it such a byte keeps the style that it has.
    void Begin(std::intptr_t position, int length, bool clear);
    // Gives `length` bytes from a document position a style; what lies outside the line is left out.
    void Set(std::intptr_t position, std::intptr_t length, int style);
    // From a position to the line's end, its line end included.
    void SetToEnd(std::intptr_t position, int style) { Set(position, length_, style); }
    // Sends what was gathered.
    void Flush();

private:
    static constexpr std::uint8_t Kept = 255;

    std::intptr_t position_ = 0;
    int length_ = 0;
    std::array<std::uint8_t, 32768> styles_{};
};

// The line of the pass that is running; passes do not nest.
extern LineStyles gLineStyles;
