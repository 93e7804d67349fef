// What an edit does: a line that changes is remembered as the tables know it, taken back when the caret
// leaves it, and parsed again in the same turn. The order is always take back, change, parse.
#include "editor/cSubclass.h"

#include "editor/BraceHighlight.h"
#include "editor/EditorCalls.h"
#include "editor/Mod_SciFun_tips.h"
#include "editor/PositionBrowser.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/Mod_Lexer.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "engine/SymbolLine.h"
#include "engine/WaitCursor.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <utility>

namespace {

using namespace Mod_Parse;

constexpr int LongChange = 10; // lines; a longer one shows the wait cursor

constexpr int StopNotTheEditedLine = 11951;
constexpr int StopParsedLineInserted = 12393;
constexpr int StopQueuedTwice = 11443;
constexpr int StopParsedLineQueued = 94993;
constexpr int StopQueuedTwiceFlush = 18893;
constexpr int StopParsedLineFlush = 77993;

int LineOf(std::intptr_t position) { return Mod_Sci::LineFromPosition(position); }

void BeginLongChange() {
    if (!gWaitCursor) BeginWaitCursor();
    gWaitCursor = true;
}

// Whether inserted text ends a line. Line numbers cannot show it: in an LF file the position after a byte
// typed at a line's end is on the next line.
bool EndsALine(const SciNotification& notification, int start, int end) {
    if (notification.text == nullptr) return end > start && notification.length > 1;
    const std::string_view text(notification.text, static_cast<std::size_t>(notification.length));
    return text.find_first_of("\r\n") != std::string_view::npos;
}

// Whether a deletion takes one line end and nothing else.
bool IsLineEnd(const SciNotification& notification, int line) {
    return notification.position == Mod_Sci::GetLineEndPosition(line) &&
           notification.position + notification.length == Mod_Sci::PositionFromLine(line + 1);
}

// Whether a change is about to take a CR LF apart or to put one together: the lines on both sides change with
// it, and the view moves their markers in a way of its own.
bool PartsLineEnd(const SciNotification& notification, bool mayHoldCr) {
    const auto at = [](std::intptr_t position) { return Mod_Sci::GetCharAt(position); };
    const auto position = notification.position;
    const auto end = position + notification.length;
    const bool behindCr = at(position - 1) == '\r';
    if (notification.modificationType & SC_MOD_BEFOREDELETE)
        return (behindCr && (at(position) == '\n' || at(end) == '\n')) ||
               (at(end - 1) == '\r' && at(end) == '\n');
    // An undo does not report the text that it restores.
    if (notification.text == nullptr)
        return behindCr || (mayHoldCr && at(position) == '\n' &&
                            (notification.modificationType & (SC_PERFORMED_UNDO | SC_PERFORMED_REDO)));
    if (notification.length == 0) return false;
    const char first = notification.text[0];
    const char last = notification.text[notification.length - 1];
    return (behindCr && (at(position) == '\n' || first == '\n')) || (last == '\r' && at(position) == '\n');
}

// Whether what came in holds a CR; in a document with LF alone few insertions do, and most are one letter.
bool HoldsCr(const SciNotification& notification) {
    for (auto at = notification.position; at < notification.position + notification.length; ++at)
        if (Mod_Sci::GetCharAt(at) == '\r') return true;
    return false;
}

// Raises a flag for as long as it lives.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
};

DocumentRecord* undoGroupDocument = nullptr; // where the open undo action was begun

} // namespace

void OpenUndoGroup() {
    if (gUndoGroupOpen && undoGroupDocument == gActiveDoc) return;
    CloseUndoGroup(undoGroupDocument);
    Mod_Sci::BeginUndoAction();
    gUndoGroupOpen = true;
    gActiveDoc->State.UndoGroup = true;
    undoGroupDocument = gActiveDoc;
}

