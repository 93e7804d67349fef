// Dispatches the notifications of a view (restyle, paint, margin clicks) with its document as the active one.
// cSubclass_edit.cpp handles edits.
#include "editor/cSubclass.h"

#include "editor/CharAdded.h"
#include "editor/CodePage.h"
#include "editor/EditorCalls.h"
#include "editor/Guards.h"
#include "editor/Mod_SciFun_bookmarks.h"
#include "editor/Mod_SciFun_edit.h"
#include "editor/SciOptions.h"
#include "editor/StyleTable.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/EngineCalls.h"
#include "engine/Mod_Folding.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "engine/SymbolLine.h"
#include "host/Desktop.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <utility>

EditorCalls gEditorCalls;
bool gUndoGroupOpen = false;
bool gUserEdited = false;
bool gWaitCursor = false;
std::string gLastDocumentID;

namespace {

using namespace Mod_Parse;

// Gives a variable another value until it is destroyed.
template <class Value>
class Swapped {
public:
    Swapped(Value& variable, Value value) : variable_(variable), before_(std::exchange(variable, value)) {}
    ~Swapped() { variable_ = before_; }
    Swapped(const Swapped&) = delete;
    Swapped& operator=(const Swapped&) = delete;

private:
    Value& variable_;
    Value before_;
};

std::vector<int> FoldedLines() {
    std::vector<int> lines;
    constexpr int Opens = MaskOf(MarkerFoldOpens);
    for (auto line = Mod_Sci::MarkerNext(0, Opens); line >= 0; line = Mod_Sci::MarkerNext(line + 1, Opens))
        if (!Mod_Sci::GetFoldExpanded(line)) lines.push_back(static_cast<int>(line));
    return lines;
}

// A number as text with a place for its sign.
std::string Signed(std::intptr_t number) { return (number < 0 ? "" : " ") + std::to_string(number); }

} // namespace

std::unique_ptr<Pipeline> MakePipeline(frmDoc& document) { return std::make_unique<cSubclass>(document); }

PipelineState& cSubclass::State() { return mFrmDoc.State; }

void cSubclass::OnNotify(const SciNotification& notification) {
    if (gInErrorReport) return ForgetLines(mFrmDoc.SciEdi_WndData);
    const ActiveSwap swap(mFrmDoc);
    const Swapped background(background_, background_ || swap.Swapped());
    Guarded("WindowProc", "cSubclass", [&] { Dispatch(notification); });
}

void cSubclass::DeactivateCheck() {
    const ActiveSwap swap(mFrmDoc);
    ParseWaiting();
}

void cSubclass::ParseNow() {
    const ActiveSwap swap(mFrmDoc);
    if (State().UnparsedLine >= 0) TakeBackEditedLine(true);
    if (State().ParseNeeded.empty()) return;
    ParseQueue();
    mFrmDoc.Redraw();
}

void cSubclass::ChangeMany(const std::function<void()>& change) {
    const ActiveSwap swap(mFrmDoc);
    ParseNow();
    ParseWhole([&] {
        change();
        mFrmDoc.SetDirty(true);
    });
}

void cSubclass::ParseAnew(const std::function<void()>& change) {
    const ActiveSwap swap(mFrmDoc);
    ParseNow();
    const std::string before = Mod_Sci::GetText();
    const auto anchor = Mod_Sci::Send(SCI_GETANCHOR), caret = Mod_Sci::GetCurrentPos();
    // A keyword's new spelling is as long as its old one, so the history still fits.
    {
        const Unrecorded unrecorded;
        ParseWhole(change);
    }
    Mod_Sci::SetSel(anchor, caret);
    if (Mod_Sci::GetText() != before) mFrmDoc.SetDirty(true);
    State().Restyle();
}

// Forgets what the lines declared, changes the text unheard and parses it as a load does.
void cSubclass::ParseWhole(const std::function<void()>& change) {
    const std::vector<int> folded = FoldedLines();
    const auto lines = Mod_Sci::GetLineCount();
    ForgetFile();
    {
        const Unheard unheard;
        const Swapped indentation(OptionsEdit::AutoIndentOnLoad, 0); // the text keeps its indentation
        change();
        crCame_ = true; // the new text sent no events, so it may hold any line end
        State().mLastOperationUndoRedo = false;
        ParseOwn(*gCurrentProject);
    }
    // The parser has opened all folds. They are closed again unless lines were added or removed.
    for (const int line : folded)
        if (lines == Mod_Sci::GetLineCount() && HasMarker(line, MarkerFoldOpens) &&
            Mod_Sci::GetFoldExpanded(line))
            Mod_Sci::ToggleFold(line);
    mFrmDoc.Redraw();
}

void cSubclass::Dispatch(const SciNotification& notification) {
    switch (notification.code) {
    // The view also asks during an undo or while a parse opens a fold. Nothing may be changed then, and the
    // parser needs the scope that the colourers would write.
    case SCN_STYLENEEDED:
        if (notification.inPaint && !parsing_) StyleNeeded();
        break;
    case SCN_PAINTED: Painted(); break;
    case SCN_SAVEPOINTREACHED: mFrmDoc.SetDirty(false); break;
    case SCN_MARGINCLICK: MarginClick(notification); break;
    case SCN_MODIFIED: Modified(notification); break;
    case SCN_UPDATEUI: UpdateUi(); break;
    case SCN_CHARADDED: CharAdded(notification.ch); break;
    default: break;
    }
}

