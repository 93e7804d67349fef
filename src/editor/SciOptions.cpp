// The exact configuration of a view, in the order in which it is sent.
#include "editor/SciOptions.h"

#include "editor/StyleTable.h"
#include "engine/DocumentRecord.h"
#include "engine/Markers.h"
#include "engine/OptionsEdit.h"
#include "host/Desktop.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <string>

namespace {

using namespace OptionsEdit;

constexpr int MaskAllButMainProgramAndFolds = 0x1DFFFFF;
constexpr int MaskFolders = static_cast<int>(0xFE000000);
constexpr int FoldLinesAroundContracted = 20;
constexpr int MarkerMarginPixels = 20;
constexpr int FoldMarginPixels = 16;

int Shifted(int key) { return key | (SCMOD_SHIFT << 16); }

void SendCaretAndWrap() {
    Mod_Sci::AssignCmdKey(SCK_HOME, HomeGoesToFirst ? SCI_HOME : SCI_VCHOME);
    Mod_Sci::AssignCmdKey(Shifted(SCK_HOME), HomeGoesToFirst ? SCI_HOMEEXTEND : SCI_VCHOMEEXTEND);
    Mod_Sci::SetXCaretPolicy(9 + 4 * HmarginStrict, Hmargin);
    Mod_Sci::SetYCaretPolicy(13, Vmargin);
    Mod_Sci::SetCaretLineVisible(HighlightCurrentLine);
    Mod_Sci::SetTabWidth(TabValue);
    Mod_Sci::SetIndentationGuides(ShowIndentGuides);
    Mod_Sci::SetViewWS(ShowWhiteSpaces * 2L);
    Mod_Sci::SetWrapMode(WordWrap);
    Mod_Sci::SetWrapVisualFlags(WordWrapFlags);
    Mod_Sci::SetWrapStartIndent(WordWrapStartIndent);
    Mod_Sci::SetWrapVisualFlagsLocation(WordWrapFlagLocation);
    Mod_Sci::SetCaretWidth(CursorWidth);
    Mod_Sci::SetCaretPeriod(CursorPeriod);
    Mod_Sci::SetUseTabs(1 - InsertSpacesForTabs);
    Mod_Sci::SetHighlightGuide(0);
    Mod_Sci::SetLexer(SCLEX_CONTAINER);
    Mod_Sci::SetEolMode(SC_EOL_CRLF);
    // A file that has only LF keeps it: what is typed must not mix its line ends.
    if (KeepLineEnds && gActiveDoc != nullptr && gActiveDoc->LfEnds) Mod_Sci::SetEolMode(SC_EOL_LF);
}

void SendMargins() {
    Mod_Sci::SetMarginTypeN(NumberMargin, SC_MARGIN_NUMBER);
    Mod_Sci::SetMarginSensitiveN(NumberMargin, 0);
    Mod_Sci::SetMarginTypeN(MarkerMargin, SC_MARGIN_SYMBOL);
    Mod_Sci::SetMarginMaskN(MarkerMargin, MaskAllButMainProgramAndFolds);
    Mod_Sci::SetMarginSensitiveN(MarkerMargin, 1);
    Mod_Sci::SetMarginWidthN(MarkerMargin, long{MarkerMarginPixels} * ShowMarkerMargin);
    Mod_Sci::SetMarginTypeN(FoldMargin, SC_MARGIN_SYMBOL);
    Mod_Sci::SetMarginMaskN(FoldMargin, MaskFolders);
    Mod_Sci::SetMarginSensitiveN(FoldMargin, 1);
    Mod_Sci::SetMarginWidthN(FoldMargin, long{FoldMarginPixels} * ShowFoldMargin);
    Mod_Sci::MarkerDefine(Mod_Parse::MarkerBreakpoint,
                          BreakpointsAsBackground ? SC_MARK_BACKGROUND : SC_MARK_CIRCLE);
    Mod_Sci::SetFoldFlags(FoldLinesAroundContracted);
}

struct Key {
    int key;
    unsigned message;
    unsigned withShift; // 0: none
};

// Every other command arrives through the command bars; Enter is one of them.
constexpr Key Keys[] = {
    {SCK_DOWN, SCI_LINEDOWN, SCI_LINEDOWNEXTEND},
    {SCK_UP, SCI_LINEUP, SCI_LINEUPEXTEND},
    {SCK_LEFT, SCI_CHARLEFT, SCI_CHARLEFTEXTEND},
    {SCK_RIGHT, SCI_CHARRIGHT, SCI_CHARRIGHTEXTEND},
    {SCK_END, SCI_LINEEND, SCI_LINEENDEXTEND},
    {SCK_PRIOR, SCI_PAGEUP, SCI_PAGEUPEXTEND},
    {SCK_NEXT, SCI_PAGEDOWN, SCI_PAGEDOWNEXTEND},
    {SCK_DELETE, SCI_CLEAR, 0},
    {SCK_INSERT, SCI_EDITTOGGLEOVERTYPE, 0},
    {SCK_BACK, SCI_DELETEBACK, SCI_DELETEBACK},
    {SCK_TAB, SCI_TAB, SCI_BACKTAB},
    {SCK_ESCAPE, SCI_CANCEL, 0},
};

void SendKeys() {
    Mod_Sci::ClearAllCmdKeys();
    for (int code = 1; code <= 127; ++code) {
        Mod_Sci::ClearCmdKey(code | (SCMOD_CTRL << 16));
        Mod_Sci::ClearCmdKey(code | ((SCMOD_CTRL | SCMOD_SHIFT) << 16));
    }
    for (const Key& key : Keys) {
        Mod_Sci::AssignCmdKey(key.key, key.message);
        if (key.withShift != 0) Mod_Sci::AssignCmdKey(Shifted(key.key), key.withShift);
    }
    Mod_Sci::AssignCmdKey(SCK_HOME, HomeGoesToFirst ? SCI_HOME : SCI_VCHOME);
    Mod_Sci::AssignCmdKey(Shifted(SCK_HOME), HomeGoesToFirst ? SCI_HOMEEXTEND : SCI_VCHOMEEXTEND);
}

void SendMarkerSymbols() {
    using namespace Mod_Parse;
    constexpr struct {
        int marker;
        int symbol;
    } symbols[] = {{MarkerFolderOpen, SC_MARK_BOXMINUS},
                   {MarkerFolder, SC_MARK_BOXPLUS},
                   {MarkerFolderSub, SC_MARK_VLINE},
                   {MarkerFolderTail, SC_MARK_LCORNER},
                   {MarkerFolderEnd, SC_MARK_BOXPLUSCONNECTED},
                   {MarkerFolderOpenMid, SC_MARK_BOXMINUSCONNECTED},
                   {MarkerFolderMidTail, SC_MARK_TCORNER},
                   {MarkerFunction, SC_MARK_EMPTY},
                   {MarkerParsed, SC_MARK_EMPTY},
                   {MarkerFoldOpens, SC_MARK_EMPTY},
                   {MarkerBookmark, SC_MARK_BOOKMARK},
                   {MarkerFoldCloses, SC_MARK_EMPTY},
                   {MarkerDeclares, SC_MARK_EMPTY},
                   {MarkerMainProgram, SC_MARK_CIRCLE},
                   {MarkerLocal, SC_MARK_EMPTY},
                   {MarkerType, SC_MARK_EMPTY},
                   {MarkerPosition, SC_MARK_EMPTY},
                   {MarkerBlock, SC_MARK_EMPTY},
                   {MarkerInactiveCaret, SC_MARK_BACKGROUND}};
    for (const auto& row : symbols) Mod_Sci::MarkerDefine(row.marker, row.symbol);
}

} // namespace

