// Fold levels follow the markers 5 (opens) and 7 (closes); only three constructs set them.
#include "engine/Mod_Folding.h"

#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/KnownLine.h"
#include "engine/Markers.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_Folding {

namespace {

using namespace Mod_Parse;

// After the line that ends a function the function name is still unknown.
bool OutsideFunctions() { return CurrentFunctionName.empty() || CurrentFunctionName == MainProgram; }

// A closing line lowers the level, but never below that of its surroundings.
int Lowered(int level) {
    const int least = OutsideFunctions() ? TopLevel : FunctionLevel;
    return level > least ? level - 1 : level;
}

int LevelOf(int line) { return Mod_Sci::GetFoldLevel(line) & SC_FOLDLEVELNUMBERMASK; }

// How many folds a parsed line opens minus those it closes; only the sign is reliable, because the markers do
// not show the order if the line does both.
int DeltaOf(int line) {
    const auto markers = Mod_Sci::MarkerGet(line);
    const bool opens = (markers & MaskOf(MarkerFoldOpens)) != 0;
    const bool closes = (markers & MaskOf(MarkerFoldCloses)) != 0;
    if (!opens || !closes) return opens ? 1 : closes ? -1 : 0;
    LineEvents events;
    ReadKnownEvents(line, events);
    return FoldDelta(events);
}

int DeriveLevel(int line) {
    if (line == 0) return TopLevel;
    const int delta = DeltaOf(line - 1);
    // A function is a fold of the top, whatever was open, and so is what follows its end.
    if (HasMarker(line - 1, MarkerFunction)) return delta > 0 ? FunctionLevel : TopLevel;
    const int level = LevelOf(line - 1);
    return delta > 0 ? level + 1 : delta < 0 ? Lowered(level) : level;
}

// Whether the last word on a line that begins or ends a function ends one.
bool EndsFunction(int line) {
    LineEvents events;
    ReadKnownEvents(line, events);
    const auto last = std::find_if(events.rbegin(), events.rend(),
                                   [](const LineEvent& event) { return event.OfFunctions(); });
    return last != events.rend() && last->kind == LineEvent::EndFunction;
}

// A closed fold whose level changes opens: the lines that it hides may belong to another one afterwards.
void SetLevel(int line, int level) {
    if (LevelOf(line) != (level & SC_FOLDLEVELNUMBERMASK)) {
        if (!Mod_Sci::GetLineVisible(line)) Mod_Sci::EnsureVisible(line);
        if (!Mod_Sci::GetFoldExpanded(line)) Mod_Sci::EnsureVisible(line + 1);
    }
    Mod_Sci::SetFoldLevel(line, level);
}

} // namespace

void SetLineLevel(int line, int foldDelta, bool functionLine, bool sequential) {
    const bool derived = !sequential || FoldLevel == 0;
    if (derived) SetFoldLevel(DeriveLevel(line));
    if (foldDelta > 0) {
        if (functionLine) SetFoldLevel(TopLevel);
        SetLevel(line, FoldLevel | SC_FOLDLEVELHEADERFLAG);
        SetFoldLevel(FoldLevel + 1);
    } else if (functionLine) {
        SetLevel(line, FunctionLevel);
        SetFoldLevel(TopLevel);
    } else {
        if (!Mod_Sci::GetLineVisible(line + 1)) Mod_Sci::EnsureVisible(line + 1);
        SetLevel(line, FoldLevel);
        if (foldDelta < 0) SetFoldLevel(Lowered(FoldLevel));
    }
    // Below an unchanged level the function may be another one all the same.
    const bool outside = OutsideFunctions();
    if (derived && HasMarker(line + 1, MarkerParsed) &&
        (LevelOf(line + 1) != FoldLevel || HasMarker(line + 1, MarkerMainProgram) != outside))
        CheckFold(line, FoldLevel);
}

void CheckFold(int line, int level) {
    int end = Mod_Sci::MarkerNext(line + 1, MaskOf(MarkerFunction));
    const bool bounded = end >= 0;
    if (!bounded) end = Mod_Sci::GetLineCount();
    for (int at = line + 1; at < end; ++at) {
        const int delta = DeltaOf(at);
        SetLevel(at, delta > 0 ? level | SC_FOLDLEVELHEADERFLAG : level);
        if (delta > 0) ++level;
        if (delta < 0) level = Lowered(level);
        MarkMainProgram(at);
    }
    if (bounded && HasMarker(end, MarkerFoldCloses) && EndsFunction(end)) MarkMainProgram(end);
}

void ToggleFold(int line) {
    Mod_Sci::ToggleFold(line);
    const auto caretLine = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
    if (!Mod_Sci::GetLineVisible(caretLine)) {
        const auto parent = Mod_Sci::GetFoldParent(caretLine);
        if (parent >= 0) Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(parent));
    }
    if (OptionsEdit::FileDirtyOnBookmarks) gEngineCalls.DocumentChanged();
}

} // namespace Mod_Folding
