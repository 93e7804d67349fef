// Colours the caret's line. Unfinished input is not judged, so an unknown name is plain text. A completion
// list is requested wherever the grammar expects a name.
#include "engine/Mod_Parse.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;
using ListRequest = Request<void()>;

constexpr int StopScopeKnown = 12923;

const Token& At(int index) { return TokenAt(index); }

bool NoWordAtCaret() {
    const auto caret = Mod_Sci::GetCurrentPos();
    return Mod_Sci::WordStartPosition(caret, 1) == Mod_Sci::WordEndPosition(caret, 1);
}

class CurrentPass {
public:
    CurrentPass(int line, int count, int lineStart) : line_(line), count_(count), lineStart_(lineStart) {}

    void Run() {
        for (index_ = 1; index_ <= count_; ++index_) NextToken();
    }

private:
    bool NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }

    void Whole(int style) {
        Style(lineStart_, At(index_), static_cast<std::intptr_t>(At(index_).Text.size()), style);
    }

    void ToEnd(int style) { gLineStyles.SetToEnd(lineStart_ + At(index_).StartPos, style); }

    void NextToken() {
        Token& token = TokenAt(index_);
        switch (token.Kind) {
        case TOK_IDENT: Identifier(); break;
        case ',':
        case ':': Style(lineStart_, token, 1, STYLE_Separator); break;
        case TOK_COMMENT:
            ToEnd(token.EndPos == SecondCommentStyle ? STYLE_Comment2 : STYLE_Comment);
            if (token.EndPos == SecondCommentStyle) token.EndPos = 0;
            break;
        case TOK_NUMBER: Style(lineStart_, token, token.EndPos - token.StartPos, STYLE_Number); break;
        case TOK_STRING: Style(lineStart_, token, token.EndPos - token.StartPos + 1, STYLE_String); break;
        case TOK_BLOCK_START:
        case TOK_BLOCK_END: ToEnd(STYLE_Block); break;
        case '.': Dot(); break;
        case TOK_NONE: break;
        default:
            if (IsOperator[token.Kind])
                Style(lineStart_, token, 1, STYLE_Operator);
            else if (IsBracket[token.Kind])
                Bracket(index_, lineStart_);
            else if (IsAfterName[token.Kind])
                Suffix();
        }
    }

    // After a name the sign starts a type name; its own style does not change.
    void Dot() {
        const Token& dot = At(index_);
        const auto position = lineStart_ + dot.StartPos;
        Style(lineStart_, dot, 1, static_cast<int>(Mod_Sci::GetStyleAt(position)));
        if (index_ > 1) OfferTypesBehind(index_); // a label's name is a new one
    }

    void OfferTypesBehind(int dot) {
        const bool behindName = dot > 1 && At(dot - 1).Kind == TOK_IDENT;
        if ((behindName && AskedAt(lineStart_, At(dot).StartPos + 1)) ||
            (dot < count_ && MayOffer(lineStart_, TokenEnd(At(dot + 1)))))
            gEngineCalls.AutocompleteType();
    }

    void Suffix() {
        if (index_ < count_ && Touches(At(index_), At(index_ + 1)))
            ColorBadVar(index_, count_, lineStart_, STYLE_Text);
        else
            Style(lineStart_, At(index_), 1, STYLE_Text);
    }

    void Identifier() {
        ClsProject& project = *gCurrentProject;
        upper_.Set(At(index_).Text);
        if (project.Funkcii.ExistsU(upper_.text, upper_.hash)) {
            if (!keepCase_) FixVariableCase(FoundItem->Ime, index_, lineStart_);
            return Whole(STYLE_Function);
        }
        if (const ClsBBFunkcija* keyword = FindKeyword(upper_.text)) return Keyword(*keyword);
        EnterScope();
        if (Known(project.Globals, STYLE_GlobalVar, ColorVar) ||
            Known(*CurrentLocals, STYLE_LocalVar, ColorVar) ||
            Known(project.Arrays, STYLE_ArrayVar, ColorArrayVar) ||
            Known(project.Constants, STYLE_Constant, ColorVar))
            return;
        Unknown();
    }

    bool Known(clsHash& table, int style, VariableWalker walker) {
        return ColorKnown(table, upper_, {style, walker, !keepCase_}, index_, count_, lineStart_);
    }

    // Nothing in the pass changes the caret's scope, so it is looked up once.
    void EnterScope() {
        if (inScope_) return;
        inScope_ = true;
        SetFunction(CurrentFunction(line_));
    }

    void Unknown() {
        if (index_ == 2 && At(1).Kind == '.') {
            const auto length = static_cast<std::intptr_t>(At(index_).Text.size()) + 1;
            return Style(lineStart_, At(1), length, STYLE_Text);
        }
        if (MayOffer(lineStart_, At(index_).EndPos)) gEngineCalls.Autocomplete();
        if (index_ == count_ || !IsAfterName[At(index_ + 1).Kind] || !Touches(At(index_), At(index_ + 1)))
            return Whole(STYLE_Text);
        if (At(index_ + 1).Kind == '.') OfferTypesBehind(index_ + 1);
        ColorBadVar(index_, count_, lineStart_, STYLE_Text);
    }

    void Keyword(const ClsBBFunkcija& keyword) {
        FixVariableCase(keyword.Ime, index_, lineStart_);
        Whole(STYLE_Keyword);
        ClsProject& project = *gCurrentProject;
        switch (keyword.word) {
        case Word::New:
        case Word::Each:
        case Word::Last:
        case Word::First: Behind(project.Types, STYLE_Type, gEngineCalls.AutocompleteType); break;
        case Word::Goto:
        case Word::Gosub:
        case Word::Restore: Behind(project.Labels, STYLE_Label, gEngineCalls.AutocompleteLabel); break;
        case Word::Object:
            if (index_ < count_ && At(index_ + 1).Kind == '.') {
                ++index_;
                Style(lineStart_, At(index_), 1, STYLE_Separator);
                TakeName(project.Types, STYLE_Type, At(index_).StartPos + 1, gEngineCalls.AutocompleteType);
            }
            break;
        case Word::Type:
        case Word::Function:
        case Word::Global:
        case Word::Local:
        case Word::Const:
            EnterDeclaration();
            keepCase_ = true;
            break;
        case Word::Field: EnterDeclaration(); break;
        case Word::Dim: keepCase_ = true; break;
        default: KeywordSuffix(keyword);
        }
    }

    // The name of a type or label after its keyword.
    void Behind(clsHash& table, int style, const ListRequest& list) {
        TakeName(table, style, At(index_).EndPos + 1, list);
    }

    // `asked` is the column at which a list opens before a letter is typed.
    void TakeName(clsHash& table, int style, int asked, const ListRequest& list) {
        if (AskedAt(lineStart_, asked)) return list();
        if (!NextIsName()) return;
        if (!table.ExistsHash(At(index_ + 1).Text)) {
            if (MayOffer(lineStart_, At(index_ + 1).EndPos)) list();
            return;
        }
        const std::string spelling = FoundItem->Ime;
        ++index_;
        FixVariableCase(spelling, index_, lineStart_);
        Whole(style);
    }

    void KeywordSuffix(const ClsBBFunkcija& keyword) {
        if (index_ >= count_) return;
        const Token& next = At(index_ + 1);
        if (SuffixTip[next.Kind] == 0 || SuffixTip[next.Kind] != keyword.Tip || !Touches(At(index_), next))
            return;
        ++index_;
        Style(lineStart_, next, 1, STYLE_Keyword);
    }

    int line_;
    int count_;
    int lineStart_;
    int index_ = 1;
    bool keepCase_ = false; // the line's keyword makes new names
    bool inScope_ = false;
    UpperName upper_;
};

