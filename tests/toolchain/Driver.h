// The compile driver on a session whose compiler is a script, with the windows of progress and output as
// records.
#pragma once

#include "documents/Session.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "toolchain/Mod_Compiler.h"
#include "toolchain/ToolchainCalls.h"

#include <gtest/gtest.h>

struct Driver : testing::Test {
    Session session;
    FakeDialogs& dialogs = session.host.dialogs;
    FakeProcesses& processes = session.host.processes;
    std::string compiler = session.host.Put("Compilers/ZoltoBasic/bin/blitzcc", "");

    std::vector<std::string> output, labels;
    bool progress = false; // the window is there
    std::vector<int> bars; // the values that the progress window was given
    int cleared = 0, scrolled = 0;

    void SetUp() override {
        SaveNothingExtra();
        gToolchainCalls.ClearOutput = [this] { ++cleared, output.clear(); };
        gToolchainCalls.AppendOutput = [this](const std::string& line) { output.push_back(line); };
        gToolchainCalls.ScrollOutputToEnd = [this] { ++scrolled; };
        gToolchainCalls.ShowCompiling = [this](const std::string& label) {
            labels.push_back(label);
            progress = true;
        };
        gToolchainCalls.CloseCompiling = [this] { progress = false; };
        gToolchainCalls.SetCompilingValue = [this](int value) { bars.push_back(value); };
    }
    void TearDown() override {
        gToolchainCalls = {};
        Mod_Compiler::gLastCompiledFile.clear();
    }

    // The command text of a job whose child says nothing.
    std::string Command(const std::function<void()>& job) {
        processes.WillStart({});
        job();
        session.host.clock.Advance(200);
        EXPECT_FALSE(progress);
        return processes.started.empty() ? std::string() : processes.started.back();
    }
    // Runs a check of the active document whose child prints these lines.
    void Check(std::deque<std::string> lines) {
        for (std::string& line : lines) line += "\r\n";
        processes.WillStart({.output = std::move(lines)});
        Mod_Compiler::CheckForErrors(ActiveForm()->FullFilename);
        session.host.clock.Advance(2000);
    }
    std::string Quoted(const std::string& text) { return '"' + text + '"'; }
};
