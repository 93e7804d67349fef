// Expressions of each kind. Divisors are literals and roots are of absolute values, so that nothing fails
// when run.
#include "Expressions.h"

#include "Words.h"

namespace generator {

std::string Expressions::literal(Kind kind) {
    const int roll = random.from(0, 9);
    if (kind == Kind::Text) return cat({"\"", random.pick(phrases), "\""});
    if (kind == Kind::Int) {
        if (roll == 0) return cat({"$", std::to_string(random.from(10, 99))});
        return std::to_string(random.from(0, roll < 7 ? 12 : 640));
    }
    if (roll == 0) return cat({".", std::to_string(random.from(1, 9))});
    if (roll == 1) return std::to_string(random.from(1, 20)) + ".";
    return cat({std::to_string(random.from(0, 99)), ".", std::to_string(random.from(0, 99))});
}

std::string Expressions::element(const ArrayInfo& array, const Scope& scope) {
    std::string text = array.name + "(";
    for (std::size_t i = 0; i < array.sizes.size(); ++i) {
        if (i) text += ", ";
        const bool counted = !scope.indices.empty() && random.percent(60);
        text += counted ? random.pick(scope.indices) : std::to_string(random.from(0, array.sizes[i]));
    }
    return text + ")";
}

// A global of that kind; "" when a few tries find none.
std::string Expressions::global(Kind kind) {
    for (int tries = 0; tries < 5; ++tries) {
        const Variable& variable = random.pick(model.globals);
        if (variable.kind == kind) return variable.name;
    }
    return "";
}

// A variable of that kind: local, field, global, constant or array element; a literal when there is none.
std::string Expressions::name(Kind kind, const Scope& scope) {
    std::vector<std::string> found;
    for (const Variable& local : scope.locals)
        if (local.kind == kind) found.push_back(local.name);
    for (const Variable& field : scope.fields)
        if (field.kind == kind) found.push_back(field.name);
    if (kind == Kind::Int) found.insert(found.end(), scope.indices.begin(), scope.indices.end());
    const int roll = random.from(1, 100);
    if (!found.empty() && roll <= 65) return random.pick(found);
    if (kind == Kind::Int && roll <= 75) return random.pick(model.constants).name;
    const std::string shared = global(kind);
    if (!shared.empty() && roll <= 90) return shared;
    const ArrayInfo& array = random.pick(model.arrays);
    if (array.kind == kind) return element(array, scope);
    return found.empty() ? literal(kind) : random.pick(found);
}

std::string Expressions::target(Kind kind, const Scope& scope) {
    std::vector<std::string> found;
    for (const Variable& local : scope.locals)
        if (local.kind == kind) found.push_back(local.name);
    for (const Variable& field : scope.fields)
        if (field.kind == kind) found.push_back(field.name);
    const std::string shared = global(kind);
    if (!shared.empty()) found.push_back(shared);
    const ArrayInfo& array = random.pick(model.arrays);
    if (array.kind == kind) found.push_back(element(array, scope));
    return found.empty() ? "" : random.pick(found);
}

const FunctionInfo* Expressions::callee(const Scope& scope, const Kind* result) {
    if (model.functions.empty()) return nullptr;
    for (int tries = 0; tries < 6; ++tries) {
        const FunctionInfo& function = random.pick(model.functions);
        if (function.level < scope.callBelow && (!result || function.result == *result)) return &function;
    }
    return nullptr;
}

std::string Expressions::arguments(const FunctionInfo& function, const Scope& scope) {
    std::string text;
    for (const Variable& parameter : function.parameters) {
        if (!text.empty()) text += ", ";
        text += of(parameter.kind, scope, 0);
    }
    return text;
}

std::string Expressions::call(const Scope& scope, bool asStatement) {
    const FunctionInfo* function = callee(scope, nullptr);
    if (!function) return "";
    const std::string list = arguments(*function, scope);
    // "$12" or ".5" after the name would read as a part of the name.
    const bool plain = !list.empty() && list[0] != '$' && list[0] != '.';
    const bool bare = asStatement && plain && random.percent(20);
    return bare ? function->name + " " + list : function->name + "(" + list + ")";
}

std::string Expressions::of(Kind kind, const Scope& scope, int depth) {
    if (depth <= 0) return random.percent(35) ? literal(kind) : name(kind, scope);
    if (random.percent(10))
        if (const FunctionInfo* function = callee(scope, &kind))
            return function->name + "(" + arguments(*function, scope) + ")";
    if (kind == Kind::Int) return intOf(scope, depth);
    return kind == Kind::Float ? floatOf(scope, depth) : textOf(scope, depth);
}

std::string Expressions::intOf(const Scope& scope, int depth) {
    auto inner = [&](Kind kind) { return of(kind, scope, depth - 1); };
    const std::string number = std::to_string(random.from(2, 16));
    switch (random.from(0, 15)) {
    case 0: return cat({inner(Kind::Int), " + ", inner(Kind::Int)});
    case 1: return cat({inner(Kind::Int), " - ", inner(Kind::Int)});
    case 2: return cat({inner(Kind::Int), " * ", number});
    case 3: return cat({"(", inner(Kind::Int), ") Mod ", number});
    case 4: return cat({"(", inner(Kind::Int), ") / ", number});
    case 5: return cat({"Len(", inner(Kind::Text), ")"});
    case 6: return cat({"Int(", inner(Kind::Float), ")"});
    case 7: return cat({"Abs(", inner(Kind::Int), ")"});
    case 8: return cat({"Rand(1, ", number, ")"});
    case 9: return cat({"Instr(", inner(Kind::Text), ", ", literal(Kind::Text), ")"});
    case 10: return cat({"(", name(Kind::Int, scope), " Shr 2) And 255"});
    case 11: return cat({"(", name(Kind::Int, scope), " Shl 1) Or 1"});
    default: return name(Kind::Int, scope);
    }
}

std::string Expressions::floatOf(const Scope& scope, int depth) {
    auto inner = [&] { return of(Kind::Float, scope, depth - 1); };
    auto number = [&](int low, int high) { return std::to_string(random.from(low, high)); };
    switch (random.from(0, 13)) {
    case 0: return cat({inner(), " + ", inner()});
    case 1: return cat({inner(), " - ", inner()});
    case 2: return cat({inner(), " * ", inner()});
    case 3: return cat({"(", inner(), ") / ", number(2, 9), "."});
    case 4: return cat({"Sin(", inner(), ")"});
    case 5: return cat({"Cos(", inner(), ") * ", literal(Kind::Float)});
    case 6: return cat({"Sqr(Abs(", inner(), "))"});
    case 7: return cat({"Rnd(", number(0, 4), ", ", number(5, 90), ")"});
    case 8: return cat({"Float(", of(Kind::Int, scope, depth - 1), ")"});
    case 9: return cat({"Floor(", inner(), ")"});
    default: return name(Kind::Float, scope);
    }
}

std::string Expressions::textOf(const Scope& scope, int depth) {
    auto inner = [&] { return of(Kind::Text, scope, depth - 1); };
    auto number = [&](int low, int high) { return std::to_string(random.from(low, high)); };
    switch (random.from(0, 12)) {
    case 0: return cat({inner(), " + ", inner()});
    case 1: return cat({inner(), " + ", name(Kind::Int, scope)});
    case 2: return cat({"Left$(", inner(), ", ", number(1, 9), ")"});
    case 3: return cat({"Mid$(", inner(), ", ", number(1, 4), ", 3)"});
    case 4: return cat({"Upper$(", inner(), ")"});
    case 5: return cat({"Str$(", name(Kind::Float, scope), ")"});
    case 6: return cat({"RSet$(", inner(), ", ", number(6, 24), ")"});
    case 7: return cat({"Chr$(", number(65, 90), ") + ", inner()});
    case 8: return cat({"Replace$(", inner(), ", \" \", \"_\")"});
    default: return name(Kind::Text, scope);
    }
}

std::string Expressions::condition(const Scope& scope, int depth) {
    static const Words comparisons = {"<", ">", "=", "<>", "<=", ">="};
    if (depth > 0 && random.percent(25)) {
        const std::string joint = random.percent(60) ? " And " : " Or ";
        return cat({condition(scope, depth - 1), joint, condition(scope, depth - 1)});
    }
    const int roll = random.from(1, 10);
    if (roll == 1) return cat({"(Not ", name(Kind::Int, scope), ")"});
    if (roll == 2)
        return cat({name(Kind::Text, scope), random.percent(50) ? " = " : " <> ", literal(Kind::Text)});
    const Kind kind = roll < 5 ? Kind::Float : Kind::Int;
    return cat({name(kind, scope), " ", random.pick(comparisons), " ", of(kind, scope, 0)});
}

}
