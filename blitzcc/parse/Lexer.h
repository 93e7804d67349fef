// Turns one source file into tokens, a few at a time as the parser asks for them.
// Bytes above 127 are data in strings and comments only; they are never converted.
#pragma once

#include "parse/Tokens.h"

namespace blitz {

class Lexer {
public:
    /// The tokens refer into the text, which must outlive them.
    Lexer(std::string_view text, uint32_t file, Symbols& symbols)
        : text_(text), file_(file), symbols_(symbols) {}

    /// The token some places ahead; after the last line Tok::End for ever. Throws CompileError on a
    /// character that no token begins with and on a string that its line does not close.
    const Token& peek(size_t ahead = 0);
    /// Steps to the next token.
    void advance();

private:
    char at(size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }
    Pos place(size_t from, size_t to) const;
    Token& add(Tok kind, size_t from, size_t to);
    void scan();
    bool followsName() const;
    void name();
    Tok twoWords(Tok first);
    void number();
    void based(int base);
    void string();
    void mark(char c);
    void take(Tok kind, size_t length);

    std::string_view text_;
    uint32_t file_;
    Symbols& symbols_;
    std::vector<Token> tokens_; // a window of the tokens, from head_ on
    size_t head_ = 0;
    size_t at_ = 0;
    size_t lineStart_ = 0;
    uint32_t line_ = 1;
};

}
