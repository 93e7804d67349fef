// Reads one definition: a name with a result suffix, then parameters with type markers. A marker ends a
// parameter, "]" after it makes it optional, and any other character that is not part of a name separates.
#include "engine/KeywordReader.h"

#include "engine/Mod_Lexer.h"
#include "engine/Symbols.h"
#include "host/Failure.h"
#include "host/Text.h"

namespace {

constexpr std::size_t LongestParameterText = 255;

bool IdChar(char c) { return IsIdChar[static_cast<std::uint8_t>(c)] != 0; }

// Splits the parameter list. Returns whether a parameter is required.
bool ReadParameters(std::string_view text, ClsBBFunkcija& keyword) {
    if (text.size() > LongestParameterText) throw Failure(6, "Overflow");
    bool required = false;
    bool optional = false;
    std::string buffer;
    const auto store = [&] {
        keyword.VlezNum++;
        keyword.ParametarTekst(keyword.VlezNum, buffer);
        buffer.clear();
    };
    const auto makeOptional = [&] {
        optional = true;
        buffer = "[" + buffer + "]";
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (IdChar(c)) {
            buffer += c;
            continue;
        }
        if (c == '#' || c == '$' || c == '%') {
            if (c != '%') buffer += c;
            if (i + 1 < text.size() && text[i + 1] == ']') {
                ++i;
                makeOptional();
            }
        } else if (c == ']') {
            makeOptional();
        }
        if (buffer.empty()) continue;
        if (!optional) required = true;
        store();
        optional = false;
    }
    if (!buffer.empty()) store();
    return required;
}

} // namespace

std::shared_ptr<ClsBBFunkcija> ReadKeyword(std::string_view line) {
    if (line.empty()) throw Failure(FailureMissingKey, "Invalid procedure call or argument");
    auto keyword = std::make_shared<ClsBBFunkcija>();
    keyword->Help = std::string(line);
    std::string_view name = line;
    std::string_view parameters;
    if (const std::size_t blank = line.find(' '); blank != std::string_view::npos && blank >= 1) {
        name = line.substr(0, blank);
        parameters = line.substr(blank);
        if (name.ends_with('#')) {
            name.remove_suffix(1);
            keyword->Tip = TipFloat;
        }
        if (name.ends_with('$')) {
            name.remove_suffix(1);
            keyword->Tip = TipString;
        }
    }
    if (parameters.ends_with(')')) {
        keyword->ImaZagradi = true;
        parameters = TrimBlanks(parameters.substr(1, parameters.size() - 2));
    }
    keyword->Ime = std::string(name);
    const bool required = ReadParameters(parameters, *keyword);
    keyword->MoraZagradi = keyword->ImaZagradi && !required;
    return keyword;
}
