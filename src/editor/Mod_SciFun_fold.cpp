// Folding and unfolding all lines of a kind.
#include "editor/Mod_SciFun_edit.h"

#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/Markers.h"
#include "engine/OptionsEdit.h"
#include "engine/WaitCursor.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

namespace Mod_SciFun {

namespace {

using namespace Mod_Parse;

// Moves a hidden caret to the visible line of its fold.
void ShowCaret() {
    auto line = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
    if (Mod_Sci::GetLineVisible(line)) return;
    while (!Mod_Sci::GetLineVisible(line)) {
        line = Mod_Sci::GetFoldParent(line);
        if (line < 0) return;
    }
    Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(line));
}

void SetFolds(int mask, bool expanded) {
    if (OptionsEdit::ShowFoldMargin == 0 || !DocumentActive()) return;
    const WaitCursor wait;
    bool changed = false;
    constexpr int Opens = MaskOf(MarkerFoldOpens);
    for (auto line = Mod_Sci::MarkerNext(0, Opens); line >= 0; line = Mod_Sci::MarkerNext(line + 1, Opens)) {
        const bool wanted = (Mod_Sci::MarkerGet(line) & mask) != 0;
        // A header inside a closed fold has hidden lines below it and may be open itself.
        if (!wanted || (Mod_Sci::GetLineVisible(line + 1) != 0) == expanded ||
            (Mod_Sci::GetFoldExpanded(line) != 0) == expanded)
            continue;
        Mod_Sci::ToggleFold(line);
        changed = true;
    }
    ShowCaret();
    if (changed && OptionsEdit::FileDirtyOnBookmarks) ActiveForm()->SetDirty(true);
}

} // namespace

void FoldEverything(int mask) {
    Guarded("FoldEverything", "Mod_SciFun", [mask] { SetFolds(mask, false); });
}

void UnFoldEverything(int mask) {
    Guarded("UnFoldEverything", "Mod_SciFun", [mask] { SetFolds(mask, true); });
}

} // namespace Mod_SciFun
