// The output lines of a child process: progress and errors of the compiler, then the output of the program
// that it runs.
#pragma once

#include <string>

class frmDoc;

// The purpose of a child process.
struct CompilerJob {
    enum class Kind { Run, Check, Build };

    Kind kind = Kind::Run;
    std::string file;     // the source that the compiler reads
    std::string document; // the key of the window with that source; empty for a project
    std::string target;   // the executable to build
    bool compiles = true; // false: the child is a program that was built earlier
};

namespace CompilerOutput {

// Receives the output of a document's console runner from now on, and shows `label` in the progress window.
void Listen(frmDoc& document, const CompilerJob& job, const std::string& label);
// Undoes Listen for a child that could not be started.
void Forget(frmDoc& document);
// Kills the child of the progress window.
void StopShown();

} // namespace CompilerOutput

namespace Mod_Compiler {

// Reads an error line of the compiler, opens the file, selects the place of the error and shows the message.
void ParseError(const std::string& line, const CompilerJob& job = {});

} // namespace Mod_Compiler
