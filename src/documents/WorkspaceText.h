// A workspace as a record and as the text of its file (.zws).
#pragma once

#include <optional>
#include <string>
#include <vector>

struct WorkspaceEntry {
    std::string path;
    bool single = false; // a file by itself, else a project
    bool operator==(const WorkspaceEntry&) const = default;
};

// Caret and scroll position of a document. Positions are bytes, lines count from 0.
struct WorkspaceView {
    std::string path;
    long caret = 0;
    long anchor = 0; // the other end of the selection
    long top = 0;    // the first visible line
    bool operator==(const WorkspaceView&) const = default;
};

struct Workspace {
    std::string version = "1";
    long caret = 0;      // of the active document; 0 if there was none
    std::string windows; // the arrangement of the windows, one line without double quotes
    std::vector<WorkspaceEntry> entries = {};
    std::vector<WorkspaceView> views = {};
    bool whole = true; // false if the text was truncated
    bool operator==(const Workspace&) const = default;
};

std::string WorkspaceText(const Workspace& workspace);
// Reads as much of a workspace as is valid. Nothing for a text without the header of a workspace.
std::optional<Workspace> ReadWorkspaceText(const std::string& text);
