// The order of the compiler's options.
#include "toolchain/CompileCommand.h"

namespace {

// One pass from the left: four blanks become two.
std::string HalveDoubleBlanks(const std::string& command) {
    std::string halved;
    for (std::size_t i = 0; i < command.size(); ++i) {
        halved += command[i];
        if (command[i] == ' ' && i + 1 < command.size() && command[i + 1] == ' ') ++i;
    }
    return halved;
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

}

std::string CompileCommand::Text() const {
    using Kind = CompilerJob::Kind;
    std::string command = Quoted(compiler) + " ";
    if (kind == Kind::Run && debug) command += " -d ";
    if (kind == Kind::Check) command += " -c ";
    if (kind == Kind::Build) command += " -o " + Quoted(target) + " ";
    command += Quoted(source);
    if (kind == Kind::Run && !arguments.empty()) command += " " + arguments;
    return HalveDoubleBlanks(command);
}
