// What the compile driver asks of the windows that show its progress. Empty by default.
#pragma once

#include <functional>
#include <string>

struct ToolchainCalls {
    // The Output pane.
    std::function<void()> ClearOutput;
    std::function<void(const std::string& line)> AppendOutput;
    std::function<void()> ScrollOutputToEnd;
    // The progress window, and its bar from 0 to 100.
    std::function<void(const std::string& label)> ShowCompiling;
    std::function<void()> CloseCompiling;
    std::function<void(int value)> SetCompilingValue;
};
extern ToolchainCalls gToolchainCalls; // written by the wiring of the application alone
