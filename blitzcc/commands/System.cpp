// The commands on the system, its resources and hosts of programs.
// Each line is what the vocabulary shows; the marks tell the types, [] what may be left out.
#include "../CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    "ExecFileWait command$",
    "OpenConsole",
    "CloseConsole",
    "CreateProcess (command$)",
    "ProcessStatus (process%)",
    "TerminateProcess process%",
    "CreateShellStream (command$)",
    "Beep",
    "ShellExec command$",
    "LoadResource (name$)",
    "FreeResource resource%",
    "SetClipboardText text$",
    "ClipboardText$ ()",
    "GetGadgetHandle (gadget%)",
};
// clang-format on

DefinitionTable systemCommands() { return {definitions, std::size(definitions)}; }

}
