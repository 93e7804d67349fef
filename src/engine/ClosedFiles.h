// The symbols of a project's file that is not open any more: they stay known to the other files until their
// own is opened again and declares them anew.
#pragma once

#include "engine/clsHash.h"

#include <cstdint>
#include <string_view>

class ClsProject;

// A view of the project ends: its symbols are on no line from now on.
void CloseSymbols(ClsProject& project, std::intptr_t view);
// Takes out what the active document's file had declared when it was closed.
void DropClosedSymbols(ClsProject& project);

// How many namesakes from its own file a table holds before a symbol.
int NamesakesBefore(const clsHash& table, const Symbol& symbol);
// Returns what a view declared under a name: the one after so many namesakes, or the last if there are fewer;
// null if there is none. With NamesakesBefore it finds a closed file's symbol again after reopening.
SymbolPointer NamesakeOf(std::intptr_t view, const clsHash& table, std::string_view name, int before);
