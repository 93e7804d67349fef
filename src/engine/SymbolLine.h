// The current lines of symbols. A view finds a marker by walking over all its lines; this module records line
// changes and derives a symbol's line from where it was last.
#pragma once

#include "engine/Symbols.h"

#include <cstdint>

// Lines from `line` on have moved down by `count`.
void LinesInserted(std::intptr_t view, int line, int count);
// The `count` lines below `line` have become part of it.
void LinesRemoved(std::intptr_t view, int line, int count);
// Forgets the recorded changes of a view that cannot be followed or is gone: its markers are looked up again.
void ForgetLines(std::intptr_t view);

// A marker has just been set on a line of a view.
SeenLine Seen(std::intptr_t view, int line);
// The line (from 0) of a marker by its handle; -1 when it has gone. Writes `seen`.
int LineOfMarker(std::intptr_t view, int handle, SeenLine& seen);

// The symbol has just been declared on a line of its view.
void DeclaredOn(Symbol& symbol, int line);
// The line (from 0) of a symbol's marker; -1 when it has none, or when its file is not open.
int LineOf(const Symbol& symbol);
