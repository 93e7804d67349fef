// Colouring of the lines that the caret is not on: first what depends on no table, over it the names by what
// they mean here.
#include "engine/Mod_Parse.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/LineEvents.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;
constexpr int StopUnknownFunction = 18800;
constexpr int StopUnknownFunctionUnparsed = 11781;
constexpr int DeclaringMask =
    MaskOf(MarkerFunction) | MaskOf(MarkerType) | MaskOf(MarkerDeclares) | MaskOf(MarkerLocal);
constexpr std::size_t ShortWord = 3; // the bracket check spares words up to this length

const Token& At(int index) { return TokenAt(index); }

// The name being looked up; its room is reused from token to token.
UpperName upper;

bool ColorFrom(clsHash& table, int style, VariableWalker walker, int& index, int count, int lineStart) {
    return ColorKnown(table, upper, {style, walker, true}, index, count, lineStart);
}

void ColorBad(int& index, int count, int lineStart) {
    if (index < count && IsNameSuffix[At(index + 1).Kind])
        ColorBadVar(index, count, lineStart, BadStyle);
    else
        Style(lineStart, At(index), static_cast<std::intptr_t>(At(index).Text.size()), BadStyle);
}

// Styles a lone suffix, or a malformed word that begins with a suffix.
void ColorSuffix(int& index, int count, int lineStart) {
    if (index < count && Touches(At(index), At(index + 1)))
        ColorBadVar(index, count, lineStart, BadStyle);
    else
        Style(lineStart, At(index), 1, BadStyle);
}

bool LacksBracket(const ClsBBFunkcija& keyword, int index) {
    return OptionsEdit::CheckForMissingBracesOnFunctions && keyword.MoraZagradi && At(index + 1).Kind != '(';
}

// Makes the function on a line the scope of the lines that follow. False when the table does not know it.
bool EnterFunction(const std::string& name, int line) {
    if (!gCurrentProject->Funkcii.ExistsOnlyHash(name)) return false;
    const SymbolPointer record = gCurrentProject->Funkcii.ItemHandle(name, line, SciWndData);
    if (!record) return false;
    SetFunction(name, static_cast<ClsFunkcija&>(*record).Locals);
    return true;
}

// One line's pass.
class LightPass {
public:
    LightPass(int line, bool sequential, int count, int lineStart)
        : line_(line), sequential_(sequential), count_(count), lineStart_(lineStart) {}

    void Run() {
        scopes_.clear();
        if (sequential_ && (Mod_Sci::MarkerGet(line_) & (MaskOf(MarkerFunction) | MaskOf(MarkerType))))
            ReadEvents(Tokens.data(), count_, 0, scopes_);
        for (index_ = 1; index_ <= count_; ++index_) NextToken();
    }

private:
    void NextToken() {
        const std::uint8_t kind = At(index_).Kind;
        if (kind == TOK_IDENT) {
            Identifier();
        } else if (kind == '.' && index_ == 1 && NextIsName()) {
            const Token& name = At(2);
            Style(lineStart_, At(1), name.EndPos - At(1).StartPos, STYLE_Label);
            ++index_;
        } else if (IsNameSuffix[kind]) {
            ColorSuffix(index_, count_, lineStart_);
        } else if (IsBracket[kind]) {
            Bracket(index_, lineStart_);
        }
    }

