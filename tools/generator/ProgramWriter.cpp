// The order and the sizes of a program's parts. Every part takes an exact number of lines.
#include "ProgramWriter.h"

#include "Words.h"

#include <algorithm>

namespace generator {

namespace {

constexpr int averageFunction = 25;
constexpr int shortestFunction = 12; // with the comment above and the blank line below
constexpr int functionsInBlock = 12;
constexpr int mostMainCalls = 12;

int averageLength(const GeneratorOptions& options, int lines) {
    if (options.functions <= 0) return averageFunction;
    return std::clamp(lines / options.functions, shortestFunction + 4, 1000);
}

std::string number(int value) { return std::to_string(value); }

}

ProgramWriter::ProgramWriter(const GeneratorOptions& given)
    : options(given), wanted(std::max(given.lines, leastLines)), functionLength(averageLength(given, wanted)),
      random(given.seed), model(makeModel(random, wanted)), expressions(model, random),
      statements(model, random, lines) {}

Lines ProgramWriter::write() {
    lines.reserve(static_cast<std::size_t>(wanted));
    put("; A generated program of " + number(wanted) + " lines, seed " + std::to_string(options.seed) + ".");
    put("");
    declarations();
    mainProgram();
    functionBlocks();
    fillMainCalls();
    return std::move(lines);
}

void ProgramWriter::heading(const std::string& title) { put(";---- " + title + " " + std::string(40, '-')); }

void ProgramWriter::declarations() {
    heading("Constants and globals");
    for (const Variable& constant : model.constants)
        put("Const " + constant.name + " = " + number(random.from(1, 200)));
    for (const Variable& global : model.globals) {
        const std::string start = random.percent(40) ? " = " + expressions.literal(global.kind) : "";
        put("Global " + global.name + suffix(global.kind) + start);
    }
    for (const ArrayInfo& array : model.arrays) {
        std::string sizes;
        for (int size : array.sizes) sizes += (sizes.empty() ? "" : ", ") + number(size);
        put("Dim " + array.name + suffix(array.kind) + "(" + sizes + ")");
    }
    put("");
    heading("Types");
    for (const TypeInfo& type : model.types) {
        put("Type " + type.name);
        for (const Variable& field : type.fields) {
            const std::string slots = field.slots ? "[" + number(field.slots) + "]" : "";
            put("\tField " + field.name + suffix(field.kind) + slots);
        }
        put("End Type");
        put("");
    }
}

void ProgramWriter::mainProgram() {
    heading("Main program");
    put("SeedRnd " + number(random.from(1, 9999)));
    put("Gosub LoadLevels");
    firstCall = lines.size();
    mainCalls = std::min(mostMainCalls, 1 + wanted / 100);
    for (int i = 0; i < mainCalls; ++i) put("");
    put("Print \"done after \" + levelsRead + \" levels\"");
    put("End");
    put("");
    dataRows = std::max(2, wanted / 600);
    put(".LoadLevels");
    put("Restore LevelData");
    put("For row = 1 To " + number(dataRows));
    put("\tRead levelName$, levelSize, levelSpeed#");
    put("\tIf levelSize > 0 Then levelsRead = levelsRead + 1");
    put("Next");
    put("Return");
    put("");
    put(".LevelData");
    for (int i = 0; i < dataRows; ++i)
        put(cat({"Data ", expressions.literal(Kind::Text), ", ", number(random.from(1, 64)), ", ",
                 number(random.from(0, 9)), ".", number(random.from(0, 99))}));
    put("");
}

// The main program comes before the functions, but its calls are known only once they are written.
void ProgramWriter::fillMainCalls() {
    Scope scope;
    scope.callBelow = topLevel + 1;
    for (int i = 0; i < mainCalls; ++i)
        lines[firstCall + static_cast<std::size_t>(i)] = expressions.call(scope, true);
}

void ProgramWriter::functionBlocks() {
    while (left() > 0) {
        if (left() < 3 * shortestFunction) return function(left());
        int budget =
            std::min(left(), random.from(functionsInBlock / 2, functionsInBlock * 3 / 2) * functionLength);
        if (left() - budget < 3 * shortestFunction) budget = left();
        functionBlock(budget);
    }
}

void ProgramWriter::functionBlock(int budget) {
    put(";[Block] " + random.pick(sections));
    budget -= 3;
    while (budget > 0) {
        const int spread = functionLength - shortestFunction;
        int length = random.from(shortestFunction, shortestFunction + 2 * spread);
        if (budget - length < shortestFunction) length = budget;
        function(length);
        budget -= length;
    }
    put(";[End Block]");
    put("");
}

std::string ProgramWriter::header(const FunctionInfo& info) {
    std::string text;
    bool optional = false;
    for (const Variable& parameter : info.parameters) {
        if (!text.empty()) text += ", ";
        text += parameter.name + suffix(parameter.kind);
        // After an optional parameter all others are optional too.
        optional = optional || (!text.empty() && random.percent(12));
        if (optional) text += " = " + expressions.literal(parameter.kind);
    }
    return "Function " + info.name + suffix(info.result) + "(" + text + ")";
}

// One to three names of each kind that the parameters do not have already.
std::vector<Variable> ProgramWriter::localsOf(const FunctionInfo& info) {
    std::vector<Variable> locals;
    auto addFrom = [&](const Words& names, Kind kind, int count) {
        for (int i = 0; i < count; ++i) {
            const std::string& name = random.pick(names);
            auto same = [&](const Variable& other) { return other.name == name; };
            const auto& given = info.parameters;
            if (std::none_of(given.begin(), given.end(), same) &&
                std::none_of(locals.begin(), locals.end(), same))
                locals.push_back({name, kind, 0});
        }
    };
    addFrom(intNames, Kind::Int, random.from(1, 3));
    addFrom(floatNames, Kind::Float, random.from(0, 2));
    addFrom(textNames, Kind::Text, random.from(0, 1));
    return locals;
}

// A function with a comment above and a blank line below, `budget` lines in all.
void ProgramWriter::function(int budget) {
    FunctionInfo info = makeFunction(model, random);
    const std::vector<Variable> locals = localsOf(info);
    const bool hasLabel = budget >= 18 && random.percent(12);
    Scope scope;
    scope.locals = info.parameters;
    scope.callBelow = info.level;

    put("; " + info.name + ", " + random.pick(remarks) + ".");
    put(header(info));
    budget -= 5;
    std::string declared;
    for (const Variable& local : locals)
        declared += (declared.empty() ? "" : ", ") + local.name + suffix(local.kind) +
                    (random.percent(50) ? " = " + expressions.of(local.kind, scope, 1) : "");
    if (!declared.empty()) {
        put("\tLocal " + declared);
        --budget;
    }
    scope.locals.insert(scope.locals.end(), locals.begin(), locals.end());
    if (hasLabel) {
        const std::string label = "Again" + number(++labelNumber);
        put("." + label);
        put("\tpasses = passes + 1");
        statements.body(budget - 3, 1, scope);
        put("\tIf passes < 3 Then Goto " + label);
    } else
        statements.body(budget, 1, scope);
    put("\tReturn " + expressions.of(info.result, scope, 1));
    put("End Function");
    put("");
    model.functions.push_back(info);
}

}
