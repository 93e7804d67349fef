// What the tables know of a line: its text of before the edit while it is being edited, else its present one.
// For the engine's own files.
#pragma once

#include "engine/LineEvents.h"

#include <string>

namespace Mod_Parse {

std::string KnownText(int line);
// Leaves Tokens alone: the token indices are those of LightTokens.
void ReadKnownEvents(int line, LineEvents& events);

} // namespace Mod_Parse
