// The whole platform for one test.
#include "support/FakeHost.h"

#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/HostCalls.h"
#include "host/Outside.h"
#include "host/Paths.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

FakeHost::FakeHost() : oldAppDir_(AppDir()) {
    std::string name = (fs::temp_directory_path() / "zolto-test-XXXXXX").string();
    folder = mkdtemp(name.data());
    SetAppDir(folder);
    gHost = {&dialogs, &files, &settings, &processes, &desktop, &clock, &instances, &views, &dock};
    gHostCalls.ShowErrorDialog = nullptr;
    gHostCalls.CountOpenFiles = nullptr;
    gErrorDialogShown = false;
    dock.showsForms = true;
}

FakeHost::~FakeHost() {
    dialogs.ExpectUsedUp();
    processes.ExpectUsedUp();
    if (!errorsExpected_) {
        EXPECT_EQ(ErrorLog(), "");
    }
    EXPECT_EQ(WaitingFromOutside(), 0u);
    EXPECT_LE(desktop.locks, 0) << "the main window is not painted";
    EXPECT_EQ(dock.suspended, 0) << "the frame is not painted";
    EXPECT_FALSE(desktop.waitCursor);
    ForgetOutside();
    gHost = {};
    SetAppDir(oldAppDir_);
    std::error_code error;
    fs::remove_all(folder, error);
}

std::string FakeHost::Put(std::string_view below, std::string_view bytes) {
    const std::string path = Path(below);
    fs::create_directories(fs::path(path).parent_path());
    QtFiles().Write(path, bytes);
    return path;
}

std::string FakeHost::ErrorLog() {
    const std::string log = folder + "/error.log";
    return fs::exists(log) ? QtFiles().Read(log) : std::string{};
}