    bool NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }
    const std::string& NextText() const { return At(index_ + 1).Text; }

    // Whether the next token is what the parser took for a scope's name or for the second word of an end.
    bool NextIs(LineEvent::Kind kind) const {
        return std::any_of(scopes_.begin(), scopes_.end(), [&](const LineEvent& event) {
            return event.kind == kind && event.token == index_ + 1;
        });
    }

    void Identifier() {
        ClsProject& project = *gCurrentProject;
        upper.Set(At(index_).Text);
        if (ColorFrom(project.Funkcii, STYLE_Function, ColorVar, index_, count_, lineStart_)) return;
        if (const ClsBBFunkcija* keyword = FindKeyword(upper.text)) return Keyword(*keyword);
        if (!sequential_ || CurrentFunctionName.empty()) SetFunction(CurrentFunction(line_));
        if (ColorFrom(*CurrentLocals, STYLE_LocalVar, ColorVar, index_, count_, lineStart_) ||
            ColorFrom(project.Globals, STYLE_GlobalVar, ColorVar, index_, count_, lineStart_) ||
            ColorFrom(project.Arrays, STYLE_ArrayVar, ColorArrayVar, index_, count_, lineStart_) ||
            ColorFrom(project.Constants, STYLE_Constant, ColorVar, index_, count_, lineStart_))
            return;
        ColorBad(index_, count_, lineStart_);
    }

    void Keyword(const ClsBBFunkcija& keyword) {
        const std::size_t length = At(index_).Text.size();
        Style(lineStart_, At(index_), static_cast<std::intptr_t>(length), STYLE_Keyword);
        if (length > ShortWord && LacksBracket(keyword, index_)) {
            Style(lineStart_, At(index_), static_cast<std::intptr_t>(length), BadStyle);
            return;
        }
        if (!sequential_) return;
        if (NextIsName())
            Dispatch(keyword);
        else
            Suffix(keyword);
    }

    void Dispatch(const ClsBBFunkcija& keyword) {
        ClsProject& project = *gCurrentProject;
        switch (keyword.word) {
        case Word::Function:
            if (NextIs(LineEvent::Function) && !EnterFunction(NextText(), line_))
                SetStopErrorLog(StopUnknownFunction);
            break;
        case Word::End:
            if (NextIs(LineEvent::EndFunction)) {
                ++index_;
                ForgetFunction();
            } else if (NextIs(LineEvent::EndType)) {
                ++index_;
                ForgetType();
            }
            break;
        case Word::New:
        case Word::Each:
        case Word::Last:
        case Word::First: NextFrom(project.Types, STYLE_Type); break;
        case Word::Goto:
        case Word::Gosub:
        case Word::Restore: NextFrom(project.Labels, STYLE_Label); break;
        case Word::Type:
            if (NextIs(LineEvent::Type)) EnterType();
            break;
        case Word::Field: Fields(); break;
        default: break;
        }
    }

    // Styles the type or label name after its keyword.
    void NextFrom(clsHash& table, int style) {
        if (!table.ExistsHash(NextText())) return;
        const std::string spelling = FoundItem->Ime;
        ++index_;
        FixVariableCase(spelling, index_, lineStart_);
        Style(lineStart_, At(index_), static_cast<std::intptr_t>(At(index_).Text.size()), style);
    }

    // The declared name keeps the style that the parser gave it.
    void EnterType() {
        if (!gCurrentProject->Types.ExistsHash(NextText())) return;
        ++index_;
        const std::string& name = At(index_).Text;
        if (const SymbolPointer record = gCurrentProject->Types.ItemHandle(name, line_, SciWndData)) {
            SetType(name, static_cast<ClsType&>(*record).Fields);
        }
    }

    void Fields() {
        if (CurrentTypeName.empty()) SetType(CurrentType(line_));
        if (CurrentTypeName.empty()) return;
        if (scopes_.empty()) ReadEvents(Tokens.data(), count_, 0, scopes_);
        for (std::size_t i = 0; i < scopes_.size(); ++i) {
            const LineEvent event = scopes_[i];
            if (event.kind != LineEvent::Field || event.token <= index_) continue;
            if (event.token > index_ + 1 && At(event.token - 1).Kind != ',') return;
            // A field's initialiser may contain anything; the list continues after it.
            while (index_ + 1 < event.token) {
                ++index_;
                NextToken();
            }
            if (index_ + 1 != event.token || !CurrentFields->ExistsHash(NextText())) return;
            Symbol* field = FoundItem;
            ++index_;
            ColorVar(field, index_, count_, lineStart_, STYLE_Type);
        }
    }

    void Suffix(const ClsBBFunkcija& keyword) {
        if (index_ >= count_) return;
        const Token& next = At(index_ + 1);
        if (next.Kind == '.' && keyword.word == Word::Object) {
            Style(lineStart_, next, 1, STYLE_Separator);
            ++index_;
            if (NextIsName()) NextFrom(gCurrentProject->Types, STYLE_Type);
        } else if (SuffixTip[next.Kind] != 0 && SuffixTip[next.Kind] == keyword.Tip &&
                   Touches(At(index_), next)) {
            Style(lineStart_, next, 1, STYLE_Keyword);
            ++index_;
        }
    }

    int line_;
    bool sequential_;
    int count_;
    int lineStart_;
    int index_ = 1;
    static LineEvents scopes_; // its room is used again
};

