// Runs a built program without a display and takes what it prints.
#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <string>
#include <vector>

struct Outcome {
    int status = -1; // -1 when it did not end by itself
    std::string output;
    std::string errors;
};

// `arguments` in the order given; the child's settings and data folders are empty ones of its own.
Outcome RunProgram(const std::string& program, const std::vector<std::string>& arguments);
