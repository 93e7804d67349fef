// The syntax of project and workspace files.
#include "documents/BlockText.h"

#include "host/Text.h"

std::vector<std::string> BlockLines(const std::string& text) {
    std::vector<std::string> lines = Split(text, '\n');
    for (std::string& line : lines)
        if (line.ends_with('\r')) line.pop_back();
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
