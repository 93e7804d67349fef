// Generated sources of a given length, as text, on disk and open in the program.
#pragma once

#include <string>

std::string Source(int lines);
// Writes a source to a temporary file and returns its path.
std::string FileOf(int lines);
void CloseActive();

// A generated source that is open and active for as long as it lives.
class OpenSource {
public:
    explicit OpenSource(int lines);
    ~OpenSource();
    OpenSource(const OpenSource&) = delete;
    OpenSource& operator=(const OpenSource&) = delete;

private:
    std::string path_;
};
