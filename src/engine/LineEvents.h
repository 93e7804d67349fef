// What a line declares and which scopes it opens and closes, read from its tokens alone as the parser reads
// them. All later questions about a line's meaning are answered from here.
#pragma once

#include "engine/Mod_Lexer.h"

#include <cstdint>
#include <vector>

struct LineEvent {
    enum Kind : std::uint8_t {
        Label,
        Include,
        Function,
        Parameter,
        EndFunction,
        Type,
        EndType,
        Field,
        Dim,
        Global,
        Local,
        Const,
        BlockStart,
        BlockEnd
    };
    Kind kind;
    int token;    // of the name, or of the second word of an end
    int type = 0; // token of the type name after it; 0 if there is none
    int from = 0; // columns of the parameter list or brackets after the name; 0 if there are none
    int to = 0;

    bool OfFunctions() const { return kind == Function || kind == EndFunction; }
    bool OfTypes() const { return kind == Type || kind == EndType; }
};

using LineEvents = std::vector<LineEvent>;

// The events of a tokenized line from left to right. `length`: of the line in bytes.
void ReadEvents(const Token* tokens, int count, int length, LineEvents& events);

// How many fold blocks a line opens less those that it closes.
int FoldDelta(const LineEvents& events);
