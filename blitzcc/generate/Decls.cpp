// The reader of library declarations: .lib "name" lines and Name%(a$,b*,c#):"entry" lines.
// A malformed line is passed over, as a library must not keep every program from being checked.
#include "generate/Decls.h"

#include "parse/Sources.h"
#include "parse/Tokens.h"

#include <algorithm>
#include <filesystem>

namespace blitz {
namespace {

bool isNameChar(char c) {
    const char low = lowerChar(c);
    return (low >= 'a' && low <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view trim(std::string_view text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
    return text;
}

std::string_view takeName(std::string_view& text) {
    text = trim(text);
    size_t length = 0;
    while (length < text.size() && isNameChar(text[length])) ++length;
    const std::string_view name = text.substr(0, length);
    text.remove_prefix(length);
    return name;
}

ValueKind markKind(char c) {
    return c == '#' ? ValueKind::Float : c == '$' ? ValueKind::String : ValueKind::Int;
}

}

std::string Decls::folderText(const std::string& folder) {
    std::error_code error;
    std::vector<std::string> paths;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        if (lowerText(it->path().extension().string()) == ".decls") paths.push_back(it->path().string());
    std::sort(paths.begin(), paths.end());
    std::string all;
    for (const std::string& path : paths) {
        std::string text;
        std::string reason;
        if (readFile(path, text, reason)) all += text + "\n";
    }
    return all;
}

void Decls::readText(std::string_view text) {
    while (!text.empty()) {
        const size_t end = std::min(text.find('\n'), text.size());
        readLine(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void Decls::readLine(std::string_view line) {
    line = trim(line.substr(0, line.find(';')));
    if (line.empty()) return;
    if (line[0] == '.') {
        const size_t from = line.find('"');
        const size_t to = line.rfind('"');
        if (from != to) library_ = line.substr(from + 1, to - from - 1);
        return;
    }
    LibraryFunction function;
    function.library = library_;
    function.command.name = takeName(line);
    function.command.hasResult = true;
    line = trim(line);
    if (function.command.name.empty() || line.empty()) return;
    if (line[0] != '(') {
        function.command.result = markKind(line[0]);
        line.remove_prefix(1);
    }
    line = trim(line);
    const size_t close = line.find(')');
    if (line.empty() || line[0] != '(' || close == std::string_view::npos) return;
    line = line.substr(1, close - 1);
    while (!takeName(line).empty()) {
        line = trim(line);
        function.command.parameters.push_back(line.empty() ? ValueKind::Int : markKind(line[0]));
        const size_t comma = line.find(',');
        if (comma == std::string_view::npos) break;
        line.remove_prefix(comma + 1);
    }
    function.command.required = function.command.parameters.size();
    byName_.try_emplace(lowerText(function.command.name), functions_.size());
    functions_.push_back(std::move(function));
}

const LibraryFunction* Decls::find(const std::string& lowered) const {
    const auto entry = byName_.find(lowered);
    return entry == byName_.end() ? nullptr : &functions_[entry->second];
}

}
