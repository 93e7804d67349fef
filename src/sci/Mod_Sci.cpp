// The few Scintilla calls that carry text out of the view.
#include "sci/Mod_Sci.h"

#include <algorithm>

std::intptr_t SciWndData = 0;
SciDirectFunction gSciDirect = nullptr;

namespace Mod_Sci {

namespace {

// A request for a range of text, in the library's layout.
struct TextRange {
    long start;
    long end;
    char* text;
};

} // namespace

std::string GetText() {
    const auto length = GetLength();
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    Send(SCI_GETTEXT, length + 1, Address(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string GetSelText() { return GetTextRange(GetSelectionStart(), GetSelectionEnd()); }

std::string GetTextRange(std::intptr_t start, std::intptr_t end) {
    // The library ends the program if a range exceeds the text.
    start = std::max<std::intptr_t>(start, 0);
    end = std::min(end, GetLength());
    if (end <= start) return {};
    std::string text(static_cast<std::size_t>(end - start) + 1, '\0');
    TextRange range{static_cast<long>(start), static_cast<long>(end), text.data()};
    Send(SCI_GETTEXTRANGE, 0, Address(&range));
    text.pop_back();
    return text;
}

std::string LineText(std::intptr_t line) {
    const auto length = LineLength(line);
    std::string text(static_cast<std::size_t>(length), '\0');
    if (length > 0) GetLine(line, text.data());
    return text;
}

void ReplaceRange(std::intptr_t start, std::intptr_t end, std::string_view text) {
    SetTargetStart(start);
    SetTargetEnd(end);
    ReplaceTarget(text);
}

} // namespace Mod_Sci