void cSubclass::OnSetFocus() {
    const std::intptr_t view = mFrmDoc.SciEdi_WndData;
    Mod_Sci::SendTo(view, SCI_MARKERDELETEALL, MarkerInactiveCaret);
    Mod_Sci::SendTo(view, SCI_SETSELBACK, 1, StyleTable::BackColor[StyleTable::SlotSelection]);
}

void cSubclass::OnKillFocus() {
    const std::intptr_t view = mFrmDoc.SciEdi_WndData;
    const auto line = Mod_Sci::SendTo(view, SCI_LINEFROMPOSITION, Mod_Sci::SendTo(view, SCI_GETCURRENTPOS));
    Mod_Sci::SendTo(view, SCI_MARKERADD, line, MarkerInactiveCaret);
    Mod_Sci::SendTo(view, SCI_SETSELBACK, 1, StyleTable::OtherColor[StyleTable::SlotSelection]);
}

void cSubclass::OnDropFiles(const std::vector<std::string>& paths) { gEditorCalls.FilesDropped(paths); }

bool cSubclass::OnBeyondCodePage(const std::string& character) {
    return Guarded("OnBeyondCodePage", "cSubclass", false,
                   [&] { return TakeBeyondCodePage(mFrmDoc, character); });
}

void cSubclass::OnHistoryCodePage(bool utf8) {
    Guarded("OnHistoryCodePage", "cSubclass", [&] { FollowCodePage(mFrmDoc, utf8); });
}

void cSubclass::StyleNeeded() {
    // A paint asks for styles before it reports the edits that caused it. The edited lines are parsed here
    // first, because otherwise they would be painted twice.
    if (!Coloring) ParseEdited();
    const int first = Mod_Sci::GetFirstVisibleLine();
    const int lastVisible = first + Mod_Sci::LinesOnScreen() + 1;
    const int lastDoc = Mod_Sci::DocLineFromVisible(lastVisible);
    if (State().IsStyled(first, lastDoc)) return;
    Mod_Sci::AutoCCancel();
    Mod_Sci::CallTipCancel();
    State().SetStyled(first, lastDoc);
    ColorVisible(first, lastVisible);
    if (!TakeSymbolsChanged()) return;
    gEngineCalls.PuniLista();
    if (gCurrentProject && !gCurrentProject->SingleFile) SiblingPass();
}

// Colours the lines between two visible ones, each document line once.
void cSubclass::ColorVisible(int first, int last) {
    const ColoringScope own;
    const int lines = Mod_Sci::GetLineCount();
    int previous = -100;
    for (int visible = first; visible <= last; ++visible) {
        const int line = Mod_Sci::DocLineFromVisible(visible);
        if (line >= lines || line == previous) break;
        // A closed fold was skipped, so the line may lie in another scope.
        if (line > previous + 1) ForgetScope();
        if (line == State().UnparsedLine)
            ColorUnparsedLineLight(line, true, State().UnparsedText);
        else if (HasMarker(line, MarkerParsed))
            ColorLineLight(line, true);
        else
            State().Restyle(); // the line gets its colours when it has been parsed
        previous = line;
    }
}

void cSubclass::RestyleNow() {
    const ActiveSwap swap(mFrmDoc);
    const Swapped background(background_, background_ || swap.Swapped());
    State().Restyle();
    Guarded("WindowProc", "cSubclass", [this] { StyleNeeded(); });
}

// Views that show other files of the project recolour at once for a changed symbol.
void cSubclass::SiblingPass() {
    const auto project = gCurrentProject;
    for (const auto& source : project->Sources) {
        frmDoc& sibling = FormOf(*source.record);
        if (&sibling == &mFrmDoc || gHost.dock == nullptr) continue;
        const DocumentWindow* window = gHost.dock->FindDocumentWindow(sibling.m_strDocumentWindowID);
        if (window == nullptr || !window->InFront()) continue;
        sibling.m_oSubclass->RestyleNow();
    }
}

void cSubclass::Painted() {
    if (State().mJustActivated) {
        State().mJustActivated = false;
        gEngineCalls.PuniLista();
    }
    // Moves the end of the styled text back, so that every scroll asks for styles; the styled lines are
    // recorded separately.
    Mod_Sci::StartStyling(1, 255);
    if (background_ || !gEditorCalls.SetPositionText) return;
    const auto position = Mod_Sci::GetCurrentPos();
    const auto line = Mod_Sci::LineFromPosition(position);
    gEditorCalls.SetPositionText("L:" + Signed(line + 1) +
                                 " C:" + Signed(position + 1 - Mod_Sci::PositionFromLine(line)));
}

void cSubclass::MarginClick(const SciNotification& notification) {
    const int line = Mod_Sci::LineFromPosition(notification.position);
    if (notification.margin == FoldMargin)
        Mod_Folding::ToggleFold(line);
    else if (notification.margin != MarkerMargin)
        return;
    else if (gHost.desktop->ShiftDown())
        Mod_SciFun::ToggleBookmark(notification.position);
    else if (gHost.desktop->ControlDown())
        Mod_SciFun::ToggleBreakPoint(line);
}
