// What a started child prints, line by line: the compiler's progress and errors, and what the program prints
// that it runs.
#pragma once

#include <string>

class frmDoc;

// What a child was started for.
struct CompilerJob {
    enum class Kind { Run, Check, Build };

    Kind kind = Kind::Run;
    std::string file;     // what the compiler was given
    std::string document; // the key of the window that shows this file's text; empty for a project
    std::string target;   // the executable that is built
    bool compiles = true; // false: the child is a program that was built earlier
};

namespace CompilerOutput {

// Takes the output of a document's console runner from now on, and shows `label` in the progress window.
void Listen(frmDoc& document, const CompilerJob& job, const std::string& label);
// Ends what Listen began, for a child that could not be started.
void Forget(frmDoc& document);
// Kills the child that the progress window tells of.
void StopShown();

} // namespace CompilerOutput

namespace Mod_Compiler {

// Reads one error line of the compiler, opens its file, selects the place and shows the message.
void ParseError(const std::string& line, const CompilerJob& job = {});

} // namespace Mod_Compiler
