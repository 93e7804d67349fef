// A colour style in memory: the editor's 41 slots, and the reader of the text table that describes them.
// The text form is what people edit and review; the editor itself only knows the binary .style file.
#pragma once

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace styles {

constexpr int slotCount = 41;

// A colour as red, green, blue, each 0 to 255.
struct Rgb {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Rgb&) const = default;
};

// One slot of the table. A text slot uses `fore` and the font fields; the tags of the other slots (see
// tagList) define the meaning of their three colours.
struct Slot {
    Rgb fore, back, other;
    std::string fontName;
    std::uint8_t fontSize = 0;
    bool bold = false, italic = false, underline = false;
};

struct StyleTable {
    std::array<Slot, slotCount> slots;
    std::string description;
};

enum class Cell { Fore, Back, Other };

// The meaning of a tag of the text table. Text tags may carry bold, italic and underline.
struct Tag {
    std::string_view name;
    int slot;
    Cell cell;
    bool isText;
};

// A fault in a text table; what() names the line.
struct StyleError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// All tags that a table has to set, text slots first.
const std::vector<Tag>& tagList();

// The colour that a tag names in the table.
Rgb colourOf(const StyleTable& table, const Tag& tag);
Rgb& colourOf(StyleTable& table, const Tag& tag);

// The tag of that name, compared without regard to case; null when there is none.
const Tag* findTag(std::string_view name);

// Reads a text table. Every tag has to be set exactly once. Throws StyleError on the first fault.
StyleTable readStyleTable(std::string_view text);

}
