// The parser's base: the token cursor, files and their statements' sequence.
// Statements need no separator between them: a new one begins where the former is complete.
#include "parse/Parser.h"

namespace blitz {

// Deeper nesting than any program has, and shallow enough for the stack.
static constexpr int deepestLevel = 400;

Parser::Level::Level(Parser& parser) : parser_(parser) {
    if (++parser_.level_ > deepestLevel) {
        --parser_.level_;
        failAt(parser_.token().pos, "The program is nested too deeply");
    }
}

bool Parser::atTerminator() const {
    switch (kind()) {
    case Tok::End:
    case Tok::Newline:
    case Tok::Colon: return true;
    default: return false;
    }
}

bool Parser::accept(Tok wanted) {
    if (kind() != wanted) return false;
    advance();
    return true;
}

Pos Parser::expect(Tok wanted) {
    if (kind() != wanted) unexpected(tokenName(wanted));
    const Pos pos = token().pos;
    advance();
    return pos;
}

Symbol Parser::expectName(const char* what) {
    if (kind() != Tok::Name) unexpected(what);
    const Symbol symbol = token().symbol;
    advance();
    return symbol;
}

void Parser::unexpected(const std::string& wanted) const {
    const std::string found = kind() == Tok::Name ? "name " + std::string(token().text) : tokenName(kind());
    failAt(token().pos, "Expecting " + wanted + " but found " + found);
}

TypeMark Parser::typeMark() {
    TypeMark mark;
    switch (kind()) {
    case Tok::Percent: mark.kind = TypeMark::Kind::Int; break;
    case Tok::Hash: mark.kind = TypeMark::Kind::Float; break;
    case Tok::Dollar: mark.kind = TypeMark::Kind::String; break;
    case Tok::Dot:
        if (kind(1) != Tok::Name) return mark;
        advance();
        mark.kind = TypeMark::Kind::Named;
        mark.name = token().symbol;
        break;
    default: return mark;
    }
    advance();
    return mark;
}

Program Parser::parse() {
    parseFile(0, program_.main);
    return std::move(program_);
}

void Parser::parseFile(uint32_t file, Block& block) {
    Lexer* const outer = lexer_;
    Lexer lexer(sources_.files()[file].text, file, symbols_);
    lexer_ = &lexer;
    statements(block, Scope::Main);
    if (kind() != Tok::End) {
        const bool closes = kind() == Tok::KwNext || kind() == Tok::KwWend || kind() == Tok::KwUntil ||
                            kind() == Tok::KwForever || kind() == Tok::KwElse || kind() == Tok::KwElseIf ||
                            kind() == Tok::KwCase || kind() == Tok::KwDefault ||
                            (kind() >= Tok::KwEndIf && kind() <= Tok::KwEndType);
        failAt(token().pos, tokenName(kind()) + (closes ? " without its opener" : " is unexpected here"));
    }
    program_.endPos = token().pos;
    lexer_ = outer;
}

void Parser::statements(Block& block, Scope scope) {
    const Level level(*this);
    for (;;) {
        while (kind() == Tok::Colon || (scope != Scope::Line && kind() == Tok::Newline)) advance();
        if (!statement(block, scope)) return;
    }
}

void Parser::skipLines() {
    while (kind() == Tok::Newline || kind() == Tok::Colon) advance();
}

}
