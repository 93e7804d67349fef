// What the editing surface may ask of the floors above it. Empty by default.
#pragma once

#include <functional>
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
    std::function<void(const std::string& text)> SetPositionText; // status pane "L: 1 C: 1"
    std::function<void(const std::string& text)> SetFunctionText; // status pane of the current function
    std::function<void(const TipText& tip)> SetTipText;           // the tip box
    std::function<void(const std::string& text)> SetNotice;       // a word (UTF-8) there for a few seconds
    std::function<void()> OpenBrowser;                            // makes the help window where there is none
    // The help page of a word; false when no page has it.
    std::function<bool(const std::string& word)> ShowBrowserHelp;
    // Opens a closed member of the active project by its name and makes it active; false when it could not.
    std::function<bool(const std::string& name)> OpenMember;
    std::function<void()> UpdateSciCommandUI;                                // "Undo" and "Redo" enable
    std::function<void(const std::vector<std::string>& paths)> FilesDropped; // on a view
};
extern EditorCalls gEditorCalls; // written by the wiring of the application alone
