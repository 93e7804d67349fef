// The generator's expressions: operators with the conversions that their operands need.
// Strings win over floats, floats over integers; objects can only be compared.
#include "generate/Generator.h"

#include <bit>

namespace blitz {
namespace {

Op offset(Op base, int by) { return static_cast<Op>(static_cast<int>(base) + by); }

}

void Generator::convert(const Type& from, const Type& to, const Pos& pos) {
    if (from == to) return;
    if (from.isObject() && to.isObject() && (from.kind == Type::Kind::Null || to.kind == Type::Kind::Null))
        return;
    if (from.isArray() || to.isArray() || from.isObject() || to.isObject())
        failAt(pos, "Type mismatch, cannot convert " + typeName(from) + " to " + typeName(to));
    switch (to.kind) {
    case Type::Kind::Int: emit(from.kind == Type::Kind::Float ? Op::FloatToInt : Op::StrToInt); break;
    case Type::Kind::Float: emit(from.kind == Type::Kind::Int ? Op::IntToFloat : Op::StrToFloat); break;
    default: emit(from.kind == Type::Kind::Int ? Op::IntToStr : Op::FloatToStr);
    }
}

void Generator::expressionAs(const Expr& expr, const Type& type) {
    const Type from = expression(expr);
    convert(from, type, expr.pos);
}

void Generator::condition(const Expr& expr) { expressionAs(expr, {}); }

Type Generator::expression(const Expr& expr) {
    switch (expr.kind) {
    case ExprKind::Int: emit(Op::PushInt, expr.integer); return {};
    case ExprKind::Float: emit(Op::PushInt, std::bit_cast<int32_t>(expr.real)); return {Type::Kind::Float};
    case ExprKind::String:
        emit(Op::PushStr, stringIndex(std::string(expr.text)));
        return {Type::Kind::String};
    case ExprKind::Null: emit(Op::PushNull); return {Type::Kind::Null};
    case ExprKind::Name:
    case ExprKind::Element:
    case ExprKind::Index:
    case ExprKind::Field: return load(expr);
    case ExprKind::Call: return call(expr, true);
    case ExprKind::New:
    case ExprKind::First:
    case ExprKind::Last: {
        const int32_t index = typeIndex(expr.symbol, expr.pos);
        emit(expr.kind == ExprKind::New     ? Op::New
             : expr.kind == ExprKind::First ? Op::First
                                            : Op::Last,
             index);
        return {Type::Kind::Object, index};
    }
    case ExprKind::Object: {
        const int32_t index = typeIndex(expr.symbol, expr.pos);
        expressionAs(*expr.kids[0], {});
        emit(Op::Object, index);
        return {Type::Kind::Object, index};
    }
    case ExprKind::Unary: return unary(expr);
    case ExprKind::Binary: return binary(expr);
    }
    return {};
}

Type Generator::unary(const Expr& expr) {
    const Expr& operand = *expr.kids[0];
    switch (expr.op) {
    case Tok::KwBefore:
    case Tok::KwAfter: {
        const Type type = expression(operand);
        if (!type.isObject() || type.kind == Type::Kind::Null)
            failAt(operand.pos, "An object is needed here");
        emit(expr.op == Tok::KwBefore ? Op::Before : Op::After, type.object);
        return type;
    }
    case Tok::KwHandle: {
        const Type type = expression(operand);
        if (!type.isObject()) failAt(operand.pos, "An object is needed here");
        emit(Op::Handle);
        return {};
    }
    case Tok::Tilde: expressionAs(operand, {}); return emit(Op::NotI), Type{};
    case Tok::KwNot: {
        const Type type = expression(operand);
        if (type.isNumber() && type.kind == Type::Kind::Float) return emit(Op::IsZeroF), Type{};
        convert(type, {}, operand.pos);
        return emit(Op::IsZero), Type{};
    }
    default: return signOrConversion(expr);
    }
}

Type Generator::signOrConversion(const Expr& expr) {
    const Expr& operand = *expr.kids[0];
    const Type type = expression(operand);
    switch (expr.op) {
    case Tok::KwInt: return convert(type, {}, operand.pos), Type{};
    case Tok::KwFloat: return convert(type, {Type::Kind::Float}, operand.pos), Type{Type::Kind::Float};
    case Tok::KwStr: return convert(type, {Type::Kind::String}, operand.pos), Type{Type::Kind::String};
    default: break;
    }
    if (!type.isNumber()) failAt(operand.pos, "The operator needs a number");
    const bool real = type.kind == Type::Kind::Float;
    if (expr.op == Tok::Minus) emit(real ? Op::NegF : Op::NegI);
    if (expr.op == Tok::KwAbs) emit(real ? Op::AbsF : Op::AbsI);
    if (expr.op == Tok::KwSgn) emit(real ? Op::SgnF : Op::SgnI);
    return type;
}

Type Generator::binary(const Expr& expr) {
    switch (expr.op) {
    case Tok::KwAnd:
    case Tok::KwOr:
    case Tok::KwXor:
    case Tok::KwShl:
    case Tok::KwShr:
    case Tok::KwSar: return bitwise(expr);
    case Tok::Equal:
    case Tok::NotEqual:
    case Tok::Less:
    case Tok::Greater:
    case Tok::LessEqual:
    case Tok::GreaterEqual: {
        const Type left = expression(*expr.kids[0]);
        return comparison(expr.op, left, *expr.kids[1], expr.kids[0]->pos);
    }
    default: return arithmetic(expr);
    }
}

Type Generator::bitwise(const Expr& expr) {
    expressionAs(*expr.kids[0], {});
    expressionAs(*expr.kids[1], {});
    switch (expr.op) {
    case Tok::KwAnd: emit(Op::AndI); break;
    case Tok::KwOr: emit(Op::OrI); break;
    case Tok::KwXor: emit(Op::XorI); break;
    case Tok::KwShl: emit(Op::ShlI); break;
    case Tok::KwShr: emit(Op::ShrI); break;
    default: emit(Op::SarI);
    }
    return {};
}

// Generates the right operand of `left` (on the stack) and brings both to their common type.
Type Generator::joined(const Type& left, const Expr& right, Tok op, const Pos& pos) {
    const Type other = expression(right);
    if (left.isArray() || other.isArray())
        failAt(left.isArray() ? pos : right.pos, "An array needs an index here");
    Type common;
    if (left.isString() || other.isString())
        common.kind = Type::Kind::String;
    else if (left.kind == Type::Kind::Float || other.kind == Type::Kind::Float || op == Tok::Caret)
        common.kind = Type::Kind::Float;
    if (left.isObject()) failAt(pos, "The operator cannot be applied to objects");
    convert(other, common, right.pos);
    if (common.kind == Type::Kind::String && left.kind != Type::Kind::String)
        emit(left.kind == Type::Kind::Int ? Op::IntToStr1 : Op::FloatToStr1);
    if (common.kind == Type::Kind::Float && left.kind == Type::Kind::Int) emit(Op::IntToFloat1);
    return common;
}

Type Generator::arithmetic(const Expr& expr) {
    const Type left = expression(*expr.kids[0]);
    const Type common = joined(left, *expr.kids[1], expr.op, expr.kids[0]->pos);
    if (common.isString()) {
        if (expr.op != Tok::Plus) failAt(expr.pos, "The operator cannot be applied to strings");
        emit(Op::Concat);
        return common;
    }
    const bool real = common.kind == Type::Kind::Float;
    at(expr.pos);
    switch (expr.op) {
    case Tok::Plus: emit(real ? Op::AddF : Op::AddI); break;
    case Tok::Minus: emit(real ? Op::SubF : Op::SubI); break;
    case Tok::Star: emit(real ? Op::MulF : Op::MulI); break;
    case Tok::Slash: emit(real ? Op::DivF : Op::DivI); break;
    case Tok::KwMod: emit(real ? Op::ModF : Op::ModI); break;
    default: emit(Op::PowF);
    }
    return common;
}

Type Generator::comparison(Tok op, const Type& left, const Expr& right, const Pos& pos) {
    if (left.isObject()) {
        const Type other = expression(right);
        convert(other, left, right.pos);
        if (op != Tok::Equal && op != Tok::NotEqual)
            failAt(pos, "Objects can only be compared with = and <>");
        emit(op == Tok::Equal ? Op::EqO : Op::NeO);
        return {};
    }
    const Type common = joined(left, right, op, pos);
    const Op base = common.isString() ? Op::EqS : common.kind == Type::Kind::Float ? Op::EqF : Op::EqI;
    switch (op) {
    case Tok::Equal: emit(base); break;
    case Tok::NotEqual: emit(offset(base, 1)); break;
    case Tok::Less: emit(offset(base, 2)); break;
    case Tok::Greater: emit(offset(base, 3)); break;
    case Tok::LessEqual: emit(offset(base, 4)); break;
    default: emit(offset(base, 5));
    }
    return {};
}

}
