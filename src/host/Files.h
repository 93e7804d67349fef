// What the program asks of the file system. Paths are in the disk's form; contents are bytes.
// Every operation that fails throws a Failure with the system's text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class PathKind { None, File, Folder, Other };

class Files {
public:
    virtual ~Files() = default;

    // None for what is missing; Other for a device, a FIFO or a socket.
    virtual PathKind Kind(const std::string& path) = 0;
    // The path as it is on disk: itself when it exists, else one that differs by letter case alone,
    // else itself.
    virtual std::string Find(const std::string& path) = 0;
    // What tells the file itself, whichever of its names the path is; empty for what is missing.
    virtual std::string Identity(const std::string& path) = 0;
    // The whole content of a regular file; anything else is refused.
    virtual std::string Read(const std::string& path) = 0;
    // Replaces the file by these bytes. After a failure the old file is there as it was.
    virtual void Write(const std::string& path, std::string_view bytes) = 0;
    virtual void Append(const std::string& path, std::string_view bytes) = 0;
    virtual void Remove(const std::string& path) = 0;
    virtual void Rename(const std::string& from, const std::string& to) = 0;
    virtual void Copy(const std::string& from, const std::string& to) = 0;
    virtual void MakeFolders(const std::string& path) = 0;
    // The names in a folder, without "." and "..", in byte order. A missing folder is empty.
    virtual std::vector<std::string> List(const std::string& folder) = 0;
    virtual long long Size(const std::string& path) = 0;
    // Hands the file to the program that the desktop has for it.
    virtual void OpenWithDesktop(const std::string& path) = 0;
};
