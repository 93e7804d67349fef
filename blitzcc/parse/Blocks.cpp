// The parser's blocks: If, loops, Select, Type and Function.
// A missing closer is reported where it was expected, with the line of the opener.
#include "parse/Parser.h"

namespace blitz {

bool Parser::blockStatement(Stmt& stmt) {
    const Pos opener = token().pos;
    switch (kind()) {
    case Tok::KwIf: ifStatement(stmt); return true;
    case Tok::KwWhile:
        stmt.kind = StmtKind::While;
        advance();
        stmt.exprs.push_back(expression());
        body(stmt.blocks.emplace_back(), Tok::KwWend, opener, "While");
        return true;
    case Tok::KwRepeat: repeatStatement(stmt); return true;
    case Tok::KwFor: forStatement(stmt); return true;
    case Tok::KwSelect: selectStatement(stmt); return true;
    default: return false;
    }
}

void Parser::body(Block& block, Tok closer, const Pos& opener, const char* openerName) {
    statements(block, Scope::Inner);
    close(closer, opener, openerName);
}

void Parser::close(Tok closer, const Pos& opener, const char* openerName) {
    if (accept(closer)) return;
    unexpected(tokenName(closer) + " for the " + openerName + " of line " + std::to_string(opener.line));
}

void Parser::ifStatement(Stmt& stmt) {
    stmt.kind = StmtKind::If;
    const Pos opener = token().pos;
    bool isBlock = false;
    do {
        advance();
        stmt.exprs.push_back(expression());
        accept(Tok::KwThen);
        if (stmt.exprs.size() == 1) isBlock = atTerminator();
        statements(stmt.blocks.emplace_back(), isBlock ? Scope::Inner : Scope::Line);
    } while (kind() == Tok::KwElseIf);
    if (accept(Tok::KwElse)) statements(stmt.blocks.emplace_back(), isBlock ? Scope::Inner : Scope::Line);
    if (isBlock)
        close(Tok::KwEndIf, opener, "If");
    else if (kind() != Tok::Newline && kind() != Tok::KwElse && !accept(Tok::KwEndIf) && kind() != Tok::End)
        unexpected("end of line");
}

void Parser::repeatStatement(Stmt& stmt) {
    stmt.kind = StmtKind::Repeat;
    const Pos opener = token().pos;
    advance();
    statements(stmt.blocks.emplace_back(), Scope::Inner);
    if (accept(Tok::KwForever)) return;
    if (!accept(Tok::KwUntil))
        unexpected("'Until' or 'Forever' for the Repeat of line " + std::to_string(opener.line));
    stmt.exprs.push_back(expression());
}

void Parser::forStatement(Stmt& stmt) {
    const Pos opener = token().pos;
    advance();
    stmt.exprs.push_back(variable());
    expect(Tok::Equal);
    if (accept(Tok::KwEach)) {
        stmt.kind = StmtKind::ForEach;
        stmt.pos = token().pos;
        stmt.symbol = expectName("type name");
    } else {
        stmt.kind = StmtKind::For;
        stmt.exprs.push_back(expression());
        expect(Tok::KwTo);
        stmt.exprs.push_back(expression());
        if (accept(Tok::KwStep)) stmt.exprs.push_back(expression());
    }
    body(stmt.blocks.emplace_back(), Tok::KwNext, opener, "For");
}

void Parser::selectStatement(Stmt& stmt) {
    stmt.kind = StmtKind::Select;
    const Pos opener = token().pos;
    advance();
    stmt.exprs.push_back(expression());
    skipLines();
    while (accept(Tok::KwCase)) {
        expressionList(stmt.cases.emplace_back());
        if (stmt.cases.back().empty()) unexpected("expression");
        statements(stmt.blocks.emplace_back(), Scope::Inner);
    }
    if (accept(Tok::KwDefault)) statements(stmt.blocks.emplace_back(), Scope::Inner);
    close(Tok::KwEndSelect, opener, "Select");
}

void Parser::typeDeclaration() {
    const Pos opener = token().pos;
    advance();
    TypeDecl type;
    type.pos = token().pos;
    type.name = expectName("type name");
    skipLines();
    while (accept(Tok::KwField)) {
        do {
            Declaration field = declaration();
            if (field.value) failAt(field.pos, "A field cannot be given a value");
            type.fields.push_back(std::move(field));
        } while (accept(Tok::Comma));
        skipLines();
    }
    close(Tok::KwEndType, opener, "Type");
    program_.types.push_back(std::move(type));
}

void Parser::functionDeclaration() {
    const Pos opener = token().pos;
    advance();
    FunctionDecl function;
    function.pos = token().pos;
    function.name = expectName("function name");
    function.mark = typeMark();
    expect(Tok::LParen);
    if (kind() != Tok::RParen) {
        do function.parameters.push_back(declaration());
        while (accept(Tok::Comma));
    }
    expect(Tok::RParen);
    inFunction_ = true;
    statements(function.body, Scope::Inner);
    inFunction_ = false;
    function.endPos = token().pos;
    close(Tok::KwEndFunction, opener, "Function");
    program_.functions.push_back(std::move(function));
}

}
