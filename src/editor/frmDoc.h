// The document window's form: one open source file with its Scintilla view, its event pipeline and its
// console runner.
#pragma once

#include "editor/Pipeline.h"
#include "engine/DocumentRecord.h"
#include "host/DockStudio.h"
#include "host/EditorView.h"
#include "host/StdShell.h"
#include "sci/Mod_Sci.h"

#include <memory>
#include <string>

class frmDoc : public DocumentRecord, public Form {
public:
    // Makes the view. Fails when the edit control cannot be had.
    frmDoc();
    ~frmDoc() override;

    void* NativeWidget() override { return View->NativeWidget(); }

    // Identifies this document in this run; a number is never used again, unlike an address.
    const long Serial;

    // Stores the display name, then sends all options and constants to the view, which must be the
    // active one (SciWndData).
    void Initialise(const std::string& filename);
    // Starts the event pipeline. A second call changes nothing.
    void SubClass();
    void Redraw() { View->Redraw(); }

    // A value that differs is stored and shown in the tab's caption.
    void SetFilename(const std::string& name);
    void SetFullFilename(const std::string& path) { FullFilename = path; }
    void SetDirty(bool dirty);
    bool CanUndo() const;
    // Filename, followed by "*" if the document is dirty.
    std::string Caption() const;

    std::unique_ptr<EditorView> View;
    std::unique_ptr<Pipeline> m_oSubclass;
    std::unique_ptr<StdShell> ShellClass;

private:
    void RefreshCaption();
};

// The form of a project's document. The engine knows the record alone, and every record is a form's.
inline frmDoc& FormOf(DocumentRecord& record) { return static_cast<frmDoc&>(record); }
inline const frmDoc& FormOf(const DocumentRecord& record) { return static_cast<const frmDoc&>(record); }

// The document that a window shows; null where the window is empty or shows something else, such as the help.
frmDoc* DocumentIn(const DocumentWindow& window);
// The same for a window that was searched for; null if it was not found.
frmDoc* DocumentIn(const DocumentWindow* window);

// The active document as the form that it is; null when there is none.
frmDoc* ActiveForm();

// Returns the open document with a serial number, null if it was closed. Code that asks the user something
// keeps the number, because the document may be gone afterwards.
frmDoc* DocumentOfSerial(long serial);

// Makes a document the one that all editor code works on: gActiveDoc, SciWndData and, when its project
// is open, gCurrentProject.
void MakeActive(frmDoc* document);

// Makes a document the active one for as long as it lives, as if its view had the focus.
class ActiveSwap {
public:
    explicit ActiveSwap(frmDoc& document)
        : before_(ActiveForm()), view_(SciWndData), swapped_(gActiveDoc != &document) {
        if (swapped_) MakeActive(&document);
    }
    ~ActiveSwap() {
        if (!swapped_) return;
        MakeActive(before_);
        SciWndData = view_;
    }
    // Whether another document was the active one.
    bool Swapped() const { return swapped_; }
    ActiveSwap(const ActiveSwap&) = delete;
    ActiveSwap& operator=(const ActiveSwap&) = delete;

private:
    frmDoc* before_;
    std::intptr_t view_;
    bool swapped_;
};

// Removes a document from its project and destroys it, together with a single file's own project.
void UnloadDocument(frmDoc* document);
