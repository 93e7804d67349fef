// A command kept as one text, taken apart into what the system starts.
#include "host/qt/system/CommandText.h"

#include "host/qt/system/FileHandle.h"
#include "host/qt/system/QtText.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace {

std::string FindProgram(const std::string& name) {
    if (name.find('/') != name.npos) return PathBytes(QFileInfo(PathText(name)).absoluteFilePath());
    return PathBytes(QStandardPaths::findExecutable(PathText(name)));
}

bool IsWindowsProgram(const std::string& path) {
    const FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    char mark[2] = {};
    return file && read(file.Get(), mark, 2) == 2 && mark[0] == 'M' && mark[1] == 'Z';
}

}

std::vector<std::string> SplitCommand(std::string_view command) {
    std::vector<std::string> arguments;
    std::string argument;
    bool begun = false, quoted = false;
    for (const char c : command) {
        if (c == '"') {
            quoted = !quoted;
            begun = true;
        } else if (!quoted && (c == ' ' || c == '\t')) {
            if (begun) arguments.push_back(argument);
            argument.clear();
            begun = false;
        } else {
            argument += c;
            begun = true;
        }
    }
    if (begun) arguments.push_back(argument);
    return arguments;
}

SystemError PrepareCommand(std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.front().empty()) return {EINVAL, "No program to start."};
    const std::string name = arguments.front();
    const std::string program = FindProgram(name);
    if (program.empty()) return {ENOENT, name + ": " + std::generic_category().message(ENOENT)};
    arguments.front() = program;
    if (!IsWindowsProgram(program)) return {};
    const std::string wine = PathBytes(QStandardPaths::findExecutable("wine"));
    if (wine.empty())
        return {ENOEXEC, program + ": is a Windows program. Install \"wine\" to run it on this system."};
    arguments.insert(arguments.begin(), wine);
    return {};
}
