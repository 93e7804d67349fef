// Fold levels follow the markers 5 (opens) and 7 (closes); only three constructs set them.
#include "engine/Mod_Folding.h"

#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/Markers.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "sci/Mod_Sci.h"

namespace Mod_Folding {

namespace {

using namespace Mod_Parse;

// Behind the line that ends a function no name is known yet.
bool OutsideFunctions() { return CurrentFunctionName.empty() || CurrentFunctionName == MainProgram; }

// A closing line lowers the level, but never below that of its surroundings.
int Lowered(int level) {
    const int least = OutsideFunctions() ? TopLevel : FunctionLevel;
    return level > least ? level - 1 : level;
}

int LevelOf(int line) { return static_cast<int>(Mod_Sci::GetFoldLevel(line)) & SC_FOLDLEVELNUMBERMASK; }

int DeriveLevel(int line) {
    int level = LevelOf(line - 1);
    const auto markers = Mod_Sci::MarkerGet(line - 1);
    // Behind the end of a function nothing is open, on whatever line it began.
    if ((markers & MaskOf(MarkerFunction)) && (markers & MaskOf(MarkerFoldCloses))) return TopLevel;
    if (markers & MaskOf(MarkerFoldOpens)) ++level;
    if (markers & MaskOf(MarkerFoldCloses)) level = Lowered(level);
    return level;
}

// A closed fold whose level changes opens: the lines that it hides may belong to another one afterwards.
void SetLevel(int line, int level) {
    if (LevelOf(line) != (level & SC_FOLDLEVELNUMBERMASK) && !Mod_Sci::GetFoldExpanded(line))
        Mod_Sci::EnsureVisible(line + 1);
    Mod_Sci::SetFoldLevel(line, level);
}

} // namespace

void SetLineLevel(int line, int foldDelta, bool functionLine, bool sequential) {
    const bool derived = !sequential || FoldLevel == 0;
    if (derived) FoldLevel = DeriveLevel(line);
    if (foldDelta > 0) {
        if (functionLine) FoldLevel = TopLevel;
        SetLevel(line, FoldLevel | SC_FOLDLEVELHEADERFLAG);
        ++FoldLevel;
    } else if (functionLine) {
        SetLevel(line, FunctionLevel);
        FoldLevel = TopLevel;
    } else {
        if (!Mod_Sci::GetLineVisible(line + 1)) Mod_Sci::EnsureVisible(line + 1);
        SetLevel(line, FoldLevel);
        if (foldDelta < 0) FoldLevel = Lowered(FoldLevel);
    }
    // Below an unchanged level the function may be another one all the same.
    const bool outside = OutsideFunctions();
    if (derived && HasMarker(line + 1, MarkerParsed) &&
        (LevelOf(line + 1) != FoldLevel || HasMarker(line + 1, MarkerMainProgram) != outside))
        CheckFold(line, FoldLevel);
}

void CheckFold(int line, int level) {
    int end = static_cast<int>(Mod_Sci::MarkerNext(line + 1, MaskOf(MarkerFunction)));
    const bool bounded = end >= 0;
    if (!bounded) end = static_cast<int>(Mod_Sci::GetLineCount());
    for (int at = line + 1; at < end; ++at) {
        const auto markers = Mod_Sci::MarkerGet(at);
        const bool opens = (markers & MaskOf(MarkerFoldOpens)) != 0;
        const bool closes = (markers & MaskOf(MarkerFoldCloses)) != 0;
        // A line that opens and closes is no fold, as in a parse.
        SetLevel(at, opens && !closes ? level | SC_FOLDLEVELHEADERFLAG : level);
        if (opens && !closes) ++level;
        if (closes && !opens) level = Lowered(level);
        MarkMainProgram(at);
    }
    if (bounded && HasMarker(end, MarkerFoldCloses)) MarkMainProgram(end);
}

void ToggleFold(int line) {
    Mod_Sci::ToggleFold(line);
    const auto caretLine = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
    if (!Mod_Sci::GetLineVisible(caretLine)) {
        const auto parent = Mod_Sci::GetFoldParent(caretLine);
        if (parent >= 0) Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(parent));
    }
    if (OptionsEdit::FileDirtyOnBookmarks && gEngineCalls.DocumentChanged) gEngineCalls.DocumentChanged();
}

} // namespace Mod_Folding