void CloseUndoGroup(DocumentRecord* document) {
    if (!gUndoGroupOpen || undoGroupDocument != document) return;
    gUndoGroupOpen = false;
    document->State.UndoGroup = false;
    Mod_Sci::SendTo(document->SciEdi_WndData, SCI_ENDUNDOACTION);
}

void cSubclass::Snapshot(int line) {
    State().UnparsedText = Mod_Sci::LineText(line);
    Mod_Sci::MarkerDelete(line, MarkerParsed);
    State().UnparsedLine = line;
}

void cSubclass::Queue(int line) {
    if (State().ParseNeeded.empty()) {
        queuedFrom_ = line;
        queuedTo_ = line;
    }
    queuedFrom_ = std::min(queuedFrom_, line);
    queuedTo_ = std::max(queuedTo_, line);
    State().ParseNeeded.push_back(static_cast<int>(Mod_Sci::MarkerAdd(line, MarkerQueued)));
}

// Removes the symbols of the edited line's old text; no line is being edited afterwards.
void cSubclass::TakeBackEditedLine(bool queue) {
    const int line = State().UnparsedLine;
    UnparseLineText(line, State().UnparsedText);
    if (queue) Queue(line);
    State().UnparsedLine = -1;
}

void cSubclass::ShowLine(int line) {
    if (!Mod_Sci::GetLineVisible(line)) Mod_Sci::EnsureVisible(line);
}

// Records how an edit moves the lines below it.
void cSubclass::FollowLines(const SciNotification& notification) {
    if (notification.linesAdded == 0) return;
    const std::intptr_t view = mFrmDoc.SciEdi_WndData;
    const auto position = notification.position;
    const bool inserted = (notification.modificationType & SC_MOD_INSERTTEXT) != 0;
    const auto end = inserted ? position + notification.length : position;
    // If a CR LF is joined or split, the view's own line count is not predictable.
    if (Mod_Sci::GetCharAt(position - 1) == '\r' ||
        (Mod_Sci::GetCharAt(end - 1) == '\r' && Mod_Sci::GetCharAt(end) == '\n'))
        return ForgetLines(view);
    const int line = LineOf(position);
    const auto count = static_cast<int>(notification.linesAdded);
    if (inserted)
        LinesInserted(view, Mod_Sci::PositionFromLine(line) == position ? line : line + 1, count);
    else
        LinesRemoved(view, line, -count);
}

void cSubclass::Modified(const SciNotification& notification) {
    if (notification.modificationType & (SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT)) FollowLines(notification);
    if (Coloring) return;
    const int type = notification.modificationType;
    State().mLastOperationUndoRedo = (type & (SC_PERFORMED_UNDO | SC_PERFORMED_REDO)) != 0;
    if (type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE)) {
        mFrmDoc.SetDirty(true);
        const int start = LineOf(notification.position);
        const int end = LineOf(notification.position + notification.length);
        if (PartsLineEnd(notification, crCame_ || !mFrmDoc.LfEnds))
            BeforeParting(notification, start, (type & SC_MOD_BEFOREDELETE) ? end : start);
        else if (type & SC_MOD_BEFOREDELETE)
            BeforeDelete(notification, start, end);
        else
            BeforeInsert(notification, start, end);
    } else if (partedFrom_ >= 0) {
        AfterParting(notification);
    } else if (type & SC_MOD_INSERTTEXT) {
        AfterInsert(notification);
    }
    if ((type & SC_MOD_INSERTTEXT) && mFrmDoc.LfEnds && !crCame_) crCame_ = HoldsCr(notification);
}

// Opens the folds of lines that are removed, because nothing could show their hidden lines afterwards.
void cSubclass::OpenFolds(int first, int last) {
    for (int line = first; line <= last; ++line)
        if (!Mod_Sci::GetFoldExpanded(line)) Mod_Sci::ToggleFold(line);
}

