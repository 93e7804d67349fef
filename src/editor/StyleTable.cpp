// The style table and its road into a view.
#include "editor/StyleTable.h"

#include "engine/DocumentRecord.h"
#include "engine/Markers.h"
#include "host/Desktop.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

namespace StyleTable {

std::array<std::int32_t, Slots> ForeColor{};
std::array<std::int32_t, Slots> BackColor{};
std::array<std::string, Slots> FontName{};
std::array<std::uint8_t, Slots> FontSize{};
std::array<std::int16_t, Slots> Bold{};
std::array<std::int16_t, Slots> Italic{};
std::array<std::int16_t, Slots> Underline{};
std::array<std::int32_t, Slots> OtherColor{};
std::string Description;

} // namespace StyleTable

using namespace StyleTable;

namespace {

template <class Array>
auto At(const Array& array, int slot) {
    return array[static_cast<std::size_t>(slot)];
}

// The face that the style names, or the nearest one that this system has.
std::string FontOf(int slot) { return gHost.desktop->FontFor(At(FontName, slot)); }

void SendText(int style, int slot, bool underline) {
    if (underline) Mod_Sci::StyleSetUnderline(style, At(Underline, slot) != 0);
    Mod_Sci::StyleSetBold(style, At(Bold, slot) != 0);
    Mod_Sci::StyleSetItalic(style, At(Italic, slot) != 0);
    Mod_Sci::StyleSetSize(style, At(FontSize, slot));
    Mod_Sci::StyleSetFore(style, At(ForeColor, slot));
    Mod_Sci::StyleSetFont(style, FontOf(slot).c_str());
}

using namespace Mod_Parse;

void SendColours() {
    Mod_Sci::SetSelFore(1, At(ForeColor, SlotSelection));
    Mod_Sci::SetSelBack(1, At(BackColor, SlotSelection));
    Mod_Sci::SetCaretFore(At(ForeColor, SlotCursor));
    Mod_Sci::SetCaretLineBack(At(ForeColor, SlotCurrentLine));
    Mod_Sci::CallTipSetBack(At(BackColor, SlotCallTip));
    Mod_Sci::CallTipSetFore(At(ForeColor, SlotCallTip));
    Mod_Sci::CallTipSetForeHlt(At(ForeColor, SlotCallTipHigh));
    Mod_Sci::SetWhitespaceFore(1, At(ForeColor, SlotWhiteSpace));
    Mod_Sci::StyleSetFore(STYLE_INDENTGUIDE, At(ForeColor, STYLE_INDENTGUIDE));
    Mod_Sci::StyleSetFore(STYLE_DEFAULT, At(ForeColor, SlotFold));
    Mod_Sci::MarkerSetBack(MarkerMainProgram, At(BackColor, SlotBackground));
    Mod_Sci::SetFoldMarginColour(1, At(OtherColor, SlotFold));
    Mod_Sci::SetFoldMarginHiColour(1, At(OtherColor, SlotFold));
    Mod_Sci::MarkerSetBack(MarkerInactiveCaret, At(OtherColor, SlotCurrentLine));
}

void SendMarkers() {
    Mod_Sci::MarkerSetFore(MarkerBreakpoint, At(OtherColor, SlotBookmark));
    Mod_Sci::MarkerSetBack(MarkerBreakpoint, At(OtherColor, SlotBookmark));
    Mod_Sci::MarkerSetBack(MarkerBookmark, At(BackColor, SlotBookmark));
    Mod_Sci::MarkerSetFore(MarkerBookmark, At(ForeColor, SlotBookmark));
    for (const int closed : {MarkerFolderEnd, MarkerFolder})
        Mod_Sci::MarkerSetFore(closed, At(OtherColor, SlotFoldMarker));
    for (const int open : {MarkerFolderOpen, MarkerFolderOpenMid})
        Mod_Sci::MarkerSetFore(open, At(ForeColor, SlotFoldMarker));
    for (int marker = MarkerFolderEnd; marker <= MarkerFolderOpen; ++marker)
        Mod_Sci::MarkerSetBack(marker, At(BackColor, SlotFoldMarker));
}

} // namespace

void ApplyEditorStyle() {
    if (!DocumentActive()) return;
    Mod_Sci::StyleSetBack(STYLE_DEFAULT, At(ForeColor, SlotBackground));
    SendText(STYLE_DEFAULT, 0, true);
    Mod_Sci::StyleClearAll();
    for (int slot = 0; slot <= 20; ++slot) SendText(slot, slot, true);
    SendText(STYLE_BRACELIGHT, STYLE_BRACELIGHT, true);
    SendText(STYLE_LINENUMBER, STYLE_LINENUMBER, false);
    Mod_Sci::StyleSetBack(STYLE_LINENUMBER, At(BackColor, STYLE_LINENUMBER));
    SendColours();
    SendMarkers();
}
