// The event pipeline as its document sees it.
#pragma once

#include "host/EditorView.h"

#include <functional>
#include <memory>
#include <string>

class frmDoc;
struct DocumentRecord;

// An undo action is open; written by OpenUndoGroup and CloseUndoGroup. A user's edit happened since the last
// SCN_UPDATEUI. A long change put up the wait cursor. Both written by the pipeline.
extern bool gUndoGroupOpen;
extern bool gUserEdited;
extern bool gWaitCursor;
// The window of the document whose pipeline ran last; written by the pipeline.
extern std::string gLastDocumentID;

// Begins an undo action in the active view. It ends at that view's next SCN_UPDATEUI, when its document is
// left, or when another view begins one: ending it in a view that has none open would end the program.
void OpenUndoGroup();
void CloseUndoGroup(DocumentRecord* document);

class Pipeline : public EditorViewEvents {
public:
    // Parses what waits without a caret move, and ends an open undo group: before a project is loaded, before
    // leaving a document. Another document may be the active one already.
    virtual void DeactivateCheck() = 0;

    // Parses what waits and the line that is being edited, although the caret stands on it. An open undo
    // group stays open, so that what the parser writes is undone with the edit.
    virtual void ParseNow() = 0;

    // Runs a change all over the text that nobody hears of, and parses all lines anew. Indentation stays, and
    // so do closed folds as long as no line comes or goes.
    virtual void ChangeMany(const std::function<void()>& change) = 0;

    // Colours the visible lines at once, for what has changed outside this document.
    virtual void RestyleNow() = 0;

    // Parses all lines anew after a change of the vocabulary, and gives keywords their spelling. The history
    // stays; the document becomes dirty where a byte changed. `change` runs in front and changes no text.
    virtual void ParseAnew(const std::function<void()>& change = [] {}) = 0;
};

// The pipeline of a new document.
std::unique_ptr<Pipeline> MakePipeline(frmDoc& document);
