// Files on the disk of this host, by its own calls: paths stay the bytes that they are.
#include "host/qt/system/QtFiles.h"

#include "host/Failure.h"
#include "host/Text.h"
#include "host/qt/system/FileHandle.h"
#include "host/qt/system/QtText.h"
#include "host/qt/system/SafeWrite.h"

#include <QDesktopServices>
#include <QUrl>
#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool Exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

void RequireRegular(const FileHandle& file, const std::string& path) {
    struct stat status {};
    if (fstat(file.Get(), &status) != 0) FailWith(errno, path);
    if (S_ISDIR(status.st_mode)) throw Failure(FailureFileAccess, path + ": is a folder");
    if (!S_ISREG(status.st_mode)) throw Failure(FailureFileAccess, path + ": is not a regular file");
}

}

PathKind QtFiles::Kind(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return PathKind::None;
    if (S_ISREG(status.st_mode)) return PathKind::File;
    return S_ISDIR(status.st_mode) ? PathKind::Folder : PathKind::Other;
}

std::string QtFiles::Identity(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return {};
    return std::to_string(status.st_dev) + ':' + std::to_string(status.st_ino);
}

std::string QtFiles::Find(const std::string& path) {
    if (path.empty() || Exists(path)) return path;
    // Part by part from the front; each folder is listed only where the exact name is missing.
    std::string found = path.front() == '/' ? "/" : "";
    for (std::size_t start = found.size(); start < path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        std::string part = path.substr(start, end - start);
        if (!part.empty() && !Exists(found + part)) {
            const auto names = List(found.empty() ? "." : found);
            const auto at = std::find_if(names.begin(), names.end(),
                                         [&](const std::string& name) { return EqualNoCase(name, part); });
            if (at == names.end()) return path;
            part = *at;
        }
        found += part;
        if (end < path.size()) found += '/';
        start = end + 1;
    }
    return found;
}

std::string QtFiles::Read(const std::string& path) {
    // Without waiting, because the open of a FIFO would otherwise block until somebody writes.
    const FileHandle file = ::OpenFile(path, O_RDONLY | O_NONBLOCK);
    RequireRegular(file, path);
    return ReadAll(file, path);
}

void QtFiles::Write(const std::string& path, std::string_view bytes) { SafeWrite(path, bytes); }

void QtFiles::Append(const std::string& path, std::string_view bytes) {
    const FileHandle file = ::OpenFile(path, O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK);
    RequireRegular(file, path);
    WriteAll(file, bytes, path);
}

void QtFiles::Remove(const std::string& path) {
    const bool folder = Kind(path) == PathKind::Folder;
    if ((folder ? rmdir(path.c_str()) : unlink(path.c_str())) != 0) FailWith(errno, path);
}

void QtFiles::Rename(const std::string& from, const std::string& to) {
    if (rename(from.c_str(), to.c_str()) != 0) FailWith(errno, from);
}

void QtFiles::Copy(const std::string& from, const std::string& to) { Write(to, Read(from)); }

void QtFiles::MakeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1); end != path.npos; end = path.find('/', end + 1))
        if (mkdir(path.substr(0, end).c_str(), 0777) != 0 && errno != EEXIST && errno != EROFS)
            FailWith(errno, path);
    if (mkdir(path.c_str(), 0777) != 0 && Kind(path) != PathKind::Folder) FailWith(errno, path);
}

std::vector<std::string> QtFiles::List(const std::string& folder) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(folder.c_str()), closedir);
    if (!directory) {
        if (errno == ENOENT) return names;
        FailWith(errno, folder);
    }
    while (const dirent* entry = readdir(directory.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

long long QtFiles::Size(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) FailWith(errno, path);
    return status.st_size;
}

void QtFiles::OpenWithDesktop(const std::string& path) {
    constexpr int NoAssociation = static_cast<int>(0x80040418) + 31;
    constexpr const char* Source = "zolto.GShell";
    if (!Exists(path)) throw Failure(FailureFileNotFound, "File not found", Source);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(PathText(path))))
        throw Failure(NoAssociation, "No application is associated with this file type.", Source);
}
