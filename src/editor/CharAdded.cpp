// Indents a new line from the line above, and writes out "name++".
#include "editor/CharAdded.h"

#include "engine/DocumentRecord.h"
#include "engine/LineStyles.h"
#include "engine/Mod_Lexer.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace {

std::uint8_t CharAt(std::intptr_t position) {
    return static_cast<std::uint8_t>(Mod_Sci::GetCharAt(position));
}

bool IsName(std::uint8_t ch) { return IsIdChar[ch] || IsNameSuffix[ch]; }

// A place that no value can be added to.
bool IsNoVariable(std::intptr_t position) {
    static constexpr std::array styles{STYLE_Comment,  STYLE_Keyword,  STYLE_Number,   STYLE_String,
                                       STYLE_Comment2, STYLE_Function, STYLE_Constant, STYLE_Label};
    return std::find(styles.begin(), styles.end(), Mod_Sci::GetStyleAt(position)) != styles.end();
}

// From a closing bracket, returns the position before its partner, or `lineStart` - 1 if there is none.
std::intptr_t InFrontOfBrackets(std::intptr_t close, std::intptr_t lineStart) {
    int depth = 0;
    for (auto at = close; at >= lineStart; --at) {
        const std::uint8_t ch = CharAt(at);
        if (ch == ')' || ch == ']') ++depth;
        if ((ch == '(' || ch == '[') && --depth == 0) return at - 1;
    }
    return lineStart - 1;
}

// Whether one of two words ends at a position.
bool EndsWithWord(std::intptr_t end, std::intptr_t lineStart, const char* word, const char* other) {
    auto start = end;
    while (start > lineStart && IsIdChar[CharAt(start - 1)]) --start;
    const std::string text = Mod_Sci::GetTextRange(start, end);
    return EqualNoCase(text, word) || EqualNoCase(text, other);
}

// Whether a statement begins after a position: at the line's start, after a colon, a Then or an Else.
bool BeginsStatement(std::intptr_t front, std::intptr_t lineStart) {
    while (front >= lineStart && IsBlank[CharAt(front)]) --front;
    return front < lineStart || CharAt(front) == ':' || EndsWithWord(front + 1, lineStart, "Then", "Else");
}

// Whether a position is followed by no part of a statement.
bool EndsStatement(std::intptr_t at) {
    const auto lineEnd = Mod_Sci::GetLineEndPosition(Mod_Sci::LineFromPosition(at));
    while (at < lineEnd && IsBlank[CharAt(at)]) ++at;
    if (at == lineEnd || CharAt(at) == ':' || CharAt(at) == ';') return true;
    auto end = at;
    while (end < lineEnd && IsIdChar[CharAt(end)]) ++end;
    return EndsWithWord(end, at, "Else", "EndIf");
}

// Returns the position before the variable that the signs at `scan` + 1 change; nothing if it is not a
// statement of its own.
std::optional<std::intptr_t> InFrontOfTarget(std::intptr_t scan, std::intptr_t lineStart) {
    for (;;) {
        if (scan < lineStart || IsNoVariable(scan)) return {};
        while (scan >= lineStart && IsName(CharAt(scan))) --scan;
        if (scan < lineStart || (CharAt(scan) != ')' && CharAt(scan) != ']')) return scan;
        scan = InFrontOfBrackets(scan, lineStart);
        if (scan >= lineStart && IsBlank[CharAt(scan)]) --scan;
        if (scan < lineStart || !IsName(CharAt(scan))) return {};
    }
}

void LikeAbove() {
    const auto line = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
    if (line == 0) return;
    const auto indent = Mod_Sci::GetLineIndentation(line - 1);
    if (indent <= 0) return;
    const ColoringScope own;
    Mod_Parse::SetIndentation(static_cast<int>(line), static_cast<int>(indent));
    Mod_Sci::GotoPos(Mod_Sci::GetLineIndentPosition(line));
}

// Styles the line, because keys may arrive faster than paints and comments are recognised by their style.
// Opens no completion list.
void StyleTyped() {
    const bool forced = ACForced;
    AllowCompletion(false);
    const auto line = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
    Mod_Parse::ColorCurrentLine(static_cast<int>(line), false);
    AllowCompletion(forced);
}

// Turns "name++" into "name=name+1". `pos`: the second sign.
void ExpandPlusPlus(std::intptr_t pos, char ch) {
    const auto lineStart = Mod_Sci::PositionFromLine(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()));
    StyleTyped();
    auto targetEnd = pos - 1;
    auto scan = pos - 2;
    if (scan >= lineStart && IsBlank[CharAt(scan)]) targetEnd = scan--;
    const auto front = InFrontOfTarget(scan, lineStart);
    if (!front || !BeginsStatement(*front, lineStart) || !EndsStatement(pos + 1)) return;
    const std::string target = Mod_Sci::GetTextRange(*front + 1, targetEnd);
    if (target.empty()) return;
    Mod_Sci::ReplaceRange(targetEnd, pos + 1, "=" + target + ch + "1");
    Mod_Sci::GotoPos(pos + static_cast<std::intptr_t>(target.size()) + 2);
}

// Whether a character ends a line: a CR, or an LF without a CR before it.
bool EndsLine(int ch) { return ch == '\r' || (ch == '\n' && CharAt(Mod_Sci::GetCurrentPos() - 2) != '\r'); }

} // namespace

void CharAdded(int ch) {
    PipelineState& state = gActiveDoc->State;
    AllowCompletion(true);
    const auto byte = static_cast<std::uint8_t>(ch);
    if (IsIdChar[byte]) {
        state.mSpaceTyped = false;
        return;
    }
    if (EndsLine(ch)) {
        if (OptionsEdit::AutoIndentType == OptionsEdit::IndentLikeLineAbove) LikeAbove();
    } else if (ch == ' ') {
        state.mShowCallTip = true;
        state.mSpaceTyped = true;
    } else if (ch == '(' || ch == ',') {
        state.mShowCallTip = true;
    } else if ((ch == '+' || ch == '-') && OptionsEdit::ReplaceVarPlusPlus) {
        const auto pos = Mod_Sci::GetCurrentPos() - 1;
        if (pos > 0 && CharAt(pos - 1) == byte) ExpandPlusPlus(pos, static_cast<char>(ch));
    }
}
