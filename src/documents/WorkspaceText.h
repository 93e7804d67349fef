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

// Where a document was looked at. Positions are bytes, lines count from 0.
struct WorkspaceView {
    std::string path;
    long caret = 0;
    long anchor = 0; // the other end of the selection
    long top = 0;    // the first line on the screen
    bool operator==(const WorkspaceView&) const = default;
};

struct Workspace {
    std::string version = "1";
    long caret = 0;      // of the active document; 0 where there was none
    std::string windows; // the arrangement of the windows, one line without a double quote
    std::vector<WorkspaceEntry> entries = {};
    std::vector<WorkspaceView> views = {};
    bool whole = true; // false where the text ends before its end
    bool operator==(const Workspace&) const = default;
};

std::string WorkspaceText(const Workspace& workspace);
// Nothing for a text that doesn't begin as a workspace does; else whatever of it can be understood.
std::optional<Workspace> ReadWorkspaceText(const std::string& text);
