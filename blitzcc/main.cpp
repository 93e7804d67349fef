// The bundled compiler's entry: a program appended to this file is run at once,
// else the command line says what to do.
#include "Driver.h"
#include "Executable.h"

#include <filesystem>
#include <new>
#include <unistd.h>

using namespace blitz;

namespace {

int runAppended(Sources& sources, const std::vector<std::string>& arguments, Output& output) {
    RunOptions options;
    for (const std::string& word : arguments)
        options.arguments += (options.arguments.empty() ? "" : " ") + word;
    options.programFolder = std::filesystem::path(ownPath()).parent_path().string() + "/";
    try {
        return runProgram(compile(sources, {}), sources, options, output);
    } catch (const CompileError& error) {
        output.line(errorLine(error, sources));
        return 1;
    }
}

}

int main(int count, char** words) {
    const std::vector<std::string> arguments(words + (count > 0 ? 1 : 0), words + count);
    Output output(STDOUT_FILENO);
    try {
        if (std::optional<Sources> sources = appendedSources(ownPath()))
            return runAppended(*sources, arguments, output);
        return perform(parseCommandLine(arguments), output);
    } catch (const std::bad_alloc&) {
        output.endLine();
        output.line("Out of memory");
        return 1;
    }
}
