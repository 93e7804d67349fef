// The command line of the compiler and the phases of a compile.
// The lines around a compile follow a fixed scheme, which an editor counts.
#pragma once

#include "generate/Code.h"
#include "machine/Machine.h"
#include "parse/Sources.h"

namespace blitz {

/// What the command line asks for.
struct CommandLine {
    enum class Mode { Run, Check, Build, Vocabulary, Help, Version, Wrong } mode = Mode::Run;
    bool debug = false;
    std::string target;
    std::string file;
    std::string arguments; // for the program, joined by blanks
    std::string complaint; // of Mode::Wrong
};

/// Takes the arguments (without the program's name) apart.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

/// Parses and checks loaded sources; libraryFolder holds *.decls files. Throws CompileError.
Code compile(Sources& sources, const std::string& libraryFolder);

/// The line that reports a compile error, without its line end.
std::string errorLine(const CompileError& error, const Sources& sources);

/// Carries a command line out and gives the exit status: 0 fine, 1 a faulty program, 2 wrong usage.
int perform(const CommandLine& line, Output& output);

/// Runs checked code; prints a runtime error and gives the exit status.
int runProgram(const Code& code, const Sources& sources, const RunOptions& options, Output& output);

}
