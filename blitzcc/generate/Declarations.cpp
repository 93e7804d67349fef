// The generator's declarations: constants, types, arrays, functions, data and variables. Constants and
// functions may be used before their place in the text; variables may not need declaring.
#include "generate/Generator.h"

namespace blitz {

std::string Generator::typeName(const Type& type) const {
    std::string name;
    switch (type.kind) {
    case Type::Kind::Int: name = "an integer"; break;
    case Type::Kind::Float: name = "a float"; break;
    case Type::Kind::String: name = "a string"; break;
    case Type::Kind::Null: name = "Null"; break;
    case Type::Kind::Object:
        name = "an object of type '" + code_.types[static_cast<size_t>(type.object)].name + "'";
    }
    return type.isArray() ? "an array of " + name.substr(name.find(' ') + 1) : name;
}

int32_t Generator::typeIndex(Symbol name, const Pos& pos) const {
    const auto entry = typeByName_.find(name);
    if (entry == typeByName_.end()) failAt(pos, "Type '" + symbols_.name(name) + "' not found");
    return entry->second;
}

Type Generator::typeOf(const TypeMark& mark, const Pos& pos) const {
    switch (mark.kind) {
    case TypeMark::Kind::Float: return {Type::Kind::Float};
    case TypeMark::Kind::String: return {Type::Kind::String};
    case TypeMark::Kind::Named: return {Type::Kind::Object, typeIndex(mark.name, pos)};
    default: return {};
    }
}

Type Generator::declaredType(const Declaration& item) {
    Type type = typeOf(item.mark, item.pos);
    if (!item.size) return type;
    const Constant size = converted(constant(*item.size), {}, item.size->pos);
    if (size.integer < 0 || size.integer > 16'000'000) failAt(item.size->pos, "Illegal size of an array");
    type.size = size.integer;
    return type;
}

void Generator::declareConstants() {
    for (const Declaration& item : program_.constants) {
        Constant value = constant(*item.value);
        if (item.mark.kind != TypeMark::Kind::None) {
            if (item.mark.kind == TypeMark::Kind::Named || item.size)
                failAt(item.pos, "A constant must be a number or a string");
            value = converted(value, typeOf(item.mark, item.pos), item.pos);
        } else {
            value = converted(value, {}, item.pos);
        }
        const Variable entry{Variable::Where::Constant, value.type, static_cast<uint32_t>(constants_.size())};
        if (!globals_.try_emplace(item.name, entry).second)
            failAt(item.pos, "Duplicate declaration of '" + symbols_.name(item.name) + "'");
        constants_.push_back(std::move(value));
    }
}

void Generator::declareTypes() {
    for (const TypeDecl& type : program_.types) {
        if (!typeByName_.try_emplace(type.name, static_cast<int32_t>(code_.types.size())).second)
            failAt(type.pos, "Duplicate type '" + symbols_.name(type.name) + "'");
        code_.types.emplace_back().name = symbols_.name(type.name);
    }
    types_.resize(program_.types.size());
    for (size_t i = 0; i < types_.size(); ++i) declareFields(i);
}

void Generator::declareFields(size_t index) {
    TypeCode& code = code_.types[index];
    for (const Declaration& item : program_.types[index].fields) {
        const FieldInfo info{declaredType(item), code.fields++};
        if (!types_[index].fields.try_emplace(item.name, info).second)
            failAt(item.pos, "Duplicate field '" + symbols_.name(item.name) + "'");
        const bool strings = info.type.kind == Type::Kind::String;
        if (info.type.isArray())
            code.vectors.push_back({info.index, info.type.size + 1, strings});
        else if (strings)
            code.strings.push_back(info.index);
    }
}

void Generator::declareArrays() {
    for (const ArrayDecl& item : program_.arrays) {
        const Type type = typeOf(item.mark, item.pos);
        arrays_[item.name] = {type, static_cast<uint32_t>(code_.arrays.size()), item.dimensions};
        code_.arrays.push_back(type.kind == Type::Kind::String);
    }
}

void Generator::declareFunctions() {
    for (const FunctionDecl& decl : program_.functions) {
        if (!functionByName_.try_emplace(decl.name, static_cast<int32_t>(functions_.size())).second)
            failAt(decl.pos, "Duplicate function '" + symbols_.name(decl.name) + "'");
        FunctionInfo& info = functions_.emplace_back();
        info.decl = &decl;
        info.result = typeOf(decl.mark, decl.pos);
        for (const Declaration& item : decl.parameters) {
            const Type type = declaredType(item);
            info.parameters.push_back(type);
            if (item.value) {
                info.defaults.push_back(converted(constant(*item.value), type, item.value->pos));
            } else if (!info.defaults.empty()) {
                failAt(item.pos, "A parameter without a default follows one with a default");
            } else {
                info.required = info.parameters.size();
            }
        }
    }
}

void Generator::declareData() {
    for (const ExprPtr& expr : program_.data) {
        const Constant value = constant(*expr);
        DataItem item;
        item.integer = value.integer;
        item.real = value.real;
        item.text = value.text;
        if (value.type.kind == Type::Kind::Float) item.kind = DataItem::Kind::Float;
        if (value.type.kind == Type::Kind::String) item.kind = DataItem::Kind::String;
        if (value.type.isObject()) failAt(expr->pos, "Data must be numbers or strings");
        code_.data.push_back(std::move(item));
    }
}

Generator::Variable& Generator::declare(Symbol name, const Type& type, bool global, const Pos& pos) {
    auto& table = global ? globals_ : context_.variables;
    const bool clash =
        context_.isMain && (global ? context_.variables.count(name) : globals_.count(name)) != 0;
    if (clash || table.count(name) != 0)
        failAt(pos, "Duplicate declaration of '" + symbols_.name(name) + "'");
    uint32_t& slots = global ? code_.globals : context_.code.slots;
    const Variable variable{global ? Variable::Where::Global : Variable::Where::Local, type, slots++};
    const VectorInfo vector{variable.slot, type.size + 1, type.kind == Type::Kind::String};
    if (type.isArray())
        (global ? code_.globalVectors : context_.code.vectors).push_back(vector);
    else if (vector.strings && !global)
        context_.code.strings.push_back(variable.slot);
    return table.emplace(name, variable).first->second;
}

uint32_t Generator::hiddenSlot(Storage storage) {
    const uint32_t slot = context_.code.slots++;
    if (storage == Storage::String) context_.code.strings.push_back(slot);
    return slot;
}

const Generator::Variable* Generator::findVariable(Symbol name) const {
    if (const auto local = context_.variables.find(name); local != context_.variables.end())
        return &local->second;
    const auto global = globals_.find(name);
    return global == globals_.end() ? nullptr : &global->second;
}

// The variable of a name; the first use of an undeclared one declares it, typed by its mark.
Generator::Variable Generator::variableFor(const Expr& name) {
    if (const Variable* known = findVariable(name.symbol)) {
        checkMark(name.mark, known->type, name.pos, name.symbol);
        return *known;
    }
    return declare(name.symbol, typeOf(name.mark, name.pos), false, name.pos);
}

void Generator::checkMark(const TypeMark& mark, const Type& type, const Pos& pos, Symbol name) const {
    if (mark.kind == TypeMark::Kind::None) return;
    const Type written = typeOf(mark, pos);
    if (written.kind != type.kind || written.object != type.object)
        failAt(pos, "Type mismatch, '" + symbols_.name(name) + "' is " + typeName(type));
}

void Generator::generateMain() {
    context_ = {};
    context_.code.name = "main program";
    block(program_.main);
    at(program_.endPos);
    emit(Op::End);
    mainLabels_ = context_.labels;
    finishContext();
    code_.functions[0] = std::move(context_.code);
}

void Generator::generateFunction(size_t index) {
    const FunctionInfo& info = functions_[index];
    context_ = {};
    context_.isMain = false;
    context_.result = info.result;
    context_.code.name = symbols_.name(info.decl->name);
    context_.code.entry = static_cast<int32_t>(here());
    for (size_t i = 0; i < info.parameters.size(); ++i) {
        const Declaration& item = info.decl->parameters[i];
        declare(item.name, info.parameters[i], false, item.pos);
    }
    context_.code.parameters = context_.code.slots;
    context_.code.vectors.clear(); // an array parameter is the caller's
    block(info.decl->body);
    at(info.decl->endPos);
    emit(Op::ReturnVoid);
    finishContext();
    code_.functions[index + 1] = std::move(context_.code);
}

void Generator::finishContext() {
    for (const PendingJump& jump : context_.jumps) {
        Ins& ins = code_.code[jump.ins];
        // Data belongs to the main program, so Restore looks for its labels there.
        const auto& labels = ins.op == Op::Restore ? mainLabels_ : context_.labels;
        const auto label = labels.find(jump.label);
        if (label == labels.end()) failAt(jump.pos, "Label '" + symbols_.name(jump.label) + "' not found");
        ins.a = ins.op == Op::Restore ? label->second.data : label->second.target;
    }
}

}
