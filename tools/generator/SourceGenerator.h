// Writes Blitz Basic programs of any length for tests and benchmarks.
// The same options give the same bytes on every machine.
#pragma once

#include <cstdint>
#include <string>

namespace generator {

struct GeneratorOptions {
    int lines = 1000;       // exact number of lines; fewer than leastLines are raised to it
    std::uint64_t seed = 1; // chooses the program
    bool lf = false;        // lines end in LF instead of CR LF
    int functions = 0;      // about how many functions; 0 for one in 25 lines
};

// The shortest program that has one declaration of each kind, a main program and a function.
constexpr int leastLines = 80;

// A correct program that ends by itself when run. It has types, globals, constants, arrays, labels, fold
// blocks and functions that call one another and the built-in commands. Every line has its line end.
std::string generate(const GeneratorOptions& options);

}
