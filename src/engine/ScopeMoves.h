// Moving locals and fields between scopes when a line that opens or closes one comes or goes.
// For the engine's own files.
#pragma once

#include "engine/clsHash.h"

#include <string>

namespace Mod_Parse {

// Lines from `from` on, up to but not including `end`.
struct LineRange {
    int from;
    int end;
};
constexpr int NoEnd = 1000000000;

// The next line from `line` on with a marker; NoEnd where there is none.
int NextLineWith(int line, int marker);

// The text that the tables know of a line: that of before the edit while the line is being edited.
std::string KnownText(int line);

// Move the entries of the active view that stand in the range from one table to another.
void MoveLocals(clsHash& from, clsHash& to, LineRange range);
void MoveFields(clsHash& from, clsHash& to, LineRange range);
// Fields outside every type live in the document; these move them in and out.
void TakeLooseFields(clsHash& fields, LineRange range);
void ReleaseFields(clsHash& fields, LineRange range);

} // namespace Mod_Parse
