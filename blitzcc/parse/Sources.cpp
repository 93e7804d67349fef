// Reading of source files and the search for them without regard to case.
// Programs come from a system whose file names ignore case; here the folder is searched instead.
#include "parse/Sources.h"

#include "parse/Tokens.h"

#include <cstring>
#include <filesystem>
#include <fstream>

namespace blitz {
namespace fs = std::filesystem;
namespace {

// A source beyond this is taken for a mistake rather than a program.
constexpr uintmax_t largestSource = 256u << 20;

std::string findInFolder(const std::string& folder, const std::string& name) {
    std::error_code error;
    const std::string lowered = lowerText(name);
    std::string best;
    for (fs::directory_iterator it(folder.empty() ? "." : folder, error), end; !error && it != end;
         it.increment(error)) {
        const std::string found = it->path().filename().string();
        if (lowerText(found) == lowered && (best.empty() || found < best)) best = found;
    }
    return best;
}

void putNumber(std::string& bytes, uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<char>(number >> shift));
}

bool takeNumber(std::string_view& bytes, uint32_t& number) {
    if (bytes.size() < 4) return false;
    number = 0;
    for (size_t i = 0; i < 4; ++i)
        number |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    bytes.remove_prefix(4);
    return true;
}

bool takeText(std::string_view& bytes, std::string& text) {
    uint32_t length = 0;
    if (!takeNumber(bytes, length) || bytes.size() < length) return false;
    text.assign(bytes.substr(0, length));
    bytes.remove_prefix(length);
    return true;
}

}

bool readFile(const std::string& path, std::string& text, std::string& reason) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) return reason = "File not found", false;
    if (fs::is_directory(status)) return reason = "It is a folder", false;
    if (!fs::is_regular_file(status)) return reason = "It is not a regular file", false;
    const uintmax_t size = fs::file_size(path, error);
    if (error || size > largestSource) return reason = "The file is too large", false;
    std::ifstream in(path, std::ios::binary);
    text.resize(size);
    if (!in || !in.read(text.data(), static_cast<std::streamsize>(size)))
        return reason = "The file cannot be read", false;
    // A byte order mark would precede the first statement; spaces in its place keep the columns right.
    if (text.starts_with("\xEF\xBB\xBF")) text.replace(0, 3, "   ");
    return true;
}

std::string absolutePath(const std::string& path) {
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    return error ? path : full.lexically_normal().string();
}

std::string findFile(const std::string& path) {
    std::error_code error;
    if (fs::exists(path, error)) return path;
    std::string wanted = path;
    for (char& c : wanted)
        if (c == '\\') c = '/';
    if (fs::exists(wanted, error)) return wanted;
    std::string found = !wanted.empty() && wanted[0] == '/' ? "/" : "";
    size_t at = 0;
    while (at < wanted.size()) {
        const size_t slash = std::min(wanted.find('/', at), wanted.size());
        const std::string part = wanted.substr(at, slash - at);
        at = slash + 1;
        if (part.empty() || part == ".") continue;
        std::string name = part;
        if (part != ".." && !fs::exists(found + part, error)) name = findInFolder(found, part);
        if (name.empty()) return {};
        found += name;
        if (slash < wanted.size()) found += '/';
    }
    return found;
}

std::string targetPath(const std::string& path) {
    std::string found = findFile(path);
    if (!found.empty()) return found;
    std::string wanted = path;
    for (char& c : wanted)
        if (c == '\\') c = '/';
    const size_t slash = wanted.rfind('/');
    if (slash == std::string::npos) return wanted;
    found = findFile(wanted.substr(0, slash));
    return found.empty() ? wanted : found + wanted.substr(slash);
}

bool Sources::loadMain(const std::string& path, std::string& reason) {
    const std::string found = findFile(path);
    if (found.empty()) return reason = "File not found", false;
    SourceFile file{absolutePath(found), {}};
    if (!readFile(file.path, file.text, reason)) return false;
    files_.push_back(std::move(file));
    return true;
}

std::string Sources::resolve(std::string_view name, uint32_t fromFile) const {
    std::string wanted(name);
    for (char& c : wanted)
        if (c == '\\') c = '/';
    if (!wanted.empty() && wanted[0] == '/') return findFile(wanted);
    for (const uint32_t base : {fromFile, 0u}) {
        const std::string folder = fs::path(files_[base].path).parent_path().string();
        std::string found = findFile((fs::path(folder) / wanted).string());
        if (!found.empty()) return found;
    }
    return {};
}

int Sources::include(std::string_view name, uint32_t fromFile, std::string& reason) {
    if (replaying_) return replay_ < log_.size() ? log_[replay_++] : -1;
    if (name.find('\0') != std::string_view::npos) return reason = "The file name is malformed", -2;
    const std::string found = resolve(name, fromFile);
    if (name.empty() || found.empty()) return reason = "File not found", -2;
    SourceFile file{absolutePath(found), {}};
    std::error_code error;
    for (const SourceFile& known : files_) {
        if (known.path != file.path && !fs::equivalent(known.path, file.path, error)) continue;
        log_.push_back(-1);
        return -1;
    }
    if (!readFile(file.path, file.text, reason)) return -2;
    files_.push_back(std::move(file));
    log_.push_back(static_cast<int>(files_.size()) - 1);
    return log_.back();
}

std::string Sources::pack() const {
    std::string bytes;
    putNumber(bytes, static_cast<uint32_t>(files_.size()));
    for (const SourceFile& file : files_)
        for (const std::string& text : {file.path, file.text}) {
            putNumber(bytes, static_cast<uint32_t>(text.size()));
            bytes += text;
        }
    putNumber(bytes, static_cast<uint32_t>(libraries_.size()));
    bytes += libraries_;
    putNumber(bytes, static_cast<uint32_t>(log_.size()));
    for (const int answer : log_) putNumber(bytes, static_cast<uint32_t>(answer));
    return bytes;
}

bool Sources::unpack(std::string_view bytes) {
    uint32_t count = 0;
    if (!takeNumber(bytes, count) || count == 0) return false;
    for (uint32_t i = 0; i < count; ++i) {
        SourceFile file;
        if (!takeText(bytes, file.path) || !takeText(bytes, file.text)) return false;
        files_.push_back(std::move(file));
    }
    if (!takeText(bytes, libraries_)) return false;
    if (!takeNumber(bytes, count) || bytes.size() != size_t{count} * 4) return false;
    for (uint32_t answer = 0; takeNumber(bytes, answer);) {
        if (static_cast<int>(answer) >= static_cast<int>(files_.size())) return false;
        log_.push_back(static_cast<int>(answer));
    }
    replaying_ = true;
    return true;
}

}
