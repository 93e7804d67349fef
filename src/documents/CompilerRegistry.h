// The known compilers, and the active one.
#pragma once

#include <string>

namespace Mod_Main {

// Fills gCompilers and DefaultCompiler from Conf\compilers.dat. A missing file ends the process.
void LoadCompilers();
// Makes a compiler the active one and loads its keywords. If that fails, a message says so once for each name
// and the default compiler becomes active. False if that one has no keywords either. Writes gActiveCompiler.
bool SetActiveCompiler(const std::string& name);

} // namespace Mod_Main
