// The event pipeline of one document: the only place where the edit control speaks to the engine.
#pragma once

#include "host/EditorView.h"

#include <string>
#include <vector>

class frmDoc;
struct PipelineState;

// An undo action is open; written by OpenUndoGroup and CloseUndoGroup. A user's edit happened since the last
// SCN_UPDATEUI. A long change put up the wait cursor. Both written by the pipeline.
extern bool gUndoGroupOpen;
extern bool gUserEdited;
extern bool gWaitCursor;

// Begins an undo action in the active view. It ends at that view's next SCN_UPDATEUI, when its document is
// left, or when another view begins one: ending it in a view that has none open would end the program.
void OpenUndoGroup();
void CloseUndoGroup(std::intptr_t view);

class cSubclass : public EditorViewEvents {
public:
    explicit cSubclass(frmDoc& document) : mFrmDoc(document) {}

    // Runs one notification as if its document were the active one, and restores what was active.
    void OnNotify(const SciNotification& notification) override;
    void OnSetFocus() override;
    void OnKillFocus() override;
    void OnDropFiles(const std::vector<std::string>& paths) override;

    // Parses what waits without a caret move, and ends an open undo group: before a project is loaded, before
    // leaving a document. Another document may be the active one already.
    void DeactivateCheck();

private:
    void Dispatch(const SciNotification& notification);
    void StyleNeeded();
    void SiblingPass();
    void Painted();
    void MarginClick(const SciNotification& notification);
    void Modified(const SciNotification& notification);
    void BeforeDelete(const SciNotification& notification, int start, int end);
    void BeforeInsert(const SciNotification& notification, int start, int end);
    void AfterInsert(const SciNotification& notification);
    void UpdateUi();

    PipelineState& State();
    void Snapshot(int line);
    void Queue(int line);
    void TakeBackEditedLine(bool queue);
    void GroupTyping(const SciNotification& notification);
    std::vector<int> TakeQueue();
    void ParseQueue();
    void ParseWaiting();
    void JoinLines();
    void ShowLine(int line);

    frmDoc& mFrmDoc;
};
