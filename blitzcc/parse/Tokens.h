// The kinds of token of the language and the names that the lexer interns. The reserved words are in one
// table, which the vocabulary printer reads as well.
#pragma once

#include "parse/Error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace blitz {

using Symbol = uint32_t;

// clang-format off
enum class Tok : uint8_t {
    End, Newline, Colon, Name, Int, Float, String,
    LParen, RParen, LBracket, RBracket, Comma, Dot, Backslash, Percent, Hash, Dollar,
    Plus, Minus, Star, Slash, Caret, Tilde, Equal, Less, Greater, LessEqual, GreaterEqual, NotEqual,
    // Reserved words from here on.
    KwAbs, KwAfter, KwAnd, KwBefore, KwCase, KwConst, KwData, KwDefault, KwDelete, KwDim, KwEach, KwElse,
    KwElseIf, KwEnd, KwEndIf, KwEndFunction, KwEndSelect, KwEndType, KwExit, KwFalse, KwField, KwFirst,
    KwFloat, KwFor, KwForever, KwFunction, KwGlobal, KwGosub, KwGoto, KwHandle, KwIf, KwInclude, KwInsert,
    KwInt, KwLast, KwLocal, KwMod, KwNew, KwNext, KwNot, KwNull, KwObject, KwOr, KwPi, KwRead, KwRepeat,
    KwRestore, KwReturn, KwSar, KwSelect, KwSgn, KwShl, KwShr, KwStep, KwStop, KwStr, KwThen, KwTo, KwTrue,
    KwType, KwUntil, KwWend, KwWhile, KwXor
};
// clang-format on

/// A reserved word as users write it.
struct ReservedWord {
    const char* name;
    Tok token;
};

/// All reserved words of one word; the two-word closers (End If) are joined by the lexer.
const std::vector<ReservedWord>& reservedWords();

/// How a token kind reads in a message, e.g. 'EndIf'.
std::string tokenName(Tok kind);

/// Names without regard to case, each with a number; reserved words come first.
class Symbols {
public:
    Symbols();

    /// The number of a name, made on its first use.
    Symbol intern(std::string_view name);
    /// The spelling of a name at its first use.
    const std::string& name(Symbol symbol) const { return spelling_[symbol]; }
    /// The reserved word with that number, or Tok::Name.
    Tok kind(Symbol symbol) const { return symbol < words_.size() ? words_[symbol] : Tok::Name; }

private:
    std::unordered_map<std::string, Symbol> numbers_;
    std::vector<std::string> spelling_;
    std::vector<Tok> words_;
    std::string lowered_;
};

/// One token: literals carry their value, names their number.
struct Token {
    Tok kind = Tok::End;
    Symbol symbol = 0;
    int32_t integer = 0;
    float real = 0;
    std::string_view text; // into the source, without the quotes of a string
    Pos pos;
};

/// A character in lower case, for bytes of the ASCII range alone.
inline char lowerChar(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
/// A text in lower case, for bytes of the ASCII range alone.
std::string lowerText(std::string_view text);

}
