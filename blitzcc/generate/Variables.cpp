// The generator's loads and stores: variables, arrays, fields and elements. The value to store is on the
// stack before the parts of its address are generated.
#include "generate/Generator.h"

#include <bit>

namespace blitz {

const Generator::ArrayInfo& Generator::array(const Expr& expr) {
    const ArrayInfo& info = arrays_.at(expr.symbol);
    checkMark(expr.mark, info.type, expr.pos, expr.symbol);
    if (expr.kids.size() != info.dimensions)
        failAt(expr.pos, "The array '" + symbols_.name(expr.symbol) + "' has " +
                             std::to_string(info.dimensions) + " dimensions");
    return info;
}

const Generator::FieldInfo& Generator::field(const Expr& expr, const Type& object) const {
    if (!object.isObject() || object.kind == Type::Kind::Null)
        failAt(expr.kids[0]->pos, "The variable must be an object to have fields");
    const auto& fields = types_[static_cast<size_t>(object.object)].fields;
    const auto entry = fields.find(expr.symbol);
    if (entry == fields.end())
        failAt(expr.pos, "Type '" + code_.types[static_cast<size_t>(object.object)].name +
                             "' has no field '" + symbols_.name(expr.symbol) + "'");
    checkMark(expr.mark, entry->second.type, expr.pos, expr.symbol);
    return entry->second;
}

// Generates what a field or an element needs on the stack besides the value, and gives its type.
Type Generator::address(const Expr& expr) {
    if (expr.kind == ExprKind::Element) {
        const ArrayInfo& info = array(expr);
        for (const ExprPtr& index : expr.kids) expressionAs(*index, {});
        return info.type;
    }
    Type type = expression(*expr.kids[0]);
    at(expr.pos);
    if (expr.kind == ExprKind::Field) return field(expr, type).type;
    if (!type.isArray()) failAt(expr.kids[0]->pos, "The variable is not an array");
    expressionAs(*expr.kids[1], {});
    type.size = -1;
    return type;
}

Type Generator::load(const Expr& expr) {
    if (expr.kind == ExprKind::Name) {
        const Variable variable = variableFor(expr);
        if (variable.where == Variable::Where::Constant) {
            push(constants_[variable.slot]);
            return variable.type;
        }
        const bool local = variable.where == Variable::Where::Local;
        const Op plain = local ? Op::LoadL : Op::LoadG;
        const Op counted = local ? Op::LoadLS : Op::LoadGS;
        emit(variable.type.isString() ? counted : plain, static_cast<int32_t>(variable.slot));
        return variable.type;
    }
    const Type type = address(expr);
    at(expr.pos);
    if (expr.kind == ExprKind::Element) {
        const ArrayInfo& info = arrays_.at(expr.symbol);
        emit(type.isString() ? Op::LoadES : Op::LoadE, static_cast<int32_t>(info.index),
             static_cast<uint32_t>(info.dimensions));
    } else if (expr.kind == ExprKind::Index) {
        emit(type.isString() ? Op::LoadVS : Op::LoadV);
    } else {
        const Type object = targetType(*expr.kids[0]);
        emit(type.isString() ? Op::LoadFS : Op::LoadF, static_cast<int32_t>(field(expr, object).index));
    }
    return type;
}

// The type of an expression that was or will be generated, without generating it again.
Type Generator::targetType(const Expr& target) {
    switch (target.kind) {
    case ExprKind::Name: return variableFor(target).type;
    case ExprKind::Element: return array(target).type;
    case ExprKind::Index: {
        Type type = targetType(*target.kids[0]);
        if (!type.isArray()) failAt(target.kids[0]->pos, "The variable is not an array");
        type.size = -1;
        return type;
    }
    case ExprKind::Field: return field(target, targetType(*target.kids[0])).type;
    case ExprKind::New:
    case ExprKind::First:
    case ExprKind::Last:
    case ExprKind::Object: return {Type::Kind::Object, typeIndex(target.symbol, target.pos)};
    case ExprKind::Unary:
        if (target.op == Tok::KwBefore || target.op == Tok::KwAfter) return targetType(*target.kids[0]);
        break;
    case ExprKind::Call:
        if (const auto entry = functionByName_.find(target.symbol); entry != functionByName_.end())
            return functions_[static_cast<size_t>(entry->second)].result;
        break;
    default: break;
    }
    return {};
}

// Converts the value on the stack from its type and stores it into a variable, element or field.
void Generator::store(const Expr& target, const Type& value) {
    if (target.kind == ExprKind::Call || target.kind > ExprKind::Field)
        failAt(target.pos, "A value cannot be assigned to this expression");
    const Type type = targetType(target);
    if (type.isArray()) failAt(target.pos, "An array cannot be assigned to");
    convert(value, type, target.pos);
    const bool counted = type.isString();
    if (target.kind == ExprKind::Name) {
        const Variable variable = variableFor(target);
        if (variable.where == Variable::Where::Constant)
            failAt(target.pos, "A constant cannot be assigned to");
        const bool local = variable.where == Variable::Where::Local;
        const Op plain = local ? Op::StoreL : Op::StoreG;
        emit(counted ? local ? Op::StoreLS : Op::StoreGS : plain, static_cast<int32_t>(variable.slot));
        return;
    }
    address(target);
    at(target.pos);
    if (target.kind == ExprKind::Element) {
        const ArrayInfo& info = arrays_.at(target.symbol);
        emit(counted ? Op::StoreES : Op::StoreE, static_cast<int32_t>(info.index),
             static_cast<uint32_t>(info.dimensions));
    } else if (target.kind == ExprKind::Index) {
        emit(counted ? Op::StoreVS : Op::StoreV);
    } else {
        emit(counted ? Op::StoreFS : Op::StoreF,
             static_cast<int32_t>(field(target, targetType(*target.kids[0])).index));
    }
}

}
