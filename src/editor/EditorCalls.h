// What the editing surface may ask of the floors above it. Empty by default.
#pragma once

#include <functional>
#include <string>

struct EditorCalls {
    std::function<void(const std::string& text)> SetPositionText; // status pane "L: 1 C: 1"
    std::function<void(const std::string& text)> SetFunctionText; // status pane of the current function
    std::function<void()> UpdateSciCommandUI;                     // "Undo" and "Redo" enable
    std::function<void(const std::string& path)> OpenFile;        // a file was dropped on a view
};
extern EditorCalls gEditorCalls; // written by the wiring of the application alone
