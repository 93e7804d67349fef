// The command line that the compiler is started with.
#pragma once

#include "toolchain/CompilerOutput.h"

#include <string>

struct CompileCommand {
    CompilerJob::Kind kind = CompilerJob::Kind::Run;
    bool debug = false;    // of a run
    std::string compiler;  // path of the executable
    std::string source;    // path of the file to compile
    std::string target;    // path of the executable that is built
    std::string arguments; // of the program that is run

    // Paths are quoted, arguments are not. Each pair of blanks becomes one blank, in quotes as well.
    std::string Text() const;
};
