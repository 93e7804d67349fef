// The styles that depend on no symbol table, and what hangs on a declared name.
#include "engine/Mod_Parse_walk.h"

#include "engine/ClsCompiler.h"
#include "engine/ParserState.h"
#include "host/Text.h"

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;

Token& At(int index) { return TokenAt(index); }

// Styles the brackets after a declared name, up to the closing one.
void TakeBounds(NameTail& tail, int& index, int count, int lineStart) {
    tail.bracket = index;
    const int close = ClosingBracket(Tokens.data(), index, count);
    for (++index; index < close; ++index) ColorToken(index, lineStart);
    tail.closed = index <= count;
    if (tail.closed) ++index;
}

class LiteralPass {
public:
    LiteralPass(int count, int lineStart) : count_(count), lineStart_(lineStart) {}

    void Run() {
        while (index_ <= count_) NextToken();
    }

private:
    bool NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }
    void Whole(const Token& token, int style) {
        Style(lineStart_, token, static_cast<std::intptr_t>(token.Text.size()), style);
    }
    void ToEnd(const Token& token, int style) { gLineStyles.SetToEnd(lineStart_ + token.StartPos, style); }

    void NextToken() {
        Token& token = At(index_);
        switch (token.Kind) {
        case TOK_IDENT: Identifier(); return;
        case ',':
        case ':': ToEnd(token, STYLE_Separator); break;
        case TOK_COMMENT:
            ToEnd(token, token.EndPos == SecondCommentStyle ? STYLE_Comment2 : STYLE_Comment);
            if (token.EndPos == SecondCommentStyle) token.EndPos = 0;
            break;
        case TOK_BLOCK_START:
        case TOK_BLOCK_END: ToEnd(token, STYLE_Block); break;
        case TOK_NUMBER: Style(lineStart_, token, token.EndPos - token.StartPos, STYLE_Number); break;
        case TOK_STRING: Style(lineStart_, token, token.EndPos - token.StartPos + 1, STYLE_String); break;
        case '.':
            if (index_ == 1 && NextIsName()) ++index_; // a label: the name after it is not a keyword
            break;
        case TOK_NONE: Style(lineStart_, token, token.EndPos - token.StartPos, BadStyle); break;
        default:
            if (IsOperator[token.Kind]) Style(lineStart_, token, 1, STYLE_Operator);
        }
        ++index_;
    }

    void Identifier() {
        const ClsBBFunkcija* keyword = KeywordOf(At(index_));
        if (keyword != nullptr) Whole(At(index_), STYLE_Keyword);
        if (keyword != nullptr && NextIsName())
            Behind(keyword->word);
        else if (keyword != nullptr && keyword->word == Word::Stop && index_ < count_ &&
                 At(index_ + 1).Kind == ':')
            index_ += 2;
        else
            ++index_;
    }

    // A keyword that a name follows.
    void Behind(Word word) {
        switch (word) {
        case Word::Function: Header(); break;
        case Word::End: End(); break;
        case Word::Type:
            Whole(At(++index_), STYLE_Type);
            ++index_;
            break;
        case Word::Field:
        case Word::Dim:
        case Word::Global:
        case Word::Local:
        case Word::Const: Names(word == Word::Dim); break;
        default: ++index_;
        }
    }

    void Header() {
        ++index_;
        SuffixTail(index_, count_);
        if (index_ > count_ || At(index_).Kind != '(') return;
        while (NextIsName()) {
            ++index_;
            GetVarTipColor(index_, count_, lineStart_);
            if (index_ > count_ || At(index_).Kind != ',') return;
            Style(lineStart_, At(index_), 1, STYLE_Separator);
        }
    }

    void End() {
        ++index_;
        const std::string& word = At(index_).Text;
        for (const char* closed : {"Function", "Type", "If", "Select"}) {
            if (!EqualNoCase(word, closed)) continue;
            Whole(At(index_), STYLE_Keyword);
            ++index_;
            return;
        }
    }

    void Names(bool arrays) {
        while (NextIsName()) {
            ++index_;
            if (arrays)
                GetArrayVarTipColor(index_, count_, lineStart_);
            else
                GetVarTipColor(index_, count_, lineStart_);
            if (index_ > count_ || At(index_).Kind != ',') return;
            ToEnd(At(index_), STYLE_Separator);
        }
        ++index_; // the comma that no name followed
    }

    int count_;
    int lineStart_;
    int index_ = 1;
};

} // namespace

NameTail SuffixTail(int& index, int count) {
    NameTail tail;
    ++index;
    if (index > count) return tail;
    const std::uint8_t kind = At(index).Kind;
    if (kind == '.') {
        tail.tip = TipUnnamedType;
        ++index;
        if (index > count || At(index).Kind != TOK_IDENT) return tail;
        tail.tip = TipCustom;
        tail.tajp = At(index).Text;
        ++index;
    } else if (SuffixTip[kind] != 0) {
        tail.tip = SuffixTip[kind];
        ++index;
    }
    return tail;
}

NameTail GetVarTipColor(int& index, int count, int lineStart) {
    NameTail tail = SuffixTail(index, count);
    if (index > count) return tail;
    if (At(index).Kind == '=') {
        Style(lineStart, At(index), 1, STYLE_Operator);
        ++index;
        ColorExprDoZapirka(index, count, lineStart);
    } else if (At(index).Kind == '[') {
        TakeBounds(tail, index, count, lineStart);
    }
    return tail;
}

NameTail GetArrayVarTipColor(int& index, int count, int lineStart) {
    NameTail tail = SuffixTail(index, count);
    if (index <= count && At(index).Kind == '(') TakeBounds(tail, index, count, lineStart);
    return tail;
}

void StyleLiterals(int count, int lineStart) { LiteralPass(count, lineStart).Run(); }

} // namespace Mod_Parse
