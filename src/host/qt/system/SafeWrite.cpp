// Two ways to replace a file: usually a new file beside it is renamed over it. If a rename would lose
// attributes of the old file, it is overwritten in place after a backup copy.
#include "host/qt/system/SafeWrite.h"

#include "host/Failure.h"
#include "host/qt/system/FileHandle.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace {

// Attributes that a person or a program put there; a security label is the system's own business.
bool HasAttributes(const std::string& path) {
    const ssize_t size = listxattr(path.c_str(), nullptr, 0);
    if (size <= 0) return false;
    std::vector<char> names(static_cast<std::size_t>(size));
    const ssize_t length = listxattr(path.c_str(), names.data(), names.size());
    for (ssize_t at = 0; at < length; at += static_cast<ssize_t>(std::strlen(&names[at])) + 1)
        if (std::strcmp(&names[static_cast<std::size_t>(at)], "security.selinux") != 0) return true;
    return false;
}

std::string RealPath(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    std::string result = real ? real : path;
    std::free(real);
    return result;
}

std::string FolderOf(const std::string& path) {
    const auto separator = path.find_last_of('/');
    return separator == path.npos ? "./" : path.substr(0, separator + 1);
}

bool MustWriteInPlace(const std::string& path, const struct stat& status) {
    return status.st_nlink > 1 || status.st_uid != geteuid() || status.st_gid != getegid() ||
           HasAttributes(path) || access(FolderOf(RealPath(path)).c_str(), W_OK) != 0;
}

void SyncOrFail(const FileHandle& file, const std::string& path) {
    if (fsync(file.Get()) != 0 && errno != EINVAL && errno != EROFS) FailWith(errno, path);
}

// Puts these bytes into the open file, the length set first, so that a full disk shows before a byte of
// the old content is gone.
void Overwrite(const FileHandle& file, std::string_view bytes, off_t oldSize, const std::string& path) {
    const auto size = static_cast<off_t>(bytes.size());
    if (size > oldSize) {
        if (const int error = posix_fallocate(file.Get(), 0, size)) {
            if (ftruncate(file.Get(), oldSize) != 0) FailWith(errno, path);
            FailWith(error, path);
        }
    }
    if (lseek(file.Get(), 0, SEEK_SET) < 0) FailWith(errno, path);
    WriteAll(file, bytes, path);
    if (ftruncate(file.Get(), size) != 0) FailWith(errno, path);
    SyncOrFail(file, path);
}

// A copy of the old content that was read back and found equal.
std::string MakeBackup(const std::string& path, const std::string& content) {
    for (const std::string& folder : {FolderOf(RealPath(path)), std::string("/tmp/")}) {
        std::string name = folder + ".zolto-backup-XXXXXX";
        FileHandle backup(mkstemp(name.data()));
        if (!backup) continue;
        try {
            WriteAll(backup, content, name);
            SyncOrFail(backup, name);
            if (lseek(backup.Get(), 0, SEEK_SET) == 0 && ReadAll(backup, name) == content) return name;
        } catch (const Failure&) {
            unlink(name.c_str());
            throw;
        }
        unlink(name.c_str());
    }
    throw Failure(FailureFileAccess, path + ": no place for a backup copy, so the file was not touched");
}

void WriteInPlace(const std::string& path, std::string_view bytes, off_t oldSize) {
    const FileHandle file = OpenFile(path, O_RDWR | O_NONBLOCK);
    const std::string old = ReadAll(file, path);
    const std::string backup = MakeBackup(path, old);
    try {
        Overwrite(file, bytes, oldSize, path);
    } catch (const Failure& failure) {
        try {
            Overwrite(file, old, static_cast<off_t>(bytes.size()), path);
        } catch (const Failure&) {
            throw Failure(failure.number, failure.description + " (the old content is in " + backup + ")");
        }
        unlink(backup.c_str());
        throw;
    }
    unlink(backup.c_str());
}

// Returns the mode of a new file. The process mask can only be read by changing it.
mode_t NewFileMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// A new file beside the old one, complete and on the disk before it takes the old one's name.
void WriteBeside(const std::string& path, std::string_view bytes, mode_t mode) {
    const std::string target = RealPath(path);
    // Not the target's name and something more, which could be longer than a name may be.
    std::string name = FolderOf(target) + ".zolto-new-XXXXXX";
    FileHandle file(mkostemp(name.data(), O_CLOEXEC));
    if (!file) FailWith(errno, path);
    try {
        WriteAll(file, bytes, path);
        if (fchmod(file.Get(), mode) != 0) FailWith(errno, path);
        SyncOrFail(file, path);
        if (const int error = file.Close()) FailWith(error, path);
        if (rename(name.c_str(), target.c_str()) != 0) FailWith(errno, path);
    } catch (const Failure&) {
        unlink(name.c_str());
        throw;
    }
}

// A symbolic link to nothing: the file is made where the link points to.
bool IsDanglingLink(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

}

void SafeWrite(const std::string& path, std::string_view bytes) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        if (!IsDanglingLink(path)) return WriteBeside(path, bytes, NewFileMode());
        ::OpenFile(path, O_WRONLY | O_CREAT);
        return SafeWrite(path, bytes);
    }
    if (S_ISDIR(status.st_mode)) throw Failure(FailureFileAccess, path + ": is a folder");
    if (!S_ISREG(status.st_mode)) throw Failure(FailureFileAccess, path + ": is not a regular file");
    if (access(path.c_str(), W_OK) != 0) FailWith(errno, path);
    if (MustWriteInPlace(path, status))
        WriteInPlace(path, bytes, status.st_size);
    else
        WriteBeside(path, bytes, status.st_mode & 07777);
}
