// The whole platform for one test: a folder of its own as AppDir, and every service scripted or in memory.
#pragma once

#include "HeadlessDock.h"
#include "support/FakeDialogs.h"
#include "support/FakePlatform.h"

#include <string>
#include <string_view>

// Makes itself the platform, and gives back what was there when the test ends. At its end it fails the test
// when a scripted answer or child was not used, or when the failure path was taken without being expected.
class FakeHost {
public:
    FakeHost();
    ~FakeHost();
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    // A path below the test's own folder.
    std::string Path(std::string_view below) const { return folder + "/" + std::string(below); }
    // Writes a file there, with its folders, and answers its path.
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
    FakeInstances instances;
    FakeViews views;
    HeadlessDock dock;

private:
    std::string oldAppDir_;
    bool errorsExpected_ = false;
};
