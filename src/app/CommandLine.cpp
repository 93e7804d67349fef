// The arguments of the process as the one text that the program reads.
#include "app/CommandLine.h"

#include <filesystem>

namespace {

std::string Absolute(const std::string& argument, const std::string& startFolder) {
    if (argument.empty() || argument.front() == '/') return argument;
    const std::filesystem::path path = std::filesystem::path(startFolder) / argument;
    std::error_code error;
    if (!std::filesystem::exists(path, error)) return argument;
    // A ".." after a symbolic link leaves the folder that the link points to, so the path is resolved on
    // disk.
    const auto folder = std::filesystem::canonical(path.parent_path(), error);
    const bool climbs = argument.find("..") != argument.npos && path.has_filename();
    return climbs && !error ? (folder / path.filename()).string() : path.lexically_normal().string();
}

}

std::string JoinCommandLine(const std::vector<std::string>& arguments, const std::string& startFolder) {
    std::string line;
    for (const std::string& argument : arguments) {
        const std::string text = Absolute(argument, startFolder);
        if (!line.empty()) line += ' ';
        line += text.find(' ') == text.npos ? text : '"' + text + '"';
    }
    return line;
}
