// The parser's simple statements: assignment, call, jumps, data, declarations and objects.
// A name at the start is a call, unless an assignment, a field or an index follows it.
#include "parse/Parser.h"

namespace blitz {

bool Parser::statement(Block& block, Scope scope) {
    if (kind() == Tok::KwInclude) {
        includeStatement(block);
        return true;
    }
    if (topStatement(scope)) return true;
    Stmt stmt;
    stmt.pos = token().pos;
    if (!simpleStatement(stmt) && !jumpStatement(stmt) && !blockStatement(stmt)) return false;
    block.push_back(std::move(stmt));
    return true;
}

// The declarations that are gathered apart from the statements.
bool Parser::topStatement(Scope scope) {
    const Tok word = kind();
    switch (word) {
    case Tok::KwType:
    case Tok::KwFunction:
    case Tok::KwConst:
    case Tok::KwData: break;
    default: return false;
    }
    if (inFunction_ || (scope != Scope::Main && (word == Tok::KwType || word == Tok::KwFunction)))
        failAt(token().pos, tokenName(word) + " can only appear in the main program");
    if (word == Tok::KwType) {
        typeDeclaration();
    } else if (word == Tok::KwFunction) {
        functionDeclaration();
    } else if (word == Tok::KwConst) {
        advance();
        do {
            Declaration item = declaration();
            if (!item.value) failAt(item.pos, "A constant must have a value");
            program_.constants.push_back(std::move(item));
        } while (accept(Tok::Comma));
    } else {
        advance();
        expressionList(program_.data);
        if (program_.data.empty()) unexpected("expression");
    }
    return true;
}

bool Parser::simpleStatement(Stmt& stmt) {
    switch (kind()) {
    case Tok::Name: nameStatement(stmt); return true;
    case Tok::KwLocal:
    case Tok::KwGlobal:
        stmt.kind = kind() == Tok::KwLocal ? StmtKind::Local : StmtKind::Global;
        if (inFunction_ && stmt.kind == StmtKind::Global)
            failAt(token().pos, "'Global' can only appear in the main program");
        advance();
        declarationList(stmt.declarations);
        return true;
    case Tok::KwDim: dimStatement(stmt); return true;
    case Tok::KwRead:
        stmt.kind = StmtKind::Read;
        advance();
        do stmt.exprs.push_back(variable());
        while (accept(Tok::Comma));
        return true;
    case Tok::KwDelete: deleteStatement(stmt); return true;
    case Tok::KwInsert: insertStatement(stmt); return true;
    case Tok::KwEnd:
    case Tok::KwStop:
        stmt.kind = kind() == Tok::KwEnd ? StmtKind::End : StmtKind::Stop;
        advance();
        return true;
    default: return false;
    }
}

bool Parser::jumpStatement(Stmt& stmt) {
    switch (kind()) {
    case Tok::Dot:
        stmt.kind = StmtKind::Label;
        advance();
        stmt.symbol = expectName("label name");
        stmt.dataIndex = static_cast<uint32_t>(program_.data.size());
        return true;
    case Tok::KwGoto:
    case Tok::KwGosub:
        stmt.kind = kind() == Tok::KwGoto ? StmtKind::Goto : StmtKind::Gosub;
        advance();
        stmt.pos = token().pos;
        stmt.symbol = expectName("label name");
        return true;
    case Tok::KwRestore:
        stmt.kind = StmtKind::Restore;
        advance();
        if ((stmt.hasSymbol = kind() == Tok::Name)) {
            stmt.pos = token().pos;
            stmt.symbol = expectName("label name");
        }
        return true;
    case Tok::KwReturn:
        stmt.kind = StmtKind::Return;
        advance();
        if (startsExpression()) stmt.exprs.push_back(expression());
        return true;
    case Tok::KwExit:
        stmt.kind = StmtKind::Exit;
        advance();
        return true;
    default: return false;
    }
}

void Parser::nameStatement(Stmt& stmt) {
    size_t behind = 1;
    if (kind(1) == Tok::Percent || kind(1) == Tok::Hash || kind(1) == Tok::Dollar) behind = 2;
    if (kind(1) == Tok::Dot && kind(2) == Tok::Name) behind = 3;
    const Tok next = kind(behind);
    const bool isArray = next == Tok::LParen && arrays_.count(token().symbol) != 0;
    if (isArray || next == Tok::Equal || next == Tok::Backslash || next == Tok::LBracket) {
        stmt.kind = StmtKind::Assign;
        stmt.exprs.push_back(variable());
        expect(Tok::Equal);
        stmt.exprs.push_back(expression());
        return;
    }
    stmt.kind = StmtKind::Call;
    ExprPtr call = make(ExprKind::Call);
    call->symbol = token().symbol;
    advance();
    call->mark = typeMark();
    callArguments(*call);
    stmt.exprs.push_back(finish(std::move(call)));
}

// Print (a)+b has an argument that begins with a bracket, Text (x,y,t$) a bracketed list.
bool Parser::wholeInBrackets() const {
    size_t ahead = 1;
    for (int nest = 1; nest > 0; ++ahead) {
        switch (kind(ahead)) {
        case Tok::LParen: ++nest; break;
        case Tok::RParen: --nest; break;
        case Tok::End:
        case Tok::Newline:
        case Tok::Colon: failAt(token().pos, "Mismatched brackets");
        default: break;
        }
    }
    switch (kind(ahead)) {
    case Tok::Plus:
    case Tok::Minus:
    case Tok::Star:
    case Tok::Slash:
    case Tok::Caret:
    case Tok::Equal:
    case Tok::Less:
    case Tok::Greater:
    case Tok::LessEqual:
    case Tok::GreaterEqual:
    case Tok::NotEqual:
    case Tok::KwAnd:
    case Tok::KwOr:
    case Tok::KwXor:
    case Tok::KwMod:
    case Tok::KwShl:
    case Tok::KwShr:
    case Tok::KwSar:
    case Tok::Comma: return false;
    default: return true;
    }
}

void Parser::callArguments(Expr& call) {
    if (kind() == Tok::LParen && wholeInBrackets()) {
        advance();
        expressionList(call.kids);
        expect(Tok::RParen);
    } else {
        expressionList(call.kids);
    }
}

void Parser::includeStatement(Block& block) {
    advance();
    const Token name = token();
    expect(Tok::String);
    if (inFunction_) failAt(name.pos, "'Include' can only appear in the main program");
    std::string reason;
    const int file = sources_.include(name.text, name.pos.file, reason);
    if (file == -2) failAt(name.pos, "Unable to include \"" + std::string(name.text) + "\". " + reason);
    if (file < 0) return;
    const Level level(*this);
    parseFile(static_cast<uint32_t>(file), block);
}

void Parser::dimStatement(Stmt& stmt) {
    stmt.kind = StmtKind::Dim;
    advance();
    ExprPtr array = make(ExprKind::Element);
    array->symbol = expectName("array name");
    array->mark = typeMark();
    expect(Tok::LParen);
    expressionList(array->kids);
    if (array->kids.empty()) unexpected("expression");
    expect(Tok::RParen);
    const auto [entry, isNew] = arrays_.try_emplace(array->symbol, program_.arrays.size());
    if (isNew) {
        program_.arrays.push_back({array->symbol, array->mark, array->pos, array->kids.size()});
    } else if (program_.arrays[entry->second].dimensions != array->kids.size()) {
        failAt(array->pos, "The array was declared with another number of dimensions");
    }
    stmt.exprs.push_back(finish(std::move(array)));
    if (kind() != Tok::Comma) return;
    // Dim a(1),b(2) is a chain of statements: the rest is carried in a block of its own.
    Stmt more;
    more.pos = token().pos;
    const Level level(*this);
    dimStatement(more);
    stmt.blocks.emplace_back().push_back(std::move(more));
}

void Parser::deleteStatement(Stmt& stmt) {
    advance();
    if (accept(Tok::KwEach)) {
        stmt.kind = StmtKind::DeleteEach;
        stmt.pos = token().pos;
        stmt.symbol = expectName("type name");
    } else {
        stmt.kind = StmtKind::Delete;
        stmt.exprs.push_back(expression());
    }
}

void Parser::insertStatement(Stmt& stmt) {
    stmt.kind = StmtKind::Insert;
    advance();
    stmt.exprs.push_back(expression());
    stmt.op = kind();
    if (!accept(Tok::KwBefore) && !accept(Tok::KwAfter)) unexpected("'Before' or 'After'");
    stmt.exprs.push_back(expression());
}

void Parser::declarationList(std::vector<Declaration>& list) {
    do list.push_back(declaration());
    while (accept(Tok::Comma));
}

Declaration Parser::declaration() {
    Declaration item;
    item.pos = token().pos;
    item.name = expectName("variable name");
    item.mark = typeMark();
    if (accept(Tok::LBracket)) {
        item.size = expression();
        expect(Tok::RBracket);
    }
    if (accept(Tok::Equal)) {
        item.value = expression();
        if (item.size) failAt(item.pos, "A fixed array cannot be given a value");
    }
    return item;
}

}