// The lines of the change and their neighbours lose all that the parser knows of them, so that no marker can
// get to a wrong line; what is there afterwards waits.
void cSubclass::BeforeParting(const SciNotification& notification, int start, int end) {
    if (!State().mLastOperationUndoRedo) OpenUndoGroup();
    if (notification.modificationType & SC_PERFORMED_USER) gUserEdited = true;
    const int first = std::max(0, start - 1);
    const int last = std::min(end + 1, Mod_Sci::GetLineCount() - 1);
    const int edited = State().UnparsedLine;
    if (edited >= 0) TakeBackEditedLine(edited < first || edited > last);
    OpenFolds(first, last);
    for (int line = first; line <= last; ++line) {
        if (HasMarker(line, MarkerParsed)) UnparseLine(line, false);
        DeleteEvery(line, MarkerQueued);
    }
    State().mForceColor = true;
    partedFrom_ = first;
    ShowLine(start);
}

void cSubclass::AfterParting(const SciNotification& notification) {
    if (notification.linesAdded != 0) ForgetLines(mFrmDoc.SciEdi_WndData);
    const bool inserted = (notification.modificationType & SC_MOD_INSERTTEXT) != 0;
    const auto end = notification.position + (inserted ? notification.length : 0);
    const int last = std::min(LineOf(end) + 1, Mod_Sci::GetLineCount() - 1);
    queuedTo_ += std::max(0, static_cast<int>(notification.linesAdded));
    for (int line = std::exchange(partedFrom_, -1); line <= last; ++line) {
        ShowLine(line);
        if (!HasMarker(line, MarkerParsed) && !HasMarker(line, MarkerQueued)) Queue(line);
    }
}

void cSubclass::BeforeDelete(const SciNotification& notification, int start, int end) {
    if (end - start > LongChange) BeginLongChange();
    TakeBackBeforeDelete(notification, start, end);
    if (State().UnparsedLine < 0) RememberFirstDeleted(start, end);
    if (end > start) OpenFolds(start, end);
    // What waits below the lines that go moves up.
    queuedFrom_ = std::min(queuedFrom_, start);
    ForgetDeleted(start + 1, end);
    if (notification.modificationType & SC_PERFORMED_USER) {
        gUserEdited = true;
        if (IsLineEnd(notification, start) && Mod_Sci::GetLineIndentation(end) > 1) {
            State().mJoinPending = true;
            OpenUndoGroup();
        }
    }
    ShowLine(start);
}

// A line being edited that lies inside the range is going away and is not queued. One that takes in the lines
// below it is parsed at once: one of them may close a function, and what waits below reads its scope off it.
void cSubclass::TakeBackBeforeDelete(const SciNotification& notification, int start, int end) {
    const int edited = State().UnparsedLine;
    if (edited < 0) return;
    // With the whole text the view forgets every marker.
    const bool whole = notification.length == Mod_Sci::GetLength();
    if (edited != start || whole || end > start) TakeBackEditedLine(whole || edited < start || edited > end);
}

// The first line of a deletion stays and changes: a single line becomes the edited one, and one that takes in
// lines below it waits to be parsed.
void cSubclass::RememberFirstDeleted(int start, int end) {
    const bool parsed = HasMarker(start, MarkerParsed);
    if (end > start || (parsed && start == 0)) {
        // An undo of several changes may reach a line that already waits.
        if (parsed) UnparseLine(start, false);
        if (!HasMarker(start, MarkerQueued)) Queue(start);
        State().mForceColor = true;
    } else if (parsed) {
        Snapshot(start);
    }
}

// Removes the symbols of lines that go, and their places in the queue.
void cSubclass::ForgetDeleted(int first, int last) {
    for (int line = first; line <= last; ++line) {
        if (HasMarker(line, MarkerParsed))
            UnparseLine(line, false);
        else if (HasMarker(line, MarkerQueued))
            DeleteEvery(line, MarkerQueued);
    }
}

