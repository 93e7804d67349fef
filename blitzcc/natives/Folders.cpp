// The commands on files as a whole and on folders.
// Like open files, they find names without regard to case.
#include "natives/Natives.h"

#include "parse/Sources.h"

#include <algorithm>
#include <filesystem>

namespace blitz {
namespace {

namespace fs = std::filesystem;
using Args = const Value*;

std::string pathOf(Value value) { return targetPath(Machine::text(value)); }

Value fileType(Machine&, Args a, size_t) {
    std::error_code error;
    const fs::file_status status = fs::status(pathOf(a[0]), error);
    return intValue(!fs::exists(status) ? 0 : fs::is_directory(status) ? 2 : 1);
}

Value fileSize(Machine&, Args a, size_t) {
    std::error_code error;
    const uintmax_t size = fs::file_size(pathOf(a[0]), error);
    return intValue(error ? 0 : static_cast<int32_t>(size));
}

Value fileDelete(Machine&, Args a, size_t) {
    std::error_code error;
    const std::string path = pathOf(a[0]);
    if (!fs::is_directory(path, error)) fs::remove(path, error);
    return intValue(0);
}

Value fileCopy(Machine&, Args a, size_t) {
    std::error_code error;
    fs::copy_file(pathOf(a[0]), pathOf(a[1]), fs::copy_options::overwrite_existing, error);
    return intValue(0);
}

Value folderCreate(Machine&, Args a, size_t) {
    std::error_code error;
    fs::create_directory(pathOf(a[0]), error);
    return intValue(0);
}

Value folderDelete(Machine&, Args a, size_t) {
    std::error_code error;
    const std::string path = pathOf(a[0]);
    // Only an empty folder is deleted, as programs expect.
    if (fs::is_directory(path, error)) fs::remove(path, error);
    return intValue(0);
}

Value folderCurrent(Machine& m, Args, size_t) {
    std::error_code error;
    std::string path = fs::current_path(error).string();
    if (path.empty() || path.back() != '/') path += '/';
    return m.makeString(std::move(path));
}

Value folderChange(Machine&, Args a, size_t) {
    std::error_code error;
    fs::current_path(pathOf(a[0]), error);
    return intValue(0);
}

Value folderRead(Machine& m, Args a, size_t) {
    std::error_code error;
    const std::string path = pathOf(a[0]);
    fs::directory_iterator it(path.empty() ? "." : path, error);
    if (error) return intValue(0);
    FileStore::Folder folder{{".", ".."}, 0};
    for (const fs::directory_iterator end; !error && it != end; it.increment(error))
        folder.names.push_back(it->path().filename().string());
    std::sort(folder.names.begin() + 2, folder.names.end());
    FileStore& store = m.files();
    store.folders[++store.lastHandle] = std::move(folder);
    return intValue(store.lastHandle);
}

FileStore::Folder& openFolder(Machine& m, int32_t handle) {
    const auto entry = m.files().folders.find(handle);
    if (entry == m.files().folders.end()) fault("Folder handle is not valid");
    return entry->second;
}

Value folderNext(Machine& m, Args a, size_t) {
    FileStore::Folder& folder = openFolder(m, a[0].integer);
    return m.makeString(folder.next < folder.names.size() ? folder.names[folder.next++] : "");
}

Value folderMore(Machine& m, Args a, size_t) {
    const FileStore::Folder& folder = openFolder(m, a[0].integer);
    return intValue(folder.next < folder.names.size());
}

Value folderClose(Machine& m, Args a, size_t) {
    openFolder(m, a[0].integer);
    m.files().folders.erase(a[0].integer);
    return intValue(0);
}

constexpr NativeEntry entries[] = {
    {"FileType", fileType},        {"FileSize", fileSize},      {"DeleteFile", fileDelete},
    {"CopyFile", fileCopy},        {"CreateDir", folderCreate}, {"DeleteDir", folderDelete},
    {"CurrentDir", folderCurrent}, {"ChangeDir", folderChange}, {"ReadDir", folderRead},
    {"NextFile", folderNext},      {"MoreFiles", folderMore},   {"CloseDir", folderClose},
};

}

NativeTable folderNatives() { return {entries, std::size(entries)}; }

}
