// The walkers that style more than one token: variables with what hangs on them, bad words, initialisers.
#include "engine/Mod_Parse_walk.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_Parse {

namespace {

const Token& At(int index) { return TokenAt(index); }

bool CaretAt(int lineStart, int column) { return Mod_Sci::GetCurrentPos() == lineStart + column; }

ClsType* FindType(const std::string& name) {
    return gCurrentProject->Types.ExistsHash(name) ? static_cast<ClsType*>(FoundItem) : nullptr;
}

// Walks one variable, its index and its chain of fields. The styled run starts at the name and continues
// through the fields; brackets interrupt it.
class VariableWalk {
public:
    VariableWalk(Symbol* record, int& index, int count, int lineStart, int style, char bracket)
        : record_(record), index_(index), count_(count), lineStart_(lineStart), style_(style),
          bracket_(bracket), runStart_(At(index).StartPos) {}

    void Run() {
        bool inFields = false;
        do {
            TakeSuffix();
            if (record_->Tip == TipCustom && !inFields) inFields = AtFields();
            if (inFields || BehindBrackets()) inFields = Field();
        } while (inFields);
        DrawRun();
    }

private:
    const Token& Next() const { return At(index_ + 1); }
    bool HasNext() const { return index_ < count_; }
    std::uint8_t NextKind() const { return HasNext() ? Next().Kind : static_cast<std::uint8_t>(TOK_NONE); }
    bool Indexed() const { return bracket_ == '(' || record_->IsBBArray; }

    void DrawRun() {
        const int end = TokenEnd(At(index_));
        if (runStart_ > 0 && end > runStart_)
            gLineStyles.Set(lineStart_ + runStart_, end - runStart_, style_);
        runStart_ = 0;
    }

    void TakeSuffix() {
        const std::uint8_t next = NextKind();
        if (next != TOK_NONE && record_->Tip != TipUnnamedType && SuffixTip[next] == record_->Tip) ++index_;
    }

    // Skips the type name of a declaration. Returns whether a field follows.
    bool AtFields() {
        if (NextKind() == '\\') return !(bracket_ == '[' && record_->IsBBArray);
        if (NextKind() != '.') return false;
        ++index_;
        if (NextKind() != TOK_IDENT) {
            OfferTypes(AskedAt(lineStart_, At(index_).StartPos + 1));
            return false;
        }
        ClsType* type = FindType(record_->Tajp);
        if (type != nullptr && type->Ime != record_->Tajp) record_->Tajp = type->Ime;
        if (type == nullptr || !EqualNoCase(Next().Text, record_->Tajp)) {
            OfferTypes(MayOffer(lineStart_, Next().EndPos));
            return false;
        }
        ++index_;
        FixVariableCase(record_->Tajp, index_, lineStart_);
        return !Indexed() && NextKind() == '\\';
    }

    // Skips an index in brackets, if there is one. Returns whether a field follows the closing bracket.
    bool BehindBrackets() {
        if (!Indexed() || NextKind() != bracket_) return false;
        DrawRun();
        ++index_;
        Bracket(index_, lineStart_);
        const std::uint8_t close = bracket_ == '(' ? ')' : ']';
        for (int depth = 1; depth > 0 && HasNext();) {
            ++index_;
            if (At(index_).Kind == bracket_) ++depth;
            if (At(index_).Kind == close && --depth == 0)
                Bracket(index_, lineStart_);
            else
                ColorTokenLight(index_, count_, lineStart_);
        }
        if (record_->Tip != TipCustom || NextKind() != '\\') return false;
        runStart_ = Next().StartPos;
        return true;
    }

    // Starts before a "\". Returns whether the chain continues after the field.
    bool Field() {
        const ClsType* type = FindType(record_->Tajp);
        const int before = index_;
        ++index_;
        if (NextKind() != TOK_IDENT) {
            if (type != nullptr) OfferFields(*type, "", At(index_).StartPos + 1);
            return false;
        }
        ++index_;
        if (type == nullptr || !type->Fields->ExistsHash(At(index_).Text)) {
            if (type != nullptr) OfferFields(*type, At(index_).Text, At(index_).EndPos);
            // An unknown field is a bad word of its own: the run ends at the variable.
            index_ = before;
            return false;
        }
        record_ = FoundItem;
        bracket_ = '[';
        FixVariableCase(record_->Ime, index_, lineStart_);
        TakeSuffix();
        if (record_->Tip == TipCustom && NextKind() == '\\' && !record_->IsBBArray) return true;
        if (record_->Tip == TipCustom && NextKind() == '.' && AtFields()) return true;
        return BehindBrackets();
    }

