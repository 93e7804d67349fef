// The registry of compilers.
#pragma once

#include <string>

namespace Mod_Main {

// Fills gCompilers and DefaultCompiler from Conf\compilers.dat; a missing file ends the process.
void LoadCompilers();
// Makes a compiler the active one and loads its keywords. False for an unknown name, which is reported.
bool SetActiveCompiler(const std::string& name);

} // namespace Mod_Main
