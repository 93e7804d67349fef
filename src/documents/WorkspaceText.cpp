// A workspace as text. Readers skip blocks that they do not know, so older versions skip the block of views.
#include "documents/WorkspaceText.h"

#include "documents/BlockText.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr const char* Header = "[Zolto WorkSpace File]";
constexpr const char* LineEnd = "\r\n";

long Number(const std::string& text) {
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() ? std::max(0L, number) : 0;
}

// Splits a line into its path and the rest from `next` on. The last occurrence of that key counts, because a
// path may hold any character, even a double quote.
bool SplitAtPath(const std::string& line, const char* next, std::string& path, std::string& rest) {
    constexpr const char* Start = " Path=\"";
    const std::size_t from = line.find(Start);
    const std::size_t end = line.rfind(std::string("\" ") + next + "=\"");
    if (from == std::string::npos || end == std::string::npos) return false;
    const std::size_t begin = from + std::string_view(Start).size();
    if (end <= begin) return false;
    path = line.substr(begin, end - begin);
    rest = line.substr(end + 1);
    return true;
}

void ReadEntry(Workspace& workspace, const std::string& line) {
    WorkspaceEntry entry;
    std::string rest;
    if (!SplitAtPath(line, "Single", entry.path, rest)) return;
    const std::string single = BlockAttribute(rest, "Single");
    if (single.empty()) return; // the line is truncated
    entry.single = IsBlockTrue(single);
    if (std::find(workspace.entries.begin(), workspace.entries.end(), entry) == workspace.entries.end())
        workspace.entries.push_back(std::move(entry));
}

void ReadView(Workspace& workspace, const std::string& line) {
    WorkspaceView view;
    std::string rest;
    if (!SplitAtPath(line, "Caret", view.path, rest)) return;
    view.caret = Number(BlockAttribute(rest, "Caret"));
    view.anchor = Number(BlockAttribute(rest, "Anchor"));
    const std::string top = BlockAttribute(rest, "Top");
    if (top.empty()) return;
    view.top = Number(top);
    workspace.views.push_back(std::move(view));
}

// A path with a line end would make the rest of the file ambiguous.
bool FitsALine(const std::string& path) { return path.find_first_of("\r\n") == std::string::npos; }

} // namespace

std::string WorkspaceText(const Workspace& workspace) {
    std::string text = std::string(Header) + LineEnd + "<Settings>" + LineEnd;
    text += BlockValue("Version", workspace.version) + LineEnd;
    text += BlockValue("CPOS", std::to_string(workspace.caret)) + LineEnd;
    text += std::string("</Settings>") + LineEnd + "<Workspace>" + LineEnd;
    text += BlockValue("Windows", workspace.windows) + LineEnd;
    text += std::string("</Workspace>") + LineEnd + "<Projects>" + LineEnd;
    for (const WorkspaceEntry& entry : workspace.entries)
        if (FitsALine(entry.path))
            text +=
                BlockValue("Path", entry.path) + BlockValue("Single", BlockBoolean(entry.single)) + LineEnd;
    text += std::string("</Projects>") + LineEnd;
    if (workspace.views.empty()) return text;
    text += std::string("<Views>") + LineEnd;
    for (const WorkspaceView& view : workspace.views)
        if (FitsALine(view.path))
            text += BlockValue("Path", view.path) + BlockValue("Caret", std::to_string(view.caret)) +
                    BlockValue("Anchor", std::to_string(view.anchor)) +
                    BlockValue("Top", std::to_string(view.top)) + LineEnd;
    return text + "</Views>" + LineEnd;
}

std::optional<Workspace> ReadWorkspaceText(const std::string& text) {
    const std::vector<std::string> lines = BlockLines(text);
    if (lines[0] != Header) return std::nullopt;
    Workspace workspace;
    workspace.whole = false;
    std::string settings, arrangement;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::string& head = lines[i];
        if (head != "<Settings>" && head != "<Workspace>" && head != "<Projects>" && head != "<Views>")
            continue;
        const std::string end = "</" + head.substr(1);
        for (++i; i < lines.size() && lines[i] != end; ++i) {
            if (head == "<Settings>") settings += lines[i];
            if (head == "<Workspace>") arrangement += lines[i];
            if (head == "<Projects>") ReadEntry(workspace, lines[i]);
            if (head == "<Views>") ReadView(workspace, lines[i]);
        }
        // Every version has this block last; a block of a newer version after it must be complete too.
        if (head == "<Projects>" || head == "<Views>") workspace.whole = i < lines.size();
    }
    workspace.version = BlockAttribute(settings, "Version");
    workspace.caret = Number(BlockAttribute(settings, "CPOS"));
    workspace.windows = BlockAttribute(arrangement, "Windows");
    return workspace;
}
