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

    // Parses the waiting lines and the line being edited, even with the caret on it. An open undo group stays
    // open, so that an undo takes back the parser's changes together with the edit.
    virtual void ParseNow() = 0;

    // Runs a change of the whole text without events and parses all lines anew. Indentation is kept, and so
    // are closed folds unless the number of lines changes.
    virtual void ChangeMany(const std::function<void()>& change) = 0;

    // Colours the visible lines at once, for what has changed outside this document.
    virtual void RestyleNow() = 0;

    // Runs `change`, which switches the vocabulary but changes no text; then parses all lines anew and
    // respells keywords. The undo history is kept; the document becomes dirty if a byte changed.
    virtual void ParseAnew(const std::function<void()>& change = [] {}) = 0;
};

// The pipeline of a new document.
std::unique_ptr<Pipeline> MakePipeline(frmDoc& document);
