// Which symbols a line declared, and the moves of locals and fields between scopes when a line that opens or
// closes one comes or goes. For the engine's own files.
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

// Move what stands below a line, up to the next word that begins or ends a function (a type), from one scope
// to another. Without a table the fields belong to no type: they live in the document.
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

// The symbols of a line from left to right, and what its scopes are in front of it and behind it.
struct LineSymbols {
    std::vector<LineSymbol> symbols;
    std::shared_ptr<clsHash> localsBefore, localsBehind;
    std::shared_ptr<clsHash> fieldsBefore, fieldsBehind; // null outside every type
    bool functions = false;                              // begins or ends one
    bool types = false;
    bool locals = false;
};
// `sequential`: CurrentFunctionName and CurrentTypeName are those in front of the line, where they are not
// empty. Writes them. `tokens`: what was read of the line.
LineSymbols FindLineSymbols(int line, bool sequential, const Token* tokens, const LineEvents& events);

} // namespace Mod_Parse
