// Commands that change nothing but indentation. They are not parsed again: what a line declares does not
// depend on it, and the parser would put back its own.
#include "editor/Mod_SciFun_edit.h"

#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/Keywords.h"
#include "engine/Levels.h"
#include "engine/Markers.h"
#include "engine/Mod_Lexer.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/WaitCursor.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_SciFun {

namespace {

using namespace Mod_Parse;
using Word = ClsBBFunkcija::Word;

// The program's own change of many lines, as one undo step.
class OwnChange {
public:
    OwnChange() {
        ActiveForm()->SetDirty(true); // the change sends no events
        Mod_Sci::BeginUndoAction();
    }
    ~OwnChange() { Mod_Sci::EndUndoAction(); }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    const WaitCursor wait_;
    ColoringScope own_;
};

void Shift(int columns) {
    const LineSpan lines = SelectedLines();
    {
        const OwnChange change;
        for (int line = lines.first; line <= lines.last; ++line)
            SetIndentation(line, Mod_Sci::GetLineIndentation(line) + columns);
    }
    Mod_Sci::SetSel(Mod_Sci::PositionFromLine(lines.first), Mod_Sci::GetLineEndPosition(lines.last));
}

// What a line means for its own indentation and for that of the next.
struct Scopes {
    Levels levels;
    bool function = false; // a function begins or ends here: whatever was open is not any more
    bool keeps = false;    // a comment or a label stays where it is
};

class ScopeCount {
public:
    explicit ScopeCount(int line) {
        std::string text = Mod_Sci::LineText(line);
        const int length = Mod_Lexer::FillLineBuffer(text);
        count_ = Mod_Lexer::Tokenize(text, length, true);
        if (count_ == 0) return;
        scopes_.keeps = Kind(1) == TOK_COMMENT || Kind(1) == TOK_BLOCK_START || Kind(1) == TOK_BLOCK_END ||
                        (Kind(1) == '.' && Kind(2) == TOK_IDENT);
        for (index_ = 1; index_ <= count_; ++index_) Count();
    }
    const Scopes& Result() const { return scopes_; }

private:
    std::uint8_t Kind(int index) const { return TokenAt(index).Kind; }
    Word WordAt(int index) const {
        if (index > count_ || Kind(index) != TOK_IDENT) return Word::Other;
        const ClsBBFunkcija* keyword = KeywordOf(TokenAt(index));
        return keyword == nullptr ? Word::Other : keyword->word;
    }
    // Whether only a comment follows the word.
    bool EndsHere() const {
        if (index_ == count_) return true;
        const auto next = Kind(index_ + 1);
        return next == TOK_COMMENT || next == TOK_BLOCK_START || next == TOK_BLOCK_END;
    }

    void Count() {
        if (Kind(index_) != TOK_IDENT) return;
        const ClsBBFunkcija* keyword = KeywordOf(TokenAt(index_));
        if (keyword == nullptr) return;
        if (keyword->word == Word::End) return End();
        if (keyword->word == Word::Function) scopes_.function = true;
        if (keyword->IsStartScope) scopes_.levels.Open(keyword->word);
        if (keyword->IsEndScope)
            scopes_.levels.Close(keyword->word, index_ == 1, EndsHere(), WordAt(index_ + 1) == Word::If);
    }

    // An "End" alone ends the program, not a scope. A second word of an end opens nothing.
    void End() {
        switch (WordAt(index_ + 1)) {
        case Word::Function: scopes_.function = true; [[fallthrough]];
        case Word::Type:
        case Word::If: scopes_.levels.closes += 1; break;
        case Word::Select: scopes_.levels.closes += 2; break;
        default: return;
        }
        ++index_;
    }

    int count_ = 0;
    int index_ = 1;
    Scopes scopes_;
};

void AutoIndent(LineSpan lines) {
    const OwnChange change;
    int level = GetNextIndent(lines.first - 1);
    for (int line = lines.first; line <= lines.last; ++line) {
        const Scopes scopes = ScopeCount(line).Result();
        if (scopes.function) level = 1;
        level = std::max(1, level - scopes.levels.closes);
        if (!scopes.keeps) SetIndentation(line, (level - 1) * OptionsEdit::TabValue);
        level += scopes.levels.opens;
    }
}

// From the line that begins the function round the caret to the one that ends it; outside of functions,
// from the document's first line to the next function.
LineSpan LinesOfFunction(int line) {
    constexpr int Mask = MaskOf(MarkerFunction);
    const FunctionsOnLine own = FunctionsOn(line);
    int first = line;
    if (own.endsAbove || !own.begins) first = Mod_Sci::MarkerPrevious(line - 1, Mask);
    if (first < line && !FunctionsOn(first).goesBelow) first = 0;
    // The line that ends a function is still its own.
    const bool ends = !own.goesBelow && (own.begins || own.endsAbove);
    int last = ends ? line : Mod_Sci::MarkerNext(line + 1, Mask);
    if (last < 0) last = Mod_Sci::GetLineCount() - 1;
    return {first, last};
}

} // namespace

void IndentSelection() {
    if (!DocumentActive()) return;
    Guarded("IndentSelection", "Mod_SciFun", [] {
        if (Mod_Sci::GetSelectionStart() == Mod_Sci::GetSelectionEnd())
            Mod_Sci::Tab();
        else
            Shift(OptionsEdit::TabValue);
    });
}

void UnIndentSelection() {
    if (!DocumentActive()) return;
    Guarded("UnIndentSelection", "Mod_SciFun", [] {
        if (Mod_Sci::GetSelectionStart() == Mod_Sci::GetSelectionEnd())
            Mod_Sci::BackTab();
        else
            Shift(-OptionsEdit::TabValue);
    });
}

void AutoIndentSelection() {
    if (!DocumentActive()) return;
    Guarded("AutoIndentSelection", "Mod_SciFun", [] { AutoIndent(SelectedLines()); });
}

void AutoindentCurrentFunction() {
    if (!DocumentActive()) return;
    Guarded("AutoindentCurrentFunction", "Mod_SciFun", [] {
        const auto caret = Mod_Sci::GetCurrentPos();
        const auto line = Mod_Sci::LineFromPosition(caret);
        const auto offset = caret - Mod_Sci::PositionFromLine(line);
        const LineSpan lines = LinesOfFunction(static_cast<int>(line));
        AutoIndent(lines);
        Mod_Sci::GotoPos(
            std::min(Mod_Sci::PositionFromLine(line) + offset, Mod_Sci::GetLineEndPosition(line)));
    });
}

} // namespace Mod_SciFun
