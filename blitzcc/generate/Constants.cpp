// The generator's constant expressions: values of Const, Data, defaults, sizes and steps.
// They follow the same rules as the running program: 32 bit integers and floats.
#include "generate/Generator.h"
#include "parse/Numbers.h"

#include <bit>

namespace blitz {

Constant Generator::converted(Constant value, const Type& type, const Pos& pos) const {
    if (type == value.type) return value;
    if (type.isObject() && value.type.isObject() && value.type.kind == Type::Kind::Null) return value;
    if (type.isArray() || type.isObject() || value.type.isObject())
        failAt(pos, "Cannot convert " + typeName(value.type) + " to " + typeName(type));
    Constant result;
    result.type = type;
    const Type::Kind from = value.type.kind;
    switch (type.kind) {
    case Type::Kind::Int:
        result.integer = from == Type::Kind::Float ? floatToInt(value.real) : textToInt(value.text);
        break;
    case Type::Kind::Float:
        result.real = from == Type::Kind::Int ? static_cast<float>(value.integer) : textToFloat(value.text);
        break;
    default: result.text = from == Type::Kind::Int ? std::to_string(value.integer) : floatToText(value.real);
    }
    return result;
}

Constant Generator::constant(const Expr& expr) {
    Constant value;
    switch (expr.kind) {
    case ExprKind::Int: value.integer = expr.integer; return value;
    case ExprKind::Float:
        value.type.kind = Type::Kind::Float;
        value.real = expr.real;
        return value;
    case ExprKind::String:
        value.type.kind = Type::Kind::String;
        value.text = expr.text;
        return value;
    case ExprKind::Null: value.type.kind = Type::Kind::Null; return value;
    case ExprKind::Name: {
        const auto entry = globals_.find(expr.symbol);
        if (entry == globals_.end() || entry->second.where != Variable::Where::Constant) break;
        checkMark(expr.mark, entry->second.type, expr.pos, expr.symbol);
        return constants_[entry->second.slot];
    }
    case ExprKind::Unary: return constantUnary(expr);
    case ExprKind::Binary: return constantBinary(expr);
    default: break;
    }
    failAt(expr.pos, "The expression must be constant");
}

Constant Generator::constantUnary(const Expr& expr) {
    Constant value = constant(*expr.kids[0]);
    const Type integer;
    const bool isFloat = value.type.kind == Type::Kind::Float;
    const bool isSign =
        expr.op == Tok::Minus || expr.op == Tok::Plus || expr.op == Tok::KwAbs || expr.op == Tok::KwSgn;
    if (isSign && !value.type.isNumber()) failAt(expr.pos, "The operator needs a number");
    switch (expr.op) {
    case Tok::Plus: return value;
    case Tok::Minus:
        value.real = -value.real;
        value.integer = wrapSub(0, value.integer);
        return value;
    case Tok::KwAbs:
        if (value.real < 0) value.real = -value.real;
        if (value.integer < 0) value.integer = wrapSub(0, value.integer);
        return value;
    case Tok::KwSgn:
        value.real = static_cast<float>(value.real > 0) - static_cast<float>(value.real < 0);
        value.integer = (value.integer > 0) - (value.integer < 0);
        return value;
    case Tok::KwInt: return converted(value, integer, expr.pos);
    case Tok::KwFloat: return converted(value, {Type::Kind::Float}, expr.pos);
    case Tok::KwStr: return converted(value, {Type::Kind::String}, expr.pos);
    case Tok::Tilde:
        value = converted(value, integer, expr.pos);
        value.integer = ~value.integer;
        return value;
    case Tok::KwNot: {
        Constant result;
        if (!value.type.isNumber()) value = converted(value, integer, expr.pos);
        result.integer = isFloat ? value.real == 0 : value.integer == 0;
        return result;
    }
    default: failAt(expr.pos, "The expression must be constant");
    }
}

namespace {

bool compared(Tok op, int order) {
    switch (op) {
    case Tok::Equal: return order == 0;
    case Tok::NotEqual: return order != 0;
    case Tok::Less: return order < 0;
    case Tok::Greater: return order > 0;
    case Tok::LessEqual: return order <= 0;
    default: return order >= 0;
    }
}

int32_t integerResult(Tok op, int32_t a, int32_t b, const Pos& pos) {
    if (b == 0 && (op == Tok::Slash || op == Tok::KwMod)) failAt(pos, "Division by zero");
    switch (op) {
    case Tok::Plus: return wrapAdd(a, b);
    case Tok::Minus: return wrapSub(a, b);
    case Tok::Star: return wrapMul(a, b);
    case Tok::Slash: return b == -1 ? wrapSub(0, a) : a / b;
    case Tok::KwMod: return b == -1 ? 0 : a % b;
    case Tok::KwAnd: return a & b;
    case Tok::KwOr: return a | b;
    case Tok::KwXor: return a ^ b;
    case Tok::KwShl: return shiftLeft(a, b);
    case Tok::KwShr: return shiftRight(a, b);
    default: return shiftSigned(a, b);
    }
}

float floatResult(Tok op, float a, float b) {
    switch (op) {
    case Tok::Plus: return a + b;
    case Tok::Minus: return a - b;
    case Tok::Star: return a * b;
    case Tok::Slash: return a / b;
    case Tok::KwMod: return std::fmod(a, b);
    default: return std::pow(a, b);
    }
}

template <typename T>
int order(const T& a, const T& b) {
    return a < b ? -1 : b < a;
}

}

Constant Generator::constantBinary(const Expr& expr) {
    Constant left = constant(*expr.kids[0]);
    Constant right = constant(*expr.kids[1]);
    const bool isCompare = expr.op >= Tok::Equal && expr.op <= Tok::NotEqual;
    const bool isBits = expr.op == Tok::KwAnd || expr.op == Tok::KwOr || expr.op == Tok::KwXor ||
                        expr.op == Tok::KwShl || expr.op == Tok::KwShr || expr.op == Tok::KwSar;
    Type type;
    if (!isBits) {
        if (left.type.isString() || right.type.isString())
            type.kind = Type::Kind::String;
        else if (left.type.kind == Type::Kind::Float || right.type.kind == Type::Kind::Float ||
                 expr.op == Tok::Caret)
            type.kind = Type::Kind::Float;
    }
    if (type.isString() && !isCompare && expr.op != Tok::Plus)
        failAt(expr.pos, "The operator cannot be applied to strings");
    left = converted(left, type, expr.pos);
    right = converted(right, type, expr.pos);
    Constant result;
    if (isCompare) {
        const int by = type.isString()                  ? order(left.text, right.text)
                       : type.kind == Type::Kind::Float ? order(left.real, right.real)
                                                        : order(left.integer, right.integer);
        result.integer = compared(expr.op, by);
        return result;
    }
    result.type = type;
    if (type.isString())
        result.text = left.text + right.text;
    else if (type.kind == Type::Kind::Float)
        result.real = floatResult(expr.op, left.real, right.real);
    else
        result.integer = integerResult(expr.op, left.integer, right.integer, expr.pos);
    return result;
}

void Generator::push(const Constant& value) {
    switch (value.type.kind) {
    case Type::Kind::Int: emit(Op::PushInt, value.integer); break;
    case Type::Kind::Float: emit(Op::PushInt, std::bit_cast<int32_t>(value.real)); break;
    case Type::Kind::String: emit(Op::PushStr, stringIndex(value.text)); break;
    default: emit(Op::PushNull);
    }
}

}
