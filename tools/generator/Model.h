// What a generated program declares: the names that its statements may use, each with its kind.
#pragma once

#include "Random.h"

#include <set>
#include <string>
#include <vector>

namespace generator {

enum class Kind { Int, Float, Text };

// The suffix that declares a name of that kind: none, "#" or "$".
std::string suffix(Kind kind);

struct Variable {
    std::string name;
    Kind kind = Kind::Int;
    int slots = 0; // a field with more than 0 is an array with indices 0 to slots
};

struct TypeInfo {
    std::string name;
    std::vector<Variable> fields;
};

struct ArrayInfo {
    std::string name;
    Kind kind = Kind::Int;
    std::vector<int> sizes; // highest index of each dimension
};

struct FunctionInfo {
    std::string name;
    Kind result = Kind::Int;
    std::vector<Variable> parameters;
    int level = 0; // calls only functions of a lower level, so that no call recurses
};

// The declarations of one program, and the names that are taken.
struct Model {
    std::vector<Variable> constants, globals;
    std::vector<ArrayInfo> arrays;
    std::vector<TypeInfo> types;
    std::vector<FunctionInfo> functions;
    std::set<std::string> taken;
};

// The highest level that a function has.
constexpr int topLevel = 3;

// Declarations in proportion to the length of the program.
Model makeModel(Random& random, int lines);

// A function with a fresh name, already added to nothing: the caller adds it once its body is written.
FunctionInfo makeFunction(Model& model, Random& random);

}