void SetSciOptions(bool applyStyles) {
    Guarded("SetSciOptions", "Mod_SciFun", [&] {
        SendCaretAndWrap();
        SendMargins();
        Mod_Sci::AutoCSetMaxHeight(ACRowsHeight);
        Mod_Sci::AutoCSetMaxWidth(0);
        if (applyStyles) ApplyEditorStyle();
        UpdateLineNumberMargin();
        Mod_Sci::AutoCSetFillups(ACFillUpChars.c_str());
        Mod_Sci::AutoCSetCancelAtStart(ACCloseListOnDelete);
        Mod_Sci::AutoCSetAutoHide(ACCloseListOnNoMatch);
        Mod_Sci::AutoCStops(ACStopChars.c_str());
    });
}

void SetSciConstants() {
    Guarded("SetSciConstants", "Mod_SciFun", [&] {
        Mod_Sci::SetModEventMask(EventMask);
        Mod_Sci::UsePopup(0);
        Mod_Sci::AutoCSetIgnoreCase(1);
        SendKeys();
        SendMarkerSymbols();
    });
}

void UpdateLineNumberMargin() {
    std::intptr_t wanted = 1;
    if (ShowLineNumbers) {
        // The inherited text form of a number has a leading place for its sign.
        const std::size_t digits = std::to_string(Mod_Sci::GetLineCount()).size() + 1;
        wanted =
            Mod_Sci::TextWidth(STYLE_LINENUMBER, std::string(std::max<std::size_t>(digits, 4), '0').c_str());
    }
    if (Mod_Sci::GetMarginWidthN(NumberMargin) != wanted) Mod_Sci::SetMarginWidthN(NumberMargin, wanted);
}