// An empty action ends the library's joining of typed characters: a step begins at each run of spaces and at
// each character that belongs to no name.
void cSubclass::GroupTyping(const SciNotification& notification) {
    if (notification.length != 1) {
        State().mSpaceTyped = false;
        return;
    }
    // If the view does not report the typed text, its own grouping stays in force.
    if (notification.text == nullptr) return;
    const auto byte = static_cast<std::uint8_t>(*notification.text);
    const bool space = byte == ' ';
    const bool breaks = space ? !State().mSpaceTyped : !IsIdChar[byte];
    if (!space) State().mSpaceTyped = false;
    if (!breaks) return;
    Mod_Sci::BeginUndoAction();
    Mod_Sci::EndUndoAction();
}

void cSubclass::BeforeInsert(const SciNotification& notification, int start, int end) {
    if (!State().mLastOperationUndoRedo) {
        GroupTyping(notification);
        if (EndsALine(notification, start, end)) OpenUndoGroup();
    }
    if (State().UnparsedLine >= 0 && State().UnparsedLine != start) TakeBackEditedLine(true);
    if (State().UnparsedLine < 0 && HasMarker(start, MarkerParsed)) Snapshot(start);
    if (notification.modificationType & SC_PERFORMED_USER) gUserEdited = true;
}

void cSubclass::AfterInsert(const SciNotification& notification) {
    const int line = LineOf(notification.position);
    ShowLine(line);
    if (notification.linesAdded > 0) {
        queuedTo_ += static_cast<int>(notification.linesAdded);
        if (notification.linesAdded > LongChange) BeginLongChange();
        // Opens a fold into which a paste went.
        ShowLine(LineOf(notification.position - 1) + static_cast<int>(notification.linesAdded) + 1);
    }
    const int last = LineOf(notification.position + notification.length);
    if (last == line) return;
    if (State().UnparsedLine >= 0) {
        if (State().UnparsedLine != line) SetStopErrorLog(StopNotTheEditedLine);
        // What is inserted at a line's start pushes that line down, and its markers go with it.
        if (Mod_Sci::PositionFromLine(line) == notification.position) State().UnparsedLine = last;
        TakeBackEditedLine(false);
    }
    for (int at = line; at <= last; ++at) {
        if (HasMarker(at, MarkerParsed)) SetStopErrorLog(StopParsedLineInserted);
        if (!HasMarker(at, MarkerQueued)) Queue(at);
    }
}

// Removes the indentation of a line that was joined to the line above.
void cSubclass::JoinLines() {
    State().mJoinPending = false;
    const auto start = Mod_Sci::GetCurrentPos();
    auto end = start;
    while (IsBlank[static_cast<std::uint8_t>(Mod_Sci::GetCharAt(end))]) ++end;
    // Without the blanks between them, a lone CR and the following LF would become one line end.
    if (Mod_Sci::GetCharAt(start - 1) == '\r' && Mod_Sci::GetCharAt(end) == '\n') return;
    const ColoringScope own;
    Mod_Sci::ReplaceRange(start, end, "");
}

// Empties the queue and returns its lines from top to bottom, because a line's scope is read from the lines
// above it.
std::vector<int> cSubclass::TakeQueue() {
    std::vector<int> lines;
    // The line that is left when the whole text has gone waits without a marker.
    if (State().UnparsedLine < 0 && !HasMarker(0, MarkerParsed) && !HasMarker(0, MarkerQueued))
        lines.push_back(0);
    // The lines are found by marker, because looking up a handle walks over all lines. A deleted line has no
    // marker.
    const auto waiting = State().ParseNeeded.size() + lines.size();
    for (int line = queuedFrom_; lines.size() < waiting && line <= queuedTo_; ++line) {
        line = Mod_Sci::MarkerNext(line, MaskOf(MarkerQueued));
        if (line < 0) break;
        lines.push_back(line);
    }
    State().ParseNeeded.clear();
    return lines;
}

