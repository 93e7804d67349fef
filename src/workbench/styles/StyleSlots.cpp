#include "workbench/styles/StyleSlots.h"

#include "editor/StyleTable.h"

namespace {

using namespace StyleTable;

constexpr TextStyle Texts[] = {
    {0, "STYLE_Text", "Normal Text"},
    {1, "STYLE_Comment", "Comment"},
    {2, "STYLE_Keyword", "Keywords"},
    {3, "STYLE_Number", "Numbers"},
    {4, "STYLE_Operator", "Operators"},
    {5, "STYLE_String", "Strings"},
    {6, "STYLE_Comment2", "Comment2"},
    {7, "STYLE_Function", "Functions"},
    {8, "STYLE_Scope", "Scopes"},
    {9, "STYLE_Separator", "Separators"},
    {10, "STYLE_GlobalVar", "Globals"},
    {11, "STYLE_LocalVar", "Locals"},
    {12, "STYLE_Constant", "Constants"},
    {13, "STYLE_Label", "Labels"},
    {14, "STYLE_ArrayVar", "Arrays"},
    {15, "STYLE_Type", "Types"},
    {16, "STYLE_Bad", "Bad Text"},
    {17, "STYLE_Block", "Blocks"},
    {19, "STYLE_BraceBad", "Bad Brace"},
    {33, "STYLE_LineNumber", "Line Numbers"},
    {34, "STYLE_BraceLight", "Matched Braces"},
};

constexpr int SlotIndentGuide = 37;
constexpr int SlotLineNumber = 33;

// The first two are crossed on purpose: the cell labelled for functions is the ground of all text, and the
// other one marks the lines of the main program.
const ColourCell Cells[] = {
    {"picBackground", "Background color:", &BackColor, SlotBackground},
    {"picFunBackground", "Background in Functions:", &ForeColor, SlotBackground},
    {"STYLE_FoldBorderLine", "Folded code Border Lines", &ForeColor, SlotFold},
    {"STYLE_WhiteSpace", "White Spaces", &ForeColor, SlotWhiteSpace},
    {"STYLE_CalltipFore", "CallTips Forecolor", &ForeColor, SlotCallTip},
    {"STYLE_CallTipBack", "CallTips Background", &BackColor, SlotCallTip},
    {"STYLE_CallTipHigh", "CallTips Highlight", &ForeColor, SlotCallTipHigh},
    {"STYLE_Currentline", "Current Line Background", &ForeColor, SlotCurrentLine},
    {"Style_InactiveCurrentLine", "Inactive Current Line", &OtherColor, SlotCurrentLine},
    {"STYLE_Cursor", "Cursor", &ForeColor, SlotCursor},
    {"STYLE_SelectionFore", "Selection Forecolor", &ForeColor, SlotSelection},
    {"STYLE_SelectionBack", "Selection Backcolor", &BackColor, SlotSelection},
    {"Style_InactiveSelectionBack", "Inactive Selection Backcolor", &OtherColor, SlotSelection},
    {"STYLE_IndentGuide", "Indent guides", &ForeColor, SlotIndentGuide},
    {"STYLE_NONFOLDINGMARGINS", "Non-Folding Margins Color", &BackColor, SlotLineNumber},
    {"STYLE_FOLDINGMARGIN", "Folding Margin Color", &OtherColor, SlotFold},
    {"STYLE_BOOKMARKS", "Bookmark Color", &BackColor, SlotBookmark},
    {"Style_OUTLINE", "Bookmark Outline Color", &ForeColor, SlotBookmark},
    {"Style_BREAKPOINTS", "Breakpoint Color", &OtherColor, SlotBookmark},
    {"Style_CLOSEDFOLD", "Closed Fold Marker Color", &OtherColor, SlotFoldMarker},
    {"Style_OPENFOLD", "Open Fold Marker Color", &ForeColor, SlotFoldMarker},
    {"Style_FOLDMARKERSOUTLINE", "Fold Markers OutLine Color", &BackColor, SlotFoldMarker},
};

}

std::span<const TextStyle> TextStyles() { return Texts; }
std::span<const ColourCell> ColourCells() { return Cells; }
