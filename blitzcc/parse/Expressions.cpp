// The parser's expressions, lowest precedence first: Not, And Or Xor, comparisons, + -, shifts,
// * / Mod, ^, signs and conversions, then variables, calls and literals.
#include "parse/Parser.h"

#include <algorithm>

namespace blitz {

// Long chains of operators make a deep tree, which is walked by recursion.
static constexpr uint32_t deepestTree = 1500;

ExprPtr Parser::make(ExprKind kind) const {
    auto node = std::make_unique<Expr>();
    node->kind = kind;
    node->pos = token().pos;
    return node;
}

ExprPtr Parser::finish(ExprPtr node) {
    for (const ExprPtr& kid : node->kids) node->depth = std::max(node->depth, kid->depth + 1);
    if (node->depth > deepestTree) failAt(node->pos, "The expression is too complex");
    return node;
}

ExprPtr Parser::binary(ExprPtr left, Tok op, ExprPtr right) {
    ExprPtr node = std::make_unique<Expr>();
    node->kind = ExprKind::Binary;
    node->op = op;
    node->pos = left->pos;
    if (right->pos.line == node->pos.line) node->pos.endColumn = right->pos.endColumn;
    node->kids.reserve(2);
    node->kids.push_back(std::move(left));
    node->kids.push_back(std::move(right));
    return finish(std::move(node));
}

ExprPtr Parser::expression() {
    const Level level(*this);
    if (kind() != Tok::KwNot) return logical();
    ExprPtr node = make(ExprKind::Unary);
    node->op = Tok::KwNot;
    advance();
    node->kids.push_back(kind() == Tok::KwNot ? expression() : logical());
    return finish(std::move(node));
}

ExprPtr Parser::logical() {
    ExprPtr left = comparison();
    for (Tok op = kind(); op == Tok::KwAnd || op == Tok::KwOr || op == Tok::KwXor; op = kind()) {
        advance();
        left = binary(std::move(left), op, comparison());
    }
    return left;
}

ExprPtr Parser::comparison() {
    ExprPtr left = sum();
    for (Tok op = kind(); op >= Tok::Equal && op <= Tok::NotEqual; op = kind()) {
        advance();
        left = binary(std::move(left), op, sum());
    }
    return left;
}

ExprPtr Parser::sum() {
    ExprPtr left = shift();
    for (Tok op = kind(); op == Tok::Plus || op == Tok::Minus; op = kind()) {
        advance();
        left = binary(std::move(left), op, shift());
    }
    return left;
}

ExprPtr Parser::shift() {
    ExprPtr left = product();
    for (Tok op = kind(); op == Tok::KwShl || op == Tok::KwShr || op == Tok::KwSar; op = kind()) {
        advance();
        left = binary(std::move(left), op, product());
    }
    return left;
}

ExprPtr Parser::product() {
    ExprPtr left = power();
    for (Tok op = kind(); op == Tok::Star || op == Tok::Slash || op == Tok::KwMod; op = kind()) {
        advance();
        left = binary(std::move(left), op, power());
    }
    return left;
}

ExprPtr Parser::power() {
    ExprPtr left = unary();
    while (accept(Tok::Caret)) left = binary(std::move(left), Tok::Caret, unary());
    return left;
}

ExprPtr Parser::unary() {
    const Tok op = kind();
    switch (op) {
    case Tok::Plus:
    case Tok::Minus:
    case Tok::Tilde:
    case Tok::KwAbs:
    case Tok::KwSgn:
    case Tok::KwInt:
    case Tok::KwFloat:
    case Tok::KwStr:
    case Tok::KwBefore:
    case Tok::KwAfter:
    case Tok::KwHandle:
    case Tok::KwNot:
    case Tok::KwObject: break;
    default: return primary();
    }
    const Level level(*this);
    ExprPtr node = make(ExprKind::Unary);
    node->op = op;
    advance();
    if (op == Tok::KwObject) {
        node->kind = ExprKind::Object;
        accept(Tok::Dot);
        node->symbol = expectName("type name");
        // Object.Thing(handle)\field reads a field of the object, not of the handle.
        if (accept(Tok::LParen)) {
            node->kids.push_back(expression());
            expect(Tok::RParen);
            return variableTail(finish(std::move(node)));
        }
    } else if (op == Tok::KwInt || op == Tok::KwFloat || op == Tok::KwStr || op == Tok::KwAbs ||
               op == Tok::KwSgn) {
        // Int%(x), Float#(x) and Str$(x) may carry the mark of their result.
        if (kind() == Tok::Percent || kind() == Tok::Hash || kind() == Tok::Dollar) advance();
    }
    node->kids.push_back(op == Tok::KwNot ? comparison() : unary());
    return finish(std::move(node));
}

ExprPtr Parser::primary() {
    const Level level(*this);
    switch (kind()) {
    case Tok::LParen: {
        advance();
        ExprPtr node = expression();
        expect(Tok::RParen);
        return variableTail(std::move(node));
    }
    case Tok::KwNew: return typed(ExprKind::New);
    case Tok::KwFirst: return typed(ExprKind::First);
    case Tok::KwLast: return typed(ExprKind::Last);
    case Tok::Name: return variable();
    default: return literal();
    }
}

ExprPtr Parser::typed(ExprKind kindOfNode) {
    ExprPtr node = make(kindOfNode);
    advance();
    node->pos = token().pos;
    node->symbol = expectName("type name");
    return node;
}

ExprPtr Parser::literal() {
    ExprPtr node = make(ExprKind::Int);
    switch (kind()) {
    case Tok::Int: node->integer = token().integer; break;
    case Tok::KwTrue: node->integer = 1; break;
    case Tok::KwFalse: break;
    case Tok::Float:
        node->kind = ExprKind::Float;
        node->real = token().real;
        break;
    case Tok::KwPi:
        node->kind = ExprKind::Float;
        node->real = 3.1415926535897932385f;
        if (kind(1) == Tok::Hash) advance();
        break;
    case Tok::String:
        node->kind = ExprKind::String;
        node->text = token().text;
        break;
    case Tok::KwNull: node->kind = ExprKind::Null; break;
    default: unexpected("expression");
    }
    advance();
    return node;
}

// A variable, an array's element or a call, with the fields and indices after it.
ExprPtr Parser::variable() {
    ExprPtr node = make(ExprKind::Name);
    node->symbol = expectName("variable name");
    node->mark = typeMark();
    if (kind() == Tok::LParen) {
        node->kind = arrays_.count(node->symbol) != 0 ? ExprKind::Element : ExprKind::Call;
        advance();
        expressionList(node->kids);
        if (node->kind == ExprKind::Element && node->kids.empty()) unexpected("expression");
        expect(Tok::RParen);
        node = finish(std::move(node));
    }
    return variableTail(std::move(node));
}

ExprPtr Parser::variableTail(ExprPtr node) {
    for (;;) {
        if (kind() == Tok::Backslash) {
            advance();
            ExprPtr field = make(ExprKind::Field);
            field->symbol = expectName("field name");
            field->mark = typeMark();
            field->kids.push_back(std::move(node));
            node = finish(std::move(field));
        } else if (kind() == Tok::LBracket) {
            ExprPtr index = make(ExprKind::Index);
            advance();
            index->kids.push_back(std::move(node));
            index->kids.push_back(expression());
            expect(Tok::RBracket);
            node = finish(std::move(index));
        } else {
            return node;
        }
    }
}

bool Parser::startsExpression() const {
    switch (kind()) {
    case Tok::Name:
    case Tok::Int:
    case Tok::Float:
    case Tok::String:
    case Tok::LParen:
    case Tok::Plus:
    case Tok::Minus:
    case Tok::Tilde:
    case Tok::KwAbs:
    case Tok::KwSgn:
    case Tok::KwInt:
    case Tok::KwFloat:
    case Tok::KwStr:
    case Tok::KwBefore:
    case Tok::KwAfter:
    case Tok::KwHandle:
    case Tok::KwNot:
    case Tok::KwObject:
    case Tok::KwNew:
    case Tok::KwFirst:
    case Tok::KwLast:
    case Tok::KwTrue:
    case Tok::KwFalse:
    case Tok::KwPi:
    case Tok::KwNull: return true;
    default: return false;
    }
}

// Zero or more expressions with commas between them.
void Parser::expressionList(std::vector<ExprPtr>& list) {
    if (!startsExpression()) return;
    do list.push_back(expression());
    while (accept(Tok::Comma));
}

}
