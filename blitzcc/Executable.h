// Built executables: this program's own file with the sources appended. At its start the program looks for
// such sources at its own end and runs them.
#pragma once

#include "parse/Sources.h"

#include <optional>

namespace blitz {

/// The path of this executable; empty when it can't be told.
std::string ownPath();

/// Writes an executable that runs the sources; gives the reason on failure, else an empty text.
std::string makeExecutable(const Sources& sources, const std::string& target);

/// The sources appended to an executable file; none when there are none.
std::optional<Sources> appendedSources(const std::string& executable);

}
