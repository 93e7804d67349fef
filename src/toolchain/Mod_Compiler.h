// The compile driver: saves what must be saved, calls the compiler, reads what it prints and puts the
// caret on its error.
#pragma once

#include "toolchain/CompilerOutput.h"

#include <string>

namespace Mod_Compiler {

// The path argument of the last Compile. Written by Compile alone.
extern std::string gLastCompiledFile;

// Each starts the compiler for the active document or project and answers false; output comes later.
bool Compile(const std::string& path, bool debug);
bool CheckForErrors(const std::string& path);
bool CreateExe(const std::string& path);

// Has a compiler write its keyword file and loads it.
void RefreshDefinitions(const std::string& compilerName, const std::string& compilerPath);

// Activates the document of the last compile and compiles it again.
void CompileLast();
// Starts the executable that was built last.
void RunLastCreated();
// Kills the compiler or the program that the active document runs.
void StopRunning();

} // namespace Mod_Compiler
