// A file descriptor that closes itself, and the calls on it that must not stop half way.
#pragma once

#include <string>
#include <string_view>

class FileHandle {
public:
    explicit FileHandle(int descriptor = -1) : descriptor_(descriptor) {}
    ~FileHandle() { Close(); }
    FileHandle(FileHandle&& other) noexcept : descriptor_(other.Release()) {}
    FileHandle& operator=(FileHandle&& other) noexcept;

    explicit operator bool() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }
    int Release();
    // The error number of the close, 0 when it went well or nothing was open.
    int Close();

private:
    int descriptor_;
};

// Each throws a Failure that names the path and gives the system's text.
FileHandle OpenFile(const std::string& path, int flags, int mode = 0666);
void WriteAll(const FileHandle& file, std::string_view bytes, const std::string& path);
std::string ReadAll(const FileHandle& file, const std::string& path);
[[noreturn]] void FailWith(int error, const std::string& path);
