// The registry of compilers.
#pragma once

#include <string>

namespace Mod_Main {

// Fills gCompilers and DefaultCompiler from Conf\compilers.dat; a missing file ends the process.
void LoadCompilers();
// Makes a compiler the active one and loads its keywords. An unknown name, told of once, and one whose
// keywords cannot be loaded give the default compiler. False when that one has no keywords either.
bool SetActiveCompiler(const std::string& name);

} // namespace Mod_Main
