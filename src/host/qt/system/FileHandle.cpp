// A file descriptor that closes itself, and the calls on it that must not stop half way.
#include "host/qt/system/FileHandle.h"

#include "host/Failure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
    if (this != &other) {
        Close();
        descriptor_ = other.Release();
    }
    return *this;
}

int FileHandle::Release() { return std::exchange(descriptor_, -1); }

int FileHandle::Close() {
    if (descriptor_ < 0) return 0;
    return close(Release()) == 0 || errno == EINTR ? 0 : errno;
}

void FailWith(int error, const std::string& path) {
    const int number = error == ENOENT    ? FailureFileNotFound
                       : error == ENOTDIR ? FailurePathNotFound
                                          : FailureFileAccess;
    throw Failure(number, path + ": " + std::generic_category().message(error));
}

FileHandle OpenFile(const std::string& path, int flags, int mode) {
    int descriptor;
    do descriptor = open(path.c_str(), flags | O_CLOEXEC, mode);
    while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0) FailWith(errno, path);
    return FileHandle(descriptor);
}

void WriteAll(const FileHandle& file, std::string_view bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ssize_t written = write(file.Get(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) FailWith(written < 0 ? errno : ENOSPC, path);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string ReadAll(const FileHandle& file, const std::string& path) {
    struct stat status {};
    if (fstat(file.Get(), &status) != 0) FailWith(errno, path);
    std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
        const ssize_t got = read(file.Get(), bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) FailWith(errno, path);
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return bytes;
}
