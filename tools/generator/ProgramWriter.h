// Lays out a whole program: declarations, main program, and functions in fold blocks.
#pragma once

#include "SourceGenerator.h"
#include "Statements.h"

namespace generator {

class ProgramWriter {
public:
    explicit ProgramWriter(const GeneratorOptions& options);

    // All lines of the program, without line ends.
    Lines write();

private:
    int left() const { return wanted - static_cast<int>(lines.size()); }
    void put(const std::string& text) { lines.push_back(text); }
    void heading(const std::string& title);
    void declarations();
    void mainProgram();
    void fillMainCalls();
    void functionBlocks();
    void functionBlock(int budget);
    void function(int budget);
    std::vector<Variable> localsOf(const FunctionInfo& info);
    std::string header(const FunctionInfo& info);

    GeneratorOptions options;
    int wanted;                // lines in all
    int functionLength;        // average lines of a function, with the comment above and the blank line below
    int mainCalls = 0;         // lines of the main program that call functions,
    std::size_t firstCall = 0; // and the first of them
    int labelNumber = 0;       // labels are numbered, so that each is unique in the program
    int dataRows = 0;
    Random random;
    Model model;
    Lines lines;
    Expressions expressions;
    Statements statements;
};

}
