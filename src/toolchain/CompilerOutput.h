// What the compiler prints, line by line: progress, errors, and all that goes to the Output pane.
#pragma once

#include <string>

class frmDoc;

namespace CompilerOutput {

// Takes the output of a document's console runner from now on.
void Listen(frmDoc& document);

} // namespace CompilerOutput

namespace Mod_Compiler {

// Whether an executable is being built, and which. Written by Compile, CheckForErrors and CreateExe alone.
extern bool gCreatingExe;
extern std::string gTargetExe;

// Reads one error line of the compiler, opens its file, selects the place and shows the message.
void ParseError(const std::string& line);

} // namespace Mod_Compiler
