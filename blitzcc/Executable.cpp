// The sources appended to an executable: their bytes, then their count in eight bytes and a mark. A new file
// is written beside the target and renamed, so that a failure leaves the old one whole.
#include "Executable.h"

#include <filesystem>
#include <fstream>

namespace blitz {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view mark = "ZoltoBasicProgram1\n";
constexpr size_t tailSize = mark.size() + 8;

// The count of appended bytes, with the tail; 0 when the file has none.
uint64_t appendedSize(std::ifstream& in, uint64_t fileSize) {
    if (fileSize < tailSize) return 0;
    char tail[tailSize];
    in.seekg(static_cast<std::streamoff>(fileSize - tailSize));
    if (!in.read(tail, tailSize) || std::string_view(tail + 8, mark.size()) != mark) return 0;
    uint64_t count = 0;
    for (int i = 7; i >= 0; --i) count = count << 8 | static_cast<unsigned char>(tail[i]);
    return count <= fileSize - tailSize ? count + tailSize : 0;
}

std::string writeAll(const std::string& path, const std::string& runner, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << runner << bytes;
    for (uint64_t count = bytes.size(), i = 0; i < 8; ++i, count >>= 8)
        out.put(static_cast<char>(count & 0xff));
    out << mark;
    out.close();
    return out ? "" : "The target cannot be written";
}

}

std::string ownPath() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).string();
}

std::string makeExecutable(const Sources& sources, const std::string& target) {
    std::string runner;
    std::string reason;
    if (!readFile(ownPath(), runner, reason)) return reason;
    std::error_code error;
    if (fs::is_directory(target, error)) return "The target is a folder";
    const std::string part = target + ".part";
    reason = writeAll(part, runner, sources.pack());
    if (reason.empty()) {
        fs::permissions(part,
                        fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec |
                            fs::perms::others_read | fs::perms::others_exec,
                        error);
        if (!error) fs::rename(part, target, error);
        if (error) reason = error.message();
    }
    if (!reason.empty()) fs::remove(part, error);
    return reason;
}

std::optional<Sources> appendedSources(const std::string& executable) {
    std::ifstream in(executable, std::ios::binary | std::ios::ate);
    if (!in) return std::nullopt;
    const auto fileSize = static_cast<uint64_t>(in.tellg());
    const uint64_t size = appendedSize(in, fileSize);
    if (size == 0) return std::nullopt;
    std::string bytes(size - tailSize, '\0');
    in.seekg(static_cast<std::streamoff>(fileSize - size));
    if (!in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
    std::optional<Sources> sources(std::in_place);
    if (!sources->unpack(bytes)) return std::nullopt;
    return sources;
}

}