LineEvents LightPass::scopes_;

} // namespace

void ColorLineLight(int line, bool sequential) {
    Guarded("ColorLineLight", "Mod_Parse", [&] {
        const ColoringScope own;
        ClearBrackets();
        LineRespelt = false;
        std::string text = Mod_Sci::LineText(line);
        const int length = Mod_Lexer::FillLineBuffer(text);
        if (length > LongestLine) return; // the parser has reported it
        const int lineStart = static_cast<int>(Mod_Sci::PositionFromLine(line)) - 1;
        const int count = Mod_Lexer::Tokenize(text, length, true);
        gLineStyles.Begin(lineStart + 1, length, true);
        StyleLiterals(count, lineStart);
        LightPass(line, sequential, count, lineStart).Run();
        StyleOpenBrackets();
        gLineStyles.Flush();
        if (LineRespelt && (Mod_Sci::MarkerGet(line) & DeclaringMask)) RespellSymbols(line);
    });
}

void ColorTokenLight(int& index, int count, int lineStart) {
    const Token& token = At(index);
    if (token.Kind != TOK_IDENT) {
        if (IsBracket[token.Kind])
            Bracket(index, lineStart);
        else if (IsNameSuffix[token.Kind])
            ColorSuffix(index, count, lineStart);
        else
            ColorToken(index, lineStart);
        return;
    }
    ClsProject& project = *gCurrentProject;
    upper.Set(token.Text);
    if (ColorFrom(project.Funkcii, STYLE_Function, ColorVar, index, count, lineStart)) return;
    if (const ClsBBFunkcija* keyword = FindKeyword(upper.text)) {
        FixVariableCase(keyword->Ime, index, lineStart);
        const bool bad = LacksBracket(*keyword, index) && !ColoringCurrentLine;
        Style(lineStart, token, static_cast<std::intptr_t>(token.Text.size()),
              bad ? BadStyle : STYLE_Keyword);
        return;
    }
    if (ColorFrom(project.Globals, STYLE_GlobalVar, ColorVar, index, count, lineStart) ||
        ColorFrom(*CurrentLocals, STYLE_LocalVar, ColorVar, index, count, lineStart) ||
        ColorFrom(project.Arrays, STYLE_ArrayVar, ColorArrayVar, index, count, lineStart) ||
        ColorFrom(project.Constants, STYLE_Constant, ColorVar, index, count, lineStart))
        return;
    if (!ColoringCurrentLine) return ColorBad(index, count, lineStart);
    Style(lineStart, token, static_cast<std::intptr_t>(token.Text.size()), STYLE_Text);
    if (MayOffer(lineStart, token.EndPos)) gEngineCalls.Autocomplete();
}

void ColorUnparsedLineLight(int line, bool sequential, const std::string& text) {
    Guarded("ColorUnparsedLineLight", "Mod_Parse", [&] {
        const ColoringScope own;
        std::string copy = text;
        const int length = Mod_Lexer::FillLineBuffer(copy);
        if (length > LongestLine) return;
        const int count = Mod_Lexer::Tokenize(copy, length, true);
        if (!sequential || !HasMarker(line, MarkerFunction)) return;
        LineEvents events;
        ReadEvents(Tokens.data(), count, length, events);
        for (const LineEvent& event : events) {
            if (event.kind == LineEvent::EndFunction) ForgetFunction();
            if (event.kind == LineEvent::Function && !EnterFunction(At(event.token).Text, line))
                SetStopErrorLog(StopUnknownFunctionUnparsed);
        }
    });
}

} // namespace Mod_Parse
