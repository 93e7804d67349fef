// The colour style in force: eight parallel arrays of 41 slots. A text slot is a Scintilla style number too.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace StyleTable {

constexpr int Slots = 41;

// Written by Mod_File::LoadStyle and the style editor alone. Colours are 0x00BBGGRR; flags are 0 or -1.
extern std::array<std::int32_t, Slots> ForeColor;
extern std::array<std::int32_t, Slots> BackColor;
extern std::array<std::string, Slots> FontName;
extern std::array<std::uint8_t, Slots> FontSize; // points
extern std::array<std::int16_t, Slots> Bold;
extern std::array<std::int16_t, Slots> Italic;
extern std::array<std::int16_t, Slots> Underline;
extern std::array<std::int32_t, Slots> OtherColor;
extern std::string Description; // at most 255 characters

// Slots that hold colours and no text style.
enum : int {
    SlotFold = 21,
    SlotWhiteSpace = 22,
    SlotCallTip = 23,
    SlotCallTipHigh = 24,
    SlotCurrentLine = 25,
    SlotCursor = 26,
    SlotSelection = 27,
    SlotBackground = 29,
    SlotBookmark = 30,
    SlotFoldMarker = 31,
};

} // namespace StyleTable

// Sends the style table to the active view; nothing without one.
void ApplyEditorStyle();
