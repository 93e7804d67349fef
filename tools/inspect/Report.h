// What the engine knows, as one JSON object.
#pragma once

#include <map>
#include <string>
#include <vector>

// Which parts to print, and how long the stages took (microseconds; empty prints none).
struct ReportOptions {
    bool symbols = true;
    bool styles = true;
    bool folds = true;
    bool indents = true;
    bool markers = true;
    bool text = false;
    std::map<std::string, long long> times;
    std::vector<long long> editTimes; // microseconds of each operation
};

// Colours every line of every open document of the current project with the light pass.
void StyleAll();
// The report of the current project.
std::string Report(const ReportOptions& options);
