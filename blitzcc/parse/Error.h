// Positions in the program's sources and the errors that are thrown by every phase.
// A compile error stops the check at once: only the first one is ever reported.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace blitz {

/// A place in a source file: index of the file, line and columns counted from 1, the end column
/// standing behind the last character. A token never spans two lines.
struct Pos {
    uint32_t file = 0;
    uint32_t line = 1;
    uint32_t column = 1;
    uint32_t endColumn = 1;
};

/// The first fault found in a program; the message holds no colon.
struct CompileError {
    Pos pos;
    std::string message;
};

/// A fault met while the program runs; the message holds no colon.
struct RuntimeError {
    uint32_t file = 0;
    uint32_t line = 0;
    std::string message;
};

/// Throws a CompileError.
[[noreturn]] inline void failAt(const Pos& pos, std::string message) {
    throw CompileError{pos, std::move(message)};
}

}
