// What the compile commands may ask of the windows that show their progress. Empty by default.
#pragma once

#include "host/Request.h"

#include <string>

struct ToolchainCalls {
    // The Output pane.
    Request<void()> ClearOutput;
    Request<void(const std::string& line)> AppendOutput;
    Request<void()> ScrollOutputToEnd;
    // The progress window, and its bar from 0 to 100.
    Request<void(const std::string& label)> ShowCompiling;
    Request<void()> CloseCompiling;
    Request<void(int value)> SetCompilingValue;
};
extern ToolchainCalls gToolchainCalls; // written by the wiring of the application alone