void cSubclass::ParseQueue() {
    const Raised parsing(parsing_);
    const std::vector<int> lines = TakeQueue();
    int expect = -100;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int line = lines[i];
        if (HasMarker(line, MarkerParsed)) {
            SetStopErrorLog(StopParsedLineQueued);
            continue;
        }
        const bool follows = line == ++expect;
        // The last of a run derives its level, which has the lines below it checked.
        if (follows && (i + 1 == lines.size() || lines[i + 1] != line + 1)) SetFoldLevel(0);
        Parseline(line, follows);
        expect = line;
        DeleteEvery(line, MarkerQueued);
    }
}

// Brings the tables up to the text: unparses the edited line if the caret has left it, and parses the waiting
// lines. Returns whether a line was parsed.
bool cSubclass::ParseEdited() {
    if (State().mJoinPending) JoinLines();
    const int edited = State().UnparsedLine;
    const bool left = edited != LineOf(Mod_Sci::GetCurrentPos());
    // If other lines wait, the edited line is parsed with them, because they read their scope from it.
    if (edited >= 0 && (left || !State().ParseNeeded.empty())) {
        State().mForceColor = State().mForceColor || !left;
        if (HasMarker(edited, MarkerQueued)) SetStopErrorLog(StopQueuedTwice);
        TakeBackEditedLine(true);
    }
    const bool waits = !State().ParseNeeded.empty();
    if (waits) ParseQueue();
    if (gWaitCursor) EndWaitCursor();
    gWaitCursor = false;
    CloseUndoGroup(&mFrmDoc);
    return waits;
}

// A parsed line that looks as the line under the caret does gets its own look back when the caret leaves it.
void cSubclass::LeaveCurrentLook() {
    if (!State().mColoredAsCurrent) return;
    State().mColoredAsCurrent = false;
    State().Restyle();
    mFrmDoc.Redraw();
}

void cSubclass::UpdateUi() {
    if (!background_) gLastDocumentID = mFrmDoc.m_strDocumentWindowID;
    if (ParseEdited()) mFrmDoc.Redraw();
    const auto position = Mod_Sci::GetCurrentPos();
    int line = LineOf(position);
    if (std::exchange(gUserEdited, false)) Mod_SciFun::CheckCBrowser(position, line);
    if (line != mFrmDoc.Callback_OldLine) {
        LeaveCurrentLook();
        if (!background_ && OptionsEdit::ShowCurrentFunction && gEditorCalls.SetFunctionText)
            gEditorCalls.SetFunctionText(CurrentFunctionForDisplay(line));
        UpdateLineNumberMargin();
        mFrmDoc.Callback_OldLine = line;
    }
    if (!HasMarker(line, MarkerParsed) || State().mForceColor) {
        ColorCurrentLine(line, false);
        AllowCompletion(false);
        State().mForceColor = false;
        line = LineOf(Mod_Sci::GetCurrentPos());
    }
    if (!background_) Mod_SciFun::ShowHelp(Mod_Sci::GetCurrentPos(), line);
    if (OptionsEdit::HighlightMatchedBraces) HighlightBraces(Mod_Sci::GetCurrentPos());
    if (!background_) gEditorCalls.UpdateSciCommandUI();
}

void cSubclass::ParseWaiting() {
    CloseUndoGroup(&mFrmDoc);
    const ColoringScope own;
    const Raised parsing(parsing_);
    if (State().UnparsedLine >= 0) {
        if (HasMarker(State().UnparsedLine, MarkerQueued)) SetStopErrorLog(StopQueuedTwiceFlush);
        TakeBackEditedLine(true);
    }
    for (const int line : TakeQueue()) {
        if (HasMarker(line, MarkerParsed)) {
            SetStopErrorLog(StopParsedLineFlush);
            continue;
        }
        Parseline(line, false);
        DeleteEvery(line, MarkerQueued);
    }
}
