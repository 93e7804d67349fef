// The phases of a compile and their lines on standard output.
// Every line of progress is free of colons: a colon there would be taken for an error.
#include "Driver.h"

#include "Executable.h"
#include "commands/CommandTable.h"
#include "generate/Decls.h"
#include "generate/Generator.h"
#include "natives/Natives.h"
#include "parse/Parser.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace blitz {
namespace {

const char* const usage[] = {
    "Usage",
    "  blitzcc [-c] [-d] [-o target] file.bb [program arguments]",
    "  blitzcc +k          print the vocabulary",
    "  blitzcc --help      print this text",
    "  blitzcc --version   print the version",
    "Switches",
    "  -c          check the program only",
    "  -d          run with debug output",
    "  -o target   make an executable",
};

std::string withoutColons(std::string text) {
    for (char& c : text)
        if (c == ':' || c == '\r' || c == '\n') c = ' ';
    return text;
}

std::string libraryFolder() {
    if (const char* const path = std::getenv("BLITZPATH"); path && *path) {
        std::string folder = findFile(std::string(path) + "/userlibs");
        if (!folder.empty()) return folder;
    }
    const auto bin = std::filesystem::path(ownPath()).parent_path();
    return findFile((bin.parent_path() / "userlibs").string());
}

CommandLine wrong(std::string complaint) {
    CommandLine line;
    line.mode = CommandLine::Mode::Wrong;
    line.complaint = std::move(complaint);
    return line;
}

int checkAndGo(const CommandLine& line, Output& output, Sources& sources) {
    output.line("Parsing...");
    Code code;
    try {
        code = compile(sources, libraryFolder());
    } catch (const CompileError& error) {
        output.line(errorLine(error, sources));
        return 1;
    }
    output.line("Checking...");
    if (line.mode == CommandLine::Mode::Check) return output.line("No errors found"), 0;
    if (line.mode == CommandLine::Mode::Build) {
        output.line("Creating \"" + line.target + "\"...");
        const std::string reason = makeExecutable(sources, line.target);
        if (reason.empty()) return 0;
        output.line("Cannot create the executable. " + withoutColons(reason));
        return 1;
    }
    for (const char* const step : {"Generating...", "Linking...", "Executing..."}) output.line(step);
    output.flush();
    RunOptions options;
    options.arguments = line.arguments;
    options.debug = line.debug;
    options.programFolder = std::filesystem::path(sources.files()[0].path).parent_path().string() + "/";
    return runProgram(code, sources, options, output);
}

int compileFile(const CommandLine& line, Output& output) {
    output.line("BlitzCC V" BLITZCC_VERSION);
    output.line("(C) 2026 the Zolto authors");
    output.line("Compiling \"" + line.file + "\"");
    Sources sources;
    std::string reason;
    if (!sources.loadMain(line.file, reason)) {
        output.line("Cannot open the program. " + withoutColons(reason));
        return 1;
    }
    return checkAndGo(line, output, sources);
}

}

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    size_t at = 0;
    for (; at < arguments.size() && arguments[at].size() > 1 &&
           (arguments[at][0] == '-' || arguments[at][0] == '+');
         ++at) {
        const std::string& word = arguments[at];
        if (word == "-c") {
            line.mode = CommandLine::Mode::Check;
        } else if (word == "-d") {
            line.debug = true;
        } else if (word == "-o") {
            if (++at == arguments.size()) return wrong("The switch -o needs a target");
            line.mode = CommandLine::Mode::Build;
            line.target = arguments[at];
        } else if (word == "+k" || word == "--help" || word == "--version") {
            line.mode = word == "+k"       ? CommandLine::Mode::Vocabulary
                        : word == "--help" ? CommandLine::Mode::Help
                                           : CommandLine::Mode::Version;
            return line;
        } else {
            return wrong("Unknown switch " + word);
        }
    }
    if (at == arguments.size()) return wrong("No program was given");
    line.file = arguments[at++];
    for (; at < arguments.size(); ++at) line.arguments += (line.arguments.empty() ? "" : " ") + arguments[at];
    return line;
}

Code compile(Sources& sources, const std::string& folder) {
    Symbols symbols;
    const Program program = Parser(sources, symbols).parse();
    Decls decls;
    if (!sources.isBundle()) sources.setLibraries(Decls::folderText(folder));
    decls.readText(sources.libraries());
    return Generator(program, symbols, decls).generate();
}

std::string errorLine(const CompileError& error, const Sources& sources) {
    const std::string line = std::to_string(error.pos.line);
    return "\"" + sources.files()[error.pos.file].path + "\":" + line + ":" +
           std::to_string(error.pos.column) + ":" + line + ":" + std::to_string(error.pos.endColumn) + ":" +
           withoutColons(error.message);
}

int runProgram(const Code& code, const Sources& sources, const RunOptions& options, Output& output) {
    try {
        Machine(code, output, options, allNatives()).run();
    } catch (const RuntimeError& error) {
        output.endLine();
        const std::string file = withoutColons(sources.files()[error.file].path);
        output.line("Runtime error in " + file + " line " + std::to_string(error.line) + ". " +
                    withoutColons(error.message));
        return 1;
    }
    output.endLine();
    return 0;
}

int perform(const CommandLine& line, Output& output) {
    switch (line.mode) {
    case CommandLine::Mode::Vocabulary: return output.write(vocabulary()), 0;
    case CommandLine::Mode::Version: return output.line("BlitzCC V" BLITZCC_VERSION), 0;
    case CommandLine::Mode::Help:
        for (const char* const text : usage) output.line(text);
        return 0;
    case CommandLine::Mode::Wrong:
        output.line(line.complaint);
        for (const char* const text : usage) output.line(text);
        return 2;
    default: return compileFile(line, output);
    }
}

}
