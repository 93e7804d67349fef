// Finds the symbols that a line declared, and moves locals and fields between scopes when a line that opens
// or closes one is added or removed. Only for the engine.
#pragma once

#include "engine/LineEvents.h"
#include "engine/clsHash.h"

#include <string>

namespace Mod_Parse {

constexpr int NoEnd = 1000000000;

// The next line from `line` on with a marker; NoEnd where there is none.
int NextLineWith(int line, int marker);

// Puts a symbol into a table: at its end while a file is parsed from top to bottom, else in its place.
void Enter(clsHash& table, const SymbolPointer& symbol);

// Move the symbols below a line, up to the next word that begins or ends a function (a type), to another
// scope. Fields without a table belong to no type and are kept by the document.
void MoveLocalsBelow(int line, clsHash& from, clsHash& to);
void MoveFieldsBelow(int line, clsHash* from, clsHash* to);

// A symbol that a line declared, and where it is kept. Null where the tables do not know it; without a table
// a field outside every type.
struct LineSymbol {
    LineEvent event;
    std::string name;
    clsHash* table;
    SymbolPointer record;
};

// The symbols of a line from left to right, and the scopes before and after it.
struct LineSymbols {
    std::vector<LineSymbol> symbols;
    std::shared_ptr<clsHash> localsBefore, localsBehind;
    std::shared_ptr<clsHash> fieldsBefore, fieldsBehind; // null outside every type
    bool functions = false;                              // begins or ends one
    bool types = false;
    bool locals = false;
};
// Finds the symbols of a line from its `tokens`. `sequential` means that CurrentFunctionName and
// CurrentTypeName, unless empty, are those before the line. Writes both.
LineSymbols FindLineSymbols(int line, bool sequential, const Token* tokens, const LineEvents& events);

} // namespace Mod_Parse
