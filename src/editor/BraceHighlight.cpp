// Only the caret's line is searched: the library's own search for the partner of an unmatched bracket would
// walk through the whole document on every key.
#include "editor/BraceHighlight.h"

#include "engine/Keywords.h"
#include "engine/Mod_Lexer.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <string>

namespace {

constexpr std::intptr_t NoBrace = -1;
// A brace position beyond the text: the view draws no brace there and keeps the guide highlighted.
constexpr std::intptr_t BeyondText = 10000;
constexpr std::size_t ShortestScopeWord = 2;

// The partner of the closing bracket at a column of a line; columns count from 0, npos for none. A bracket of
// another style, as in a string, is no partner.
std::size_t Partner(const std::string& text, std::size_t close, std::intptr_t lineStart) {
    const char closing = text[close];
    const char opening = closing == ')' ? '(' : '[';
    const auto style = [lineStart](std::size_t column) {
        return Mod_Sci::GetStyleAt(lineStart + static_cast<std::intptr_t>(column));
    };
    const auto wanted = style(close);
    int depth = 0;
    for (std::size_t column = close; column-- > 0;) {
        if ((text[column] != opening && text[column] != closing) || style(column) != wanted) continue;
        depth += text[column] == closing ? 1 : -1;
        if (depth < 0) return column;
    }
    return std::string::npos;
}

// Highlights the innermost pair around the caret. Returns false if there is none.
bool HighlightPair(std::intptr_t pos) {
    const auto line = Mod_Sci::LineFromPosition(pos);
    if (Mod_Sci::LineLength(line) > LongestLine) return false;
    const std::string text = Mod_Sci::LineText(line);
    const auto lineStart = Mod_Sci::PositionFromLine(line);
    const auto caret = static_cast<std::size_t>(pos - lineStart);
    for (auto close = text.find_first_of("])", caret); close != std::string::npos;
         close = text.find_first_of("])", close + 1)) {
        const std::size_t open = Partner(text, close, lineStart);
        if (open == std::string::npos || open == 0 || open >= caret) continue;
        Mod_Sci::BraceHighlight(lineStart + static_cast<std::intptr_t>(open),
                                lineStart + static_cast<std::intptr_t>(close));
        return true;
    }
    return false;
}

bool IsScopeWord(const std::string& word) {
    if (word.size() < ShortestScopeWord) return false;
    const auto first = static_cast<std::uint8_t>(word.front());
    if (first <= '<' || first >= 127) return false;
    const ClsBBFunkcija* keyword = FindKeyword(word);
    return keyword != nullptr && keyword->IsScope;
}

} // namespace

void HighlightBraces(std::intptr_t pos) {
    Mod_Sci::SetHighlightGuide(0);
    if (HighlightPair(pos)) return;
    Mod_Sci::BraceHighlight(NoBrace, NoBrace);
    const auto start = Mod_Sci::WordStartPosition(pos, true);
    if (!IsScopeWord(UCase(Mod_Sci::GetTextRange(start, Mod_Sci::WordEndPosition(pos, true))))) return;
    Mod_Sci::SetHighlightGuide(Mod_Sci::GetColumn(start));
    Mod_Sci::BraceHighlight(NoBrace, pos + BeyondText);
}
