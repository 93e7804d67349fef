// The exception type of the program. A routine that fails throws one; the entry point above it reports it,
// and the program goes on.
#pragma once

#include <exception>
#include <string>
#include <utility>

struct Failure : std::exception {
    Failure(int failureNumber, std::string text, std::string from = "Zolto")
        : number(failureNumber), description(std::move(text)), source(std::move(from)) {}

    const char* what() const noexcept override { return description.c_str(); }

    int number;
    std::string description;
    std::string source;
};

// Numbers that callers test for.
constexpr int FailureMissingKey = 5;
constexpr int FailureOutOfRange = 9;
constexpr int FailureTypeMismatch = 13;
constexpr int FailureFileNotFound = 53;
constexpr int FailureFileAccess = 75;
constexpr int FailurePathNotFound = 76;
constexpr int FailureDuplicateKey = 457;
constexpr int FailureNoDocumentWindow = 50000;
