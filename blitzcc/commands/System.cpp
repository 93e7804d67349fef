// The commands on the system, its resources and hosts of programs. Each line is shown in the vocabulary as it
// is; the marks give the types, [] encloses what may be omitted.
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
