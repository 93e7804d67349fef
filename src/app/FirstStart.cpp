// Fills the user's program directory from the installed data. The file ".installed" records for each copied
// file the size and time of its source and a hash of its contents: an unchanged source costs one look at its
// size and time, and a copy whose hash still agrees has not been changed by the user.
#include "app/FirstStart.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct Copied {
    std::uintmax_t size = 0;
    std::int64_t time = 0;
    std::uint64_t hash = 0; // 0: the user's own file
    bool operator==(const Copied&) const = default;
};

using Manifest = std::map<std::string, Copied>;

// FNV-1a, 64 bits. Returns 0 for a file that cannot be read.
std::uint64_t HashOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) return 0;
    std::uint64_t hash = 0xcbf29ce484222325;
    for (std::istreambuf_iterator<char> at(stream), end; at != end; ++at)
        hash = (hash ^ static_cast<unsigned char>(*at)) * 0x100000001b3;
    return hash;
}

Manifest ReadManifest(const fs::path& file) {
    Manifest manifest;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        std::istringstream fields(line);
        Copied copied;
        std::string name;
        if (fields >> copied.size >> copied.time >> std::hex >> copied.hash && fields.get() == ' ' &&
            std::getline(fields, name))
            manifest[name] = copied;
    }
    return manifest;
}

// A manifest that cannot be written only means that the next version replaces nothing.
void WriteManifest(const fs::path& file, const Manifest& manifest) {
    const fs::path beside = file.string() + ".new";
    std::error_code ignored;
    {
        std::ofstream stream(beside);
        for (const auto& [name, copied] : manifest)
            stream << std::dec << copied.size << ' ' << copied.time << ' ' << std::hex << copied.hash << ' '
                   << name << '\n';
        if (!stream.flush()) return;
    }
    fs::rename(beside, file, ignored);
}

// Replaces the target in one step: another instance may be reading it. The user may write the copy even if
// the installed file is write-protected.
void Copy(const fs::path& source, const fs::path& target, std::error_code& error) {
    const fs::path beside = target.string() + ".new";
    fs::remove(beside, error);
    fs::copy_file(source, beside, error);
    if (!error) fs::permissions(beside, fs::perms::owner_write, fs::perm_options::add, error);
    if (!error) fs::rename(beside, target, error);
    std::error_code ignored;
    if (error) fs::remove(beside, ignored);
}

// Brings one file up to date and its record with it.
void Fill(const fs::path& source, const fs::path& target, Copied& record, std::error_code& error) {
    const Copied now{fs::file_size(source, error),
                     error ? 0 : fs::last_write_time(source, error).time_since_epoch().count(), 0};
    if (error) return;
    const bool missing = !fs::exists(target);
    if (!missing && record.size == now.size && record.time == now.time) return;
    const std::uint64_t hash = HashOf(source);
    if (missing || (record.hash != 0 && record.hash == HashOf(target))) {
        Copy(source, target, error);
        if (!error) record = {now.size, now.time, hash};
        return;
    }
    // The user's own, unless it happens to be the same: remember the source, so that it is not read at each
    // start.
    record = {now.size, now.time, HashOf(target) == hash ? hash : 0};
}

}

std::string FillAppDir(const std::string& appDir, const std::string& installed) {
    std::error_code error;
    if (!fs::is_directory(installed, error) || fs::equivalent(appDir, installed, error)) return {};
    fs::create_directories(appDir, error);
    const fs::path manifestFile = fs::path(appDir) / ".installed";
    const Manifest before = ReadManifest(manifestFile);
    Manifest manifest = before;
    for (fs::recursive_directory_iterator at(installed, error), end; !error && at != end;
         at.increment(error)) {
        const fs::path below = fs::relative(at->path(), installed, error);
        if (error) break;
        if (at->is_directory())
            fs::create_directories(fs::path(appDir) / below, error);
        else
            Fill(at->path(), fs::path(appDir) / below, manifest[below.string()], error);
        if (error) break;
    }
    if (manifest != before) WriteManifest(manifestFile, manifest);
    return error ? appDir + ": " + error.message() : std::string{};
}
