// The symbols of a project's file that is not open any more: they stay known to the other files until their own is
// opened again and declares them anew.
#pragma once

#include <cstdint>

class ClsProject;

// A view of the project ends: its symbols are on no line from now on.
void CloseSymbols(ClsProject& project, std::intptr_t view);
// Takes out what the active document's file had declared when it was closed.
void DropClosedSymbols(ClsProject& project);
