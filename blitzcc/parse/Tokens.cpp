// The table of reserved words and the interning of names.
// Names are compared without regard to case; messages show the spelling of the first use.
#include "parse/Tokens.h"

namespace blitz {

const std::vector<ReservedWord>& reservedWords() {
    static const std::vector<ReservedWord> words = {
        {"Abs", Tok::KwAbs},
        {"After", Tok::KwAfter},
        {"And", Tok::KwAnd},
        {"Before", Tok::KwBefore},
        {"Case", Tok::KwCase},
        {"Const", Tok::KwConst},
        {"Data", Tok::KwData},
        {"Default", Tok::KwDefault},
        {"Delete", Tok::KwDelete},
        {"Dim", Tok::KwDim},
        {"Each", Tok::KwEach},
        {"Else", Tok::KwElse},
        {"ElseIf", Tok::KwElseIf},
        {"End", Tok::KwEnd},
        {"EndIf", Tok::KwEndIf},
        {"Exit", Tok::KwExit},
        {"False", Tok::KwFalse},
        {"Field", Tok::KwField},
        {"First", Tok::KwFirst},
        {"Float", Tok::KwFloat},
        {"For", Tok::KwFor},
        {"Forever", Tok::KwForever},
        {"Function", Tok::KwFunction},
        {"Global", Tok::KwGlobal},
        {"Gosub", Tok::KwGosub},
        {"Goto", Tok::KwGoto},
        {"Handle", Tok::KwHandle},
        {"If", Tok::KwIf},
        {"Include", Tok::KwInclude},
        {"Insert", Tok::KwInsert},
        {"Int", Tok::KwInt},
        {"Last", Tok::KwLast},
        {"Local", Tok::KwLocal},
        {"Mod", Tok::KwMod},
        {"New", Tok::KwNew},
        {"Next", Tok::KwNext},
        {"Not", Tok::KwNot},
        {"Null", Tok::KwNull},
        {"Object", Tok::KwObject},
        {"Or", Tok::KwOr},
        {"Pi", Tok::KwPi},
        {"Read", Tok::KwRead},
        {"Repeat", Tok::KwRepeat},
        {"Restore", Tok::KwRestore},
        {"Return", Tok::KwReturn},
        {"Sar", Tok::KwSar},
        {"Select", Tok::KwSelect},
        {"Sgn", Tok::KwSgn},
        {"Shl", Tok::KwShl},
        {"Shr", Tok::KwShr},
        {"Step", Tok::KwStep},
        {"Stop", Tok::KwStop},
        {"Str", Tok::KwStr},
        {"Then", Tok::KwThen},
        {"To", Tok::KwTo},
        {"True", Tok::KwTrue},
        {"Type", Tok::KwType},
        {"Until", Tok::KwUntil},
        {"Wend", Tok::KwWend},
        {"While", Tok::KwWhile},
        {"Xor", Tok::KwXor},
    };
    return words;
}

std::string tokenName(Tok kind) {
    for (const ReservedWord& word : reservedWords())
        if (word.token == kind) return std::string("'") + word.name + "'";
    switch (kind) {
    case Tok::End: return "end of file";
    case Tok::Newline: return "end of line";
    case Tok::Colon: return "end of statement";
    case Tok::Name: return "identifier";
    case Tok::Int:
    case Tok::Float: return "number";
    case Tok::String: return "string";
    case Tok::KwEndFunction: return "'End Function'";
    case Tok::KwEndSelect: return "'End Select'";
    case Tok::KwEndType: return "'End Type'";
    default: break;
    }
    static const char* const marks[] = {"'('", "')'", "'['", "']'",  "','",  "'.'", "'\\'", "'%'",
                                        "'#'", "'$'", "'+'", "'-'",  "'*'",  "'/'", "'^'",  "'~'",
                                        "'='", "'<'", "'>'", "'<='", "'>='", "'<>'"};
    return marks[static_cast<int>(kind) - static_cast<int>(Tok::LParen)];
}

std::string lowerText(std::string_view text) {
    std::string lowered(text);
    for (char& c : lowered) c = lowerChar(c);
    return lowered;
}

Symbols::Symbols() {
    for (const ReservedWord& word : reservedWords()) {
        intern(word.name);
        words_.push_back(word.token);
    }
}

Symbol Symbols::intern(std::string_view name) {
    lowered_.assign(name);
    for (char& c : lowered_) c = lowerChar(c);
    auto [entry, isNew] = numbers_.try_emplace(lowered_, static_cast<Symbol>(spelling_.size()));
    if (isNew) spelling_.emplace_back(name);
    return entry->second;
}

}
