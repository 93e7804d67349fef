// The whole platform for one test: a folder of its own as AppDir, and every service scripted or in memory.
#pragma once

#include "HeadlessDock.h"
#include "support/FakeDialogs.h"
#include "support/FakePlatform.h"

#include <string>
#include <string_view>

// Becomes the platform, and restores the previous one at its end. Fails the test if a scripted answer or
// child was not used, or if an unexpected failure was reported.
class FakeHost {
public:
    FakeHost();
    ~FakeHost();
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    // A path below the test's own folder.
    std::string Path(std::string_view below) const { return folder + "/" + std::string(below); }
    // Writes a file there, with its folders, and returns its path.
    std::string Put(std::string_view below, std::string_view bytes);
    // What the failure path wrote since the test began.
    std::string ErrorLog();
    // From here on a taken failure path is part of the test.
    void ExpectErrorLog() { errorsExpected_ = true; }

    std::string folder;
    FakeDialogs dialogs;
    FakeFiles files;
    FakeSettings settings;
    FakeProcesses processes;
    FakeDesktop desktop;
    FakeClock clock;
    FakeInstances instances;
    FakeViews views;
    HeadlessDock dock;

private:
    std::string oldAppDir_;
    bool errorsExpected_ = false;
};