    static void OfferTypes(bool asked) {
        if (asked) gEngineCalls.AutocompleteType();
    }

    void OfferFields(const ClsType& type, const std::string& typed, int column) {
        if (AskedAt(lineStart_, column)) gEngineCalls.AutocompleteBackSlash(type, typed);
    }

    Symbol* record_;
    int& index_;
    int count_;
    int lineStart_;
    int style_;
    std::uint8_t bracket_;
    int runStart_; // column of what is not drawn yet; 0 when all is
};

struct OpenBracket {
    std::intptr_t position = 0;
    bool round = false;
};

constexpr int MostBrackets = 200;
OpenBracket brackets[MostBrackets];
int topBracket = 0;

// What is cut from the line must not depend on whether it was repaired now or earlier.
void TakeSpelling(Token& token, const std::string& spelling) {
    token.Text = spelling;
    std::copy(spelling.begin(), spelling.end(), LineBuffer.begin() + token.StartPos);
    LineRespelt = true;
}

} // namespace

int TokenEnd(const Token& token) {
    return token.Kind == TOK_IDENT || token.Kind == TOK_NUMBER ? token.EndPos : token.StartPos + 1;
}

const ClsBBFunkcija* KeywordOf(const Token& token) {
    static std::string upper;
    upper.assign(token.Text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    return FindKeyword(upper);
}

int ClosingBracket(const Token* tokens, int open, int count) {
    const std::uint8_t bracket = tokens[open].Kind;
    const std::uint8_t close = bracket == '(' ? ')' : ']';
    int depth = 0;
    int index = open;
    for (; index <= count; ++index) {
        if (tokens[index].Kind == bracket) ++depth;
        if (tokens[index].Kind == close && --depth == 0) break;
    }
    return index;
}

std::string Cut(int from, int to) {
    const auto* start = reinterpret_cast<const char*>(LineBuffer.data());
    return {start + from, start + std::max(from, to)};
}

bool Touches(const Token& first, const Token& next) { return TokenEnd(first) == next.StartPos; }

void Respell(std::intptr_t start, const std::string& spelling, bool inHistory) {
    const ColoringScope own;
    const auto end = start + static_cast<std::intptr_t>(spelling.size());
    // Inside an undo action the change belongs to it: turning the collection off would end the action, and
    // the one who began it would end one that is not there.
    const bool collect = inHistory || gActiveDoc->State.UndoGroup;
    if (!collect) Mod_Sci::SetUndoCollection(0);
    // Where the word alone keeps a lone CR from an LF, the two must not meet for a moment.
    const bool parts = Mod_Sci::GetCharAt(start - 1) == '\r' && Mod_Sci::GetCharAt(end) == '\n';
    if (parts) Mod_Sci::ReplaceRange(start, start, spelling);
    Mod_Sci::ReplaceRange(parts ? end : start, parts ? end + (end - start) : end, parts ? "" : spelling);
    if (!collect) Mod_Sci::SetUndoCollection(1);
}

void RewriteToken(const std::string& spelling, int index, int lineStart) {
    Token& token = TokenAt(index);
    // What an undo brought back is spelt right beside the history, or nothing could be redone.
    Respell(lineStart + token.StartPos, spelling, !gActiveDoc->State.mLastOperationUndoRedo);
    TakeSpelling(token, spelling);
}

void FixVariableCase(const std::string& spelling, int index, int lineStart) {
    Token& token = TokenAt(index);
    if (!OptionsEdit::FixVariableCase || token.Text == spelling || token.Text.size() != spelling.size())
        return;
    // A word of the language keeps the language's spelling even if a function has the same name, because the
    // parser would restore it.
    if (const ClsBBFunkcija* keyword = KeywordOf(token); keyword != nullptr && keyword->Ime != spelling)
        return;
    const std::intptr_t caret = Mod_Sci::GetCurrentPos();
    if (caret >= lineStart + token.StartPos && caret <= lineStart + token.EndPos) return;
    Respell(lineStart + token.StartPos, spelling, false);
    TakeSpelling(token, spelling);
}

void ColorToken(int index, int lineStart) {
    const Token& token = At(index);
    if (token.Kind == TOK_NUMBER) {
        Style(lineStart, token, token.EndPos - token.StartPos, STYLE_Number);
    } else if (token.Kind == TOK_STRING) {
        Style(lineStart, token, token.EndPos - token.StartPos + 1, STYLE_String);
    } else if (token.Kind == ',' || token.Kind == ':') {
        Style(lineStart, token, 1, STYLE_Separator);
    } else if (token.Kind == TOK_IDENT) {
        const ClsBBFunkcija* keyword = KeywordOf(token);
        if (keyword == nullptr) return;
        if (token.Text != keyword->Ime) RewriteToken(keyword->Ime, index, lineStart);
        Style(lineStart, token, static_cast<std::intptr_t>(keyword->Ime.size()), STYLE_Keyword);
    } else if (IsOperator[token.Kind]) {
        Style(lineStart, token, 1, STYLE_Operator);
    }
}

void ColorExprDoZapirka(int& index, int count, int lineStart) {
    int depth = 0;
    for (; index < count; ++index) {
        const Token& token = At(index);
        if (token.Kind == '(') {
            ++depth;
            Style(lineStart, token, 1, STYLE_Separator);
        } else if (token.Kind == ')') {
            Style(lineStart, token, 1, STYLE_Separator);
            if (--depth < 0) return;
        } else if (token.Kind == ':' || token.Kind == ',') {
            if (depth == 0) return;
            ColorToken(index, lineStart);
        } else {
            ColorToken(index, lineStart);
        }
    }
}

void ColorVar(Symbol* record, int& index, int count, int lineStart, int style) {
    VariableWalk(record, index, count, lineStart, style, '[').Run();
}

void ColorArrayVar(Symbol* record, int& index, int count, int lineStart, int style) {
    VariableWalk(record, index, count, lineStart, style, '(').Run();
}

void ColorBadVar(int& index, int count, int lineStart, int style) {
    const Token& first = At(index);
    int end = TokenEnd(first);
    for (;;) {
        while (index < count && At(index + 1).Kind == TOK_IDENT && At(index + 1).StartPos == end)
            end = At(++index).EndPos;
        if (index >= count || !IsNameSuffix[At(index + 1).Kind] || At(index + 1).StartPos != end) break;
        ++index;
        ++end;
    }
    Style(lineStart, first, end - first.StartPos, style);
}

void UpperName::Set(const std::string& name) {
    text = name;
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    hash = HashOfUpper(text);
}

bool ColorKnown(clsHash& table, const UpperName& name, NameLook look, int& index, int count, int lineStart) {
    if (!table.ExistsU(name.text, name.hash)) return false;
    Symbol* record = FoundItem;
    if (look.fixCase) FixVariableCase(record->Ime, index, lineStart);
    if (index < count && IsAfterName[At(index + 1).Kind])
        look.walker(record, index, count, lineStart, look.style);
    else
        Style(lineStart, At(index), static_cast<std::intptr_t>(At(index).Text.size()), look.style);
    return true;
}

bool AskedAt(int lineStart, int column) {
    return ColoringCurrentLine && ACForced && CaretAt(lineStart, column);
}

bool MayOffer(int lineStart, int column) {
    return ColoringCurrentLine && !ACShownNow && CaretAt(lineStart, column) &&
           (ACForced || Mod_Sci::AutoCActive());
}

void ClearBrackets() { topBracket = 0; }

void Bracket(int index, int lineStart) {
    const Token& token = At(index);
    if (!IsCloseBracket[token.Kind]) {
        if (++topBracket >= MostBrackets) topBracket = 1;
        brackets[topBracket] = {lineStart + token.StartPos, token.Kind == '('};
        Style(lineStart, token, 1, STYLE_Separator);
        return;
    }
    bool matched = false;
    if (topBracket > 0) {
        matched = brackets[topBracket].round == (token.Kind == ')');
        --topBracket;
    }
    Style(lineStart, token, 1, matched ? STYLE_Separator : STYLE_BraceBad);
}

void StyleOpenBrackets() {
    for (; topBracket > 0; --topBracket) gLineStyles.Set(brackets[topBracket].position, 1, STYLE_BraceBad);
}

} // namespace Mod_Parse