// Closes a list with no word at the caret and forgets that the full list was asked for.
void TendList() {
    const bool open = Mod_Sci::AutoCActive() != 0;
    if (!ACForced && open && NoWordAtCaret()) Mod_Sci::AutoCCancel();
    if (!ACExplicitNow && !open) NoteListClosed();
}

} // namespace

void ColorCurrentLine(int line, bool scopeKnown) {
    if (scopeKnown) SetStopErrorLog(StopScopeKnown);
    LineRespelt = false;
    Guarded("ColorCurrentLine", "Mod_Parse", [&] {
        const CurrentLineScope pass;
        const ColoringScope own;
        ClearBrackets();
        TendList();
        std::string text = Mod_Sci::LineText(line);
        const int length = Mod_Lexer::FillLineBuffer(text);
        if (length > LongestLine) return;
        const int lineStart = static_cast<int>(Mod_Sci::PositionFromLine(line)) - 1;
        const int count = Mod_Lexer::Tokenize(text, length, true);
        gLineStyles.Begin(lineStart + 1, length, true);
        CurrentPass(line, count, lineStart).Run();
        StyleOpenBrackets();
        gLineStyles.Flush();
        if (!ACShownNow && OptionsEdit::ACCloseListOnMatch) Mod_Sci::AutoCCancel();
    });
    if (LineRespelt && HasMarker(line, MarkerParsed)) RespellSymbols(line);
    if (HasMarker(line, MarkerParsed)) gActiveDoc->State.mColoredAsCurrent = true;
}

} // namespace Mod_Parse
