// The file system. Paths are in the form of the disk (with slashes); contents are bytes. A failed operation
// throws a Failure with the system's text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class PathKind { None, File, Folder, Other };

class Files {
public:
    virtual ~Files() = default;

    // None if nothing is there; Other for a device, a FIFO or a socket.
    virtual PathKind Kind(const std::string& path) = 0;
    // The existing path that differs in letter case alone, if `path` itself does not exist; else `path`.
    virtual std::string Find(const std::string& path) = 0;
    // An identity that all names of one file share; empty if nothing is there.
    virtual std::string Identity(const std::string& path) = 0;
    // The whole content of a regular file. Throws for anything else.
    virtual std::string Read(const std::string& path) = 0;
    // Replaces the content of the file. After a failure the old file is unchanged.
    virtual void Write(const std::string& path, std::string_view bytes) = 0;
    virtual void Append(const std::string& path, std::string_view bytes) = 0;
    virtual void Remove(const std::string& path) = 0;
    virtual void Rename(const std::string& from, const std::string& to) = 0;
    virtual void Copy(const std::string& from, const std::string& to) = 0;
    virtual void MakeFolders(const std::string& path) = 0;
    // The names in a folder without "." and "..", in byte order. Empty for a missing folder.
    virtual std::vector<std::string> List(const std::string& folder) = 0;
    virtual long long Size(const std::string& path) = 0;
    // Opens the file with the desktop's program for its type.
    virtual void OpenWithDesktop(const std::string& path) = 0;
};
