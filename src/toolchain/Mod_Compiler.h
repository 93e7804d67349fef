// The commands that compile and run: they save the files, start the compiler and show its output.
#pragma once

#include "toolchain/CompilerOutput.h"

#include <string>

namespace Mod_Compiler {

// The path argument of the last Compile. Written by Compile alone.
extern std::string gLastCompiledFile;

// Each starts the compiler for the active document or project and returns false: the result arrives as
// output.
bool Compile(const std::string& path, bool debug);
bool CheckForErrors(const std::string& path);
bool CreateExe(const std::string& path);

// Lets a compiler write its keyword file and loads that file. Shows a message with the result.
void RefreshDefinitions(const std::string& compilerName, const std::string& compilerPath);

// Activates the document of the last Compile and compiles it again.
void CompileLast();
// Starts the executable that was built last (gLastCreatedExe).
void RunLastCreated();
// Kills the child process of the active document.
void StopRunning();

} // namespace Mod_Compiler
