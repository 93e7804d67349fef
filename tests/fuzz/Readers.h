// The readers of bytes that others made, each as one function from bytes to a fault. Shared by the seeded
// mutation test and by the fuzzers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Reader {
    const char* name;
    // Reads the bytes as the program does. Returns what went wrong, empty when nothing did.
    std::string (*read)(const std::string& bytes);
    // Well-formed inputs to begin with.
    std::vector<std::string> (*samples)();
    int rounds; // of the usual run: the readers differ in what one input costs
};

const std::vector<Reader>& Readers();
// Null for an unknown name.
const Reader* FindReader(std::string_view name);
