// What the editing surface may ask of the floors above it. Empty by default.
#pragma once

#include "host/Request.h"

#include <string>
#include <vector>

// A line of text with one stretch in a colour of its own (0x00BBGGRR): bytes of the document.
struct TipText {
    std::string left;
    std::string hot;
    std::string right;
    int colour = 0;

    bool operator==(const TipText&) const = default;
};

struct EditorCalls {
    Request<void(const std::string& text)> SetPositionText; // status pane "L: 1 C: 1"
    Request<void(const std::string& text)> SetFunctionText; // status pane of the current function
    Request<void(const TipText& tip)> SetTipText;           // the tip box
    Request<void(const std::string& text)> SetNotice;       // a word (UTF-8) there for a few seconds
    Request<void()> OpenBrowser;                            // makes the help window where there is none
    // The help page of a word; false when no page has it.
    Request<bool(const std::string& word)> ShowBrowserHelp;
    // Opens a closed member of the active project by its name and makes it active; false when it could not.
    Request<bool(const std::string& name)> OpenMember;
    Request<void()> UpdateSciCommandUI;                                // "Undo" and "Redo" enable
    Request<void(const std::vector<std::string>& paths)> FilesDropped; // on a view
};
extern EditorCalls gEditorCalls; // written by the wiring of the application alone
