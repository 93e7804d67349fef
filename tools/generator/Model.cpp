// Makes the declarations of a program.
#include "Model.h"

#include "Words.h"

#include <algorithm>
#include <cctype>

namespace generator {

namespace {

std::string lowered(std::string word) {
    word[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(word[0])));
    return word;
}

// Names differ without regard to case, across all kinds of declarations.
std::string fresh(Model& model, const std::string& wish) {
    std::string name = wish;
    auto key = [](std::string text) {
        for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return text;
    };
    for (int number = 2; !model.taken.insert(key(name)).second; ++number)
        name = wish + std::to_string(number);
    return name;
}

Kind anyKind(Random& random) {
    const int roll = random.from(1, 10);
    return roll <= 5 ? Kind::Int : roll <= 8 ? Kind::Float : Kind::Text;
}

TypeInfo makeType(Model& model, Random& random) {
    TypeInfo type{fresh(model, cat({random.pick(qualifiers), random.pick(things)})), {}};
    Words left = fieldNames;
    const int count = random.from(3, 9);
    for (int i = 0; i < count; ++i) {
        const int at = random.from(0, static_cast<int>(left.size()) - 1);
        Variable field{left[at], Kind::Int, 0};
        if (field.name.back() == '#') field.kind = Kind::Float;
        if (field.name.back() == '$') field.kind = Kind::Text;
        if (field.kind != Kind::Int) field.name.pop_back();
        if (field.kind != Kind::Text && random.percent(8)) field.slots = random.from(2, 8);
        type.fields.push_back(field);
        left.erase(left.begin() + at);
    }
    // Every type has a plain number to work with.
    type.fields.push_back({"energy", Kind::Int, 0});
    return type;
}

ArrayInfo makeArray(Model& model, Random& random) {
    ArrayInfo array{fresh(model, lowered(random.pick(nouns)) + "Table"), anyKind(random), {}};
    const int dimensions = std::max(1, random.from(-2, 4));
    for (int i = 0; i < dimensions; ++i) array.sizes.push_back(random.from(4, dimensions > 2 ? 9 : 40));
    return array;
}

}

std::string suffix(Kind kind) { return kind == Kind::Int ? "" : kind == Kind::Float ? "#" : "$"; }

Model makeModel(Random& random, int lines) {
    Model model;
    auto about = [&](int perLines, int least) { return std::max(least, lines / perLines); };
    for (int i = about(160, 2); i > 0; --i)
        model.constants.push_back(
            {fresh(model, cat({"Max", random.pick(qualifiers), random.pick(nouns)})), Kind::Int, 0});
    for (int i = about(110, 4); i > 0; --i)
        model.globals.push_back(
            {fresh(model, cat({lowered(random.pick(qualifiers)), random.pick(nouns)})), anyKind(random), 0});
    for (int i = about(320, 2); i > 0; --i) model.arrays.push_back(makeArray(model, random));
    for (int i = about(420, 1); i > 0; --i) model.types.push_back(makeType(model, random));
    return model;
}

FunctionInfo makeFunction(Model& model, Random& random) {
    FunctionInfo function;
    function.name = fresh(model, cat({random.pick(verbs), random.pick(qualifiers), random.pick(nouns)}));
    function.result = anyKind(random);
    function.level = random.from(0, topLevel);
    const int count = random.from(0, 4);
    for (int i = 0; i < count; ++i) {
        const Kind kind = anyKind(random);
        const Words& names = kind == Kind::Int ? intNames : kind == Kind::Float ? floatNames : textNames;
        const std::string name = random.pick(names);
        auto same = [&](const Variable& other) { return other.name == name; };
        auto& parameters = function.parameters;
        if (std::none_of(parameters.begin(), parameters.end(), same)) parameters.push_back({name, kind, 0});
    }
    return function;
}

}
