// Paths: the program directory, and the two forms of a path.
#include "host/Paths.h"

#include "host/Files.h"
#include "host/Host.h"
#include "host/Text.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace {

std::string gAppDir;

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string WithoutEndSeparator(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

bool IsPortableCopy(const std::string& folder) {
    return !folder.empty() && access((folder + "/Conf").c_str(), X_OK) == 0 &&
           access(folder.c_str(), W_OK) == 0;
}

}

const std::string& AppDir() { return gAppDir; }

void SetAppDir(std::string directory) { gAppDir = WithoutEndSeparator(std::move(directory)); }

std::string AppPath(std::string_view below) {
    std::string path = CollapseSeparators(gAppDir + "/" + ToDisk(below));
    return gHost.files ? gHost.files->Find(path) : path;
}

std::string ChooseAppDir(const std::string& executableFolder) {
    if (const std::string home = Environment("ZOLTO_HOME"); !home.empty()) return WithoutEndSeparator(home);
    if (IsPortableCopy(executableFolder)) return WithoutEndSeparator(executableFolder);
    std::string data = Environment("XDG_DATA_HOME");
    if (data.empty() || data.front() != '/') data = Environment("HOME") + "/.local/share";
    return CollapseSeparators(data + "/zolto");
}

std::string ToDisk(std::string_view dataPath) {
    std::string path(dataPath);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string ToData(std::string_view diskPath) {
    std::string path(diskPath);
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::string CollapseSeparators(std::string_view path) {
    std::string result;
    result.reserve(path.size());
    for (std::size_t at = 0; at < path.size(); ++at) {
        result += path[at];
        if (path[at] == '/' && at + 1 < path.size() && path[at + 1] == '/') ++at;
    }
    return result;
}

std::string GetFileName(std::string_view path) {
    const auto separator = path.find_last_of('/');
    return std::string(separator == path.npos ? path : path.substr(separator + 1));
}

std::string GetFolder(std::string_view path) {
    const auto separator = path.find_last_of('/');
    return std::string(separator == path.npos ? std::string_view{} : path.substr(0, separator + 1));
}

std::string GetExtension(std::string_view path) {
    const std::string name = GetFileName(path);
    const auto dot = name.find_last_of('.');
    return dot == name.npos ? std::string{} : UCase(std::string_view(name).substr(dot));
}

std::string GetBaseName(std::string_view path) {
    const std::string name = GetFileName(path);
    return name.substr(0, name.find_last_of('.'));
}
