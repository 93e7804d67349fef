// The program's source files: finds and reads them, each included file once.
// A bundle (a built executable) replays the same includes from memory.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace blitz {

struct SourceFile {
    std::string path; // absolute
    std::string text;
};

/// Reads a regular file as bytes; false with a reason (no colon in it) when it can't be read.
bool readFile(const std::string& path, std::string& text, std::string& reason);

/// The path under which a file exists: `path` itself, or the one that differs from it only in the case
/// of its components; backslashes count as separators. Empty if there is none.
std::string findFile(const std::string& path);

/// The path for a file that may have to be made: as findFile, or its name in the folder found for it.
std::string targetPath(const std::string& path);

/// An absolute path without . and .. components.
std::string absolutePath(const std::string& path);

class Sources {
public:
    /// Reads the main file; false with a reason on failure.
    bool loadMain(const std::string& path, std::string& reason);

    /// Reads an included file: its index, or -1 when it was read before, or -2 with a reason.
    int include(std::string_view name, uint32_t fromFile, std::string& reason);

    /// The files in the order of their loading; the main file is the first. Texts keep their address.
    const std::deque<SourceFile>& files() const { return files_; }

    /// The declarations of libraries that the program was checked with; they travel with a bundle.
    const std::string& libraries() const { return libraries_; }
    void setLibraries(std::string text) { libraries_ = std::move(text); }
    /// Whether this is a bundle, which finds all it needs in itself.
    bool isBundle() const { return replaying_; }

    /// The files and includes as one string of bytes, and back; false if the bytes are no bundle.
    std::string pack() const;
    bool unpack(std::string_view bytes);

private:
    std::string resolve(std::string_view name, uint32_t fromFile) const;

    std::deque<SourceFile> files_;
    std::string libraries_;
    std::vector<int> log_; // the answer of each include
    size_t replay_ = 0;    // the next answer when replaying
    bool replaying_ = false;
};

}
