// Writes expressions of a wanted kind out of the names in reach.
#pragma once

#include "Model.h"

namespace generator {

// The names that an expression may use at a place in the program.
struct Scope {
    std::vector<Variable> locals;     // parameters and locals
    std::vector<Variable> fields;     // fields of objects in reach, as object\field
    std::vector<std::string> indices; // loop counters with values from 0 to 4
    int callBelow = 0;                // own functions may be called when their level is below this
    bool mayCreate = true;            // objects may be created here
};

class Expressions {
public:
    Expressions(const Model& declared, Random& source) : model(declared), random(source) {}

    // An expression of that kind. `depth` bounds how deep it nests.
    std::string of(Kind kind, const Scope& scope, int depth = 2);

    // Something that is true or false.
    std::string condition(const Scope& scope, int depth = 1);

    // A call of an own function or "" when none is in reach. `asStatement` leaves the brackets off at times.
    std::string call(const Scope& scope, bool asStatement);

    // A name that can be assigned to, of that kind; "" when there is none in reach.
    std::string target(Kind kind, const Scope& scope);

    // An array element with indices inside its bounds.
    std::string element(const ArrayInfo& array, const Scope& scope);

    // A literal of that kind.
    std::string literal(Kind kind);

private:
    std::string global(Kind kind);
    std::string name(Kind kind, const Scope& scope);
    std::string intOf(const Scope& scope, int depth);
    std::string floatOf(const Scope& scope, int depth);
    std::string textOf(const Scope& scope, int depth);
    const FunctionInfo* callee(const Scope& scope, const Kind* result);
    std::string arguments(const FunctionInfo& function, const Scope& scope);

    const Model& model;
    Random& random;
};

}
