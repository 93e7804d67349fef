// Writes statements and blocks of an exact number of lines.
#pragma once

#include "Expressions.h"

namespace generator {

using Lines = std::vector<std::string>;

class Statements {
public:
    Statements(const Model& declared, Random& source, Lines& out)
        : model(declared), random(source), expressions(declared, source), lines(out) {}

    // Writes exactly `budget` lines of statements, `indent` tabs deep.
    void body(int budget, int indent, const Scope& scope);

    // A single statement on one line, without its indentation.
    std::string single(const Scope& scope);

private:
    void put(int indent, const std::string& text) { lines.push_back(std::string(indent, '\t') + text); }
    int block(int budget, int indent, const Scope& scope);
    void ifBlock(int budget, int indent, const Scope& scope);
    void forBlock(int budget, int indent, const Scope& scope);
    void eachBlock(int budget, int indent, const Scope& scope);
    void whileBlock(int budget, int indent, const Scope& scope);
    void selectBlock(int budget, int indent, const Scope& scope);
    void newObject(int budget, int indent);
    std::string assignment(const Scope& scope);

    const Model& model;
    Random& random;
    Expressions expressions;
    Lines& lines;
};

}
