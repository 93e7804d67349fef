// The form of project and workspace files.
#include "documents/BlockText.h"

#include "host/Paths.h"

#include <algorithm>

std::vector<std::string> BlockLines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        std::string line = text.substr(from, end - from);
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
        from = end + 1;
    }
    return lines;
}

std::string BlockValue(const char* key, const std::string& value) {
    return std::string(" ") + key + "=\"" + value + "\"";
}

std::string BlockBoolean(bool value) { return value ? "True" : "False"; }

bool IsBlockTrue(const std::string& text) { return EqualNoCase(text, "True"); }

std::string BlockAttribute(const std::string& line, const std::string& key) {
    const std::string start = key + "=\"";
    const std::size_t at = line.find(start);
    if (at == std::string::npos) return {};
    const std::size_t from = at + start.size();
    const std::size_t end = line.find('"', from);
    return end == std::string::npos ? std::string() : line.substr(from, end - from);
}
