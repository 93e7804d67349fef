// The commands on the system, its resources and hosts of programs.
// Each line is what the vocabulary shows; the marks tell the types, [] what may be left out.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    "CreateProcess (command$)",
    "ProcessStatus (process%)",
    "TerminateProcess process%",
    "LoadResource (name$)",
    "FreeResource resource%",
};
// clang-format on

DefinitionTable systemCommands() { return {definitions, std::size(definitions)}; }

}
