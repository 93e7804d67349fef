// Statements of a function's body. A block is given a budget of lines and uses all of it.
#include "Statements.h"

#include "Words.h"

#include <algorithm>

namespace generator {

namespace {

// Loops nest to this depth at most; deeper code is not read by anyone, and would run for long.
constexpr int deepest = 4;

// Inside a loop only functions without calls of their own are called, which bounds how long a program runs.
Scope looped(Scope scope) {
    scope.callBelow = std::min(scope.callBelow, 1);
    return scope;
}

}

std::string Statements::assignment(const Scope& scope) {
    static const Kind kinds[] = {Kind::Int, Kind::Int, Kind::Float, Kind::Text};
    const Kind kind = random.pick(kinds);
    const std::string target = expressions.target(kind, scope);
    if (target.empty()) return "Print " + expressions.of(Kind::Text, scope, 1);
    if (kind == Kind::Int && random.percent(35)) {
        const std::string sign = random.percent(60) ? " + " : " - ";
        return cat({target, " = ", target, sign, std::to_string(random.from(1, 9))});
    }
    // A text that was built of itself would grow without bound in a loop.
    if (kind == Kind::Text) return cat({target, " = Left$(", expressions.of(kind, scope, 1), ", 40)"});
    const std::string value = expressions.of(kind, scope, random.percent(25) ? 2 : 1);
    return cat({target, " = ", value, value == target ? " * 2" : ""});
}

std::string Statements::single(const Scope& scope) {
    const int roll = random.from(1, 100);
    if (roll <= 12) {
        const std::string call = expressions.call(scope, true);
        if (!call.empty()) return call;
    }
    if (roll <= 18) return cat({"If ", expressions.condition(scope), " Then ", assignment(scope)});
    if (roll <= 20) return cat({"If ", expressions.condition(scope, 0), " ", assignment(scope)});
    if (roll <= 26) return cat({"Print ", expressions.of(Kind::Text, scope, 1)});
    if (roll <= 27) return cat({assignment(scope), " : ", assignment(scope)});
    if (roll <= 32) return cat({assignment(scope), "\t; ", random.pick(remarks)});
    return assignment(scope);
}

void Statements::body(int budget, int indent, const Scope& scope) {
    while (budget > 0) {
        const int roll = random.from(1, 100);
        if (budget >= 4 && indent < deepest && roll <= 30)
            budget -= block(std::min(budget, random.from(4, 14)), indent, scope);
        else if (budget >= 3 && roll <= 36) {
            put(indent, "; " + random.pick(remarks));
            --budget;
        } else if (budget >= 3 && roll <= 40) {
            lines.push_back("");
            --budget;
        } else {
            put(indent, single(scope));
            --budget;
        }
    }
}

// Writes a block of at most `budget` lines, 4 or more. Returns how many it wrote.
int Statements::block(int budget, int indent, const Scope& scope) {
    switch (random.from(0, scope.mayCreate ? 8 : 4)) {
    case 0:
    case 1: forBlock(budget, indent, scope); break;
    case 2: eachBlock(budget, indent, scope); break;
    case 3: whileBlock(budget, indent, scope); break;
    case 4: selectBlock(budget, indent, scope); break;
    case 5: newObject(std::min(budget, 6), indent); return std::min(budget, 6);
    default: ifBlock(budget, indent, scope);
    }
    return budget;
}

void Statements::ifBlock(int budget, int indent, const Scope& scope) {
    const bool otherwise = budget >= 6 && random.percent(50);
    const bool elseIf = budget >= 9 && random.percent(30);
    int inside = budget - 2 - (otherwise ? 1 : 0) - (elseIf ? 1 : 0);
    auto share = [&](int parts) {
        const int lineCount = parts > 1 ? std::max(1, inside / parts) : inside;
        inside -= lineCount;
        return lineCount;
    };
    int parts = 1 + otherwise + elseIf;
    put(indent, cat({"If ", expressions.condition(scope), random.percent(40) ? " Then" : ""}));
    body(share(parts--), indent + 1, scope);
    if (elseIf) {
        put(indent, "ElseIf " + expressions.condition(scope));
        body(share(parts--), indent + 1, scope);
    }
    if (otherwise) {
        put(indent, "Else");
        body(share(parts--), indent + 1, scope);
    }
    put(indent, random.percent(70) ? "EndIf" : "End If");
}

void Statements::forBlock(int budget, int indent, const Scope& scope) {
    static const Words counters = {"i", "j", "k", "n", "m"};
    const std::string counter = counters[static_cast<std::size_t>(indent) % counters.size()];
    Scope inner = looped(scope);
    inner.indices.push_back(counter);
    const std::string step = random.percent(15) ? " Step 2" : "";
    put(indent, "For " + counter + " = 0 To " + std::to_string(random.from(2, 4)) + step);
    body(budget - 2, indent + 1, inner);
    put(indent, "Next");
}

void Statements::eachBlock(int budget, int indent, const Scope& scope) {
    const TypeInfo& type = random.pick(model.types);
    const std::string object = "each" + type.name;
    // A list that grows while it is walked has no end.
    Scope inner = scope;
    inner.callBelow = 0;
    inner.mayCreate = false;
    for (const Variable& field : type.fields) {
        const std::string slot = field.slots ? "[" + std::to_string(random.from(0, field.slots)) + "]" : "";
        inner.fields.push_back({object + "\\" + field.name + slot, field.kind, 0});
    }
    put(indent, "For " + object + "." + type.name + " = Each " + type.name);
    body(budget - 3, indent + 1, inner);
    put(indent + 1, object + "\\energy = " + object + "\\energy - 1");
    put(indent, "Next");
}

void Statements::whileBlock(int budget, int indent, const Scope& scope) {
    // The counter is no name that an assignment could choose, so the loop ends.
    const std::string counter = "turns" + std::to_string(indent);
    const std::string rounds = std::to_string(random.from(2, 5));
    const bool repeats = random.percent(50);
    const Scope inner = looped(scope);
    put(indent, counter + " = 0");
    put(indent, repeats ? "Repeat" : "While " + counter + " < " + rounds);
    body(budget - 4, indent + 1, inner);
    put(indent + 1, counter + " = " + counter + " + 1");
    put(indent, repeats ? "Until " + counter + " >= " + rounds : "Wend");
}

void Statements::selectBlock(int budget, int indent, const Scope& scope) {
    if (budget < 6) return ifBlock(budget, indent, scope);
    put(indent, "Select " + expressions.of(Kind::Int, scope, 1));
    int left = budget - 2;
    for (int value = random.from(0, 2); left >= 4; value += random.from(1, 3)) {
        const int inside = random.from(1, 2);
        put(indent + 1,
            "Case " + std::to_string(value) + (random.percent(25) ? ", " + std::to_string(value + 40) : ""));
        body(inside, indent + 2, scope);
        left -= inside + 1;
    }
    put(indent + 1, "Default");
    body(left - 1, indent + 2, scope);
    put(indent, "End Select");
}

void Statements::newObject(int budget, int indent) {
    const TypeInfo& type = random.pick(model.types);
    const std::string object = "fresh" + type.name;
    put(indent, object + "." + type.name + " = New " + type.name);
    for (int i = 1; i < budget - 1; ++i) {
        const Variable& field = random.pick(type.fields);
        const std::string slot = field.slots ? "[" + std::to_string(random.from(0, field.slots)) + "]" : "";
        put(indent, cat({object, "\\", field.name, slot, " = ", expressions.literal(field.kind)}));
    }
    // Lists stay short, whatever calls this.
    put(indent, "If " + object + "\\energy < 50 Then Delete " + object);
}

}
