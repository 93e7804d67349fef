// Settings in memory, a clock that a test turns, processes from a script, and real files with a switch that
// makes writing fail.
#pragma once

#include "host/Clock.h"
#include "host/Desktop.h"
#include "host/Instances.h"
#include "host/Processes.h"
#include "host/SettingsStore.h"
#include "host/qt/system/QtFiles.h"
#include "host/qt/view/QtEditorView.h"

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

class FakeSettings : public SettingsStore {
public:
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& byDefault) override;
    void Save(const std::string& section, const std::string& key, const std::string& text) override;
    void Delete(const std::string& section, const std::string& key) override;

    std::map<std::string, std::string> values; // "section/key" in lower case
};

class FakeFiles : public QtFiles {
public:
    std::string Read(const std::string& path) override;
    void Write(const std::string& path, std::string_view bytes) override;
    void Remove(const std::string& path) override;
    void Rename(const std::string& from, const std::string& to) override;
    void MakeFolders(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder) override;
    void OpenWithDesktop(const std::string& path) override { openedWithDesktop.push_back(path); }

    // What begins like a key fails with the text of it: "r" for reading, "w" for changing anything, and a
    // path.
    std::map<std::string, std::string> failing;
    bool writesFail = false; // with the number FailureFileAccess and the text "No space left on device"
    std::vector<std::string> openedWithDesktop;

private:
    void Try(const std::string& access) const;
};

class FakeDesktop : public Desktop {
public:
    void Pump() override;
    bool WaitsForUser() override;
    void SetWaitCursor(bool on) override { waitCursor = on; }
    void LockWindowUpdate(bool lock) override { locks += lock ? 1 : -1; }
    void Beep() override { ++beeps; }
    bool ShiftDown() override { return shift; }
    bool ControlDown() override { return control; }
    ScreenSize Screen() override { return {1920 * 15, 1080 * 15}; }
    std::string FontFor(const std::string& name) override;
    std::string OsName() override { return "TestOS"; }
    std::string OsVersion() override { return "1.2"; }
    std::string OsBuild() override { return "3"; }
    std::string ShortPath(const std::string& path) override;
    // Fails the test: a test cannot continue after the end of the process.
    [[noreturn]] void EndProcess(int status) override;

    bool shift = false, control = false, waitCursor = false;
    int beeps = 0, locks = 0;

private:
};

class FakeClock : public Clock {
public:
    int SetTimer(int milliseconds, std::function<void()> tick) override;
    void KillTimer(int id) override { timers_.erase(id); }
    std::string Date() override { return date; }
    std::string Time() override { return time; }
    std::string ShortDate(int, int, int) override { return shortDate; }

    // Lets time pass: every timer fires as often as it would have.
    void Advance(int milliseconds);
    std::size_t Timers() const { return timers_.size(); }

    std::string date = "2001-02-03", time = "04:05:06", shortDate = "25.12.93";

private:
    struct Timer {
        int period;
        int left;
        std::function<void()> tick;
    };
    std::map<int, Timer> timers_;
    int lastTimer_ = 0;
};

// What one child will do: a chunk of each pipe a poll, then its end.
struct ChildScript {
    std::deque<std::string> output = {};
    std::deque<std::string> errors = {};
    bool ends = true;
    bool pipeFails = false;
    SystemError startError = {};
    SystemError writeError = {};
    int inputRoom = 1 << 20; // bytes that its input takes at once
};

class FakeProcesses : public Processes {
public:
    void WillStart(ChildScript script) { scripts_.push_back(std::move(script)); }
    void ExpectUsedUp() const;

    std::unique_ptr<ChildProcess> Start(const ProcessStart& start, bool& pipeFailed,
                                        SystemError& error) override;
    SystemError StartDetached(const std::string& command) override;
    bool HasTerminal() override { return hasTerminal; }
    SystemError StartInTerminal(const ProcessStart& start) override;
    bool RunIntoFile(const std::string& command, const std::string& target, int milliseconds) override;
    void SetEnvironment(const std::string& name, const std::string& value) override {
        environment[name] = value;
    }

    bool hasTerminal = true;
    SystemError releaseError;                                           // of what is not captured
    std::vector<std::string> started, detached, inTerminal, redirected; // the command texts
    std::map<std::string, std::string> environment;
    std::string redirectedOutput; // what RunIntoFile writes
    std::string input;            // what was written to all children
    int killed = 0;

private:
    std::deque<ChildScript> scripts_;
};

class FakeInstances : public Instances {
public:
    bool AnotherRuns() override { return anotherRuns; }
    std::string Publish(std::function<void(const std::string&)> received) override {
        receive = std::move(received);
        return "4711:channel";
    }
    void WaitForPublish() override { ++waits; }
    bool Send(const std::string& handle, const std::string& text) override {
        if (nobodyListens) return false;
        sent.push_back(handle + " " + text);
        return true;
    }
    void Withdraw() override {
        if (receive && !onTheWay.empty()) receive(std::exchange(onTheWay, {}));
        receive = nullptr;
    }

    bool anotherRuns = false, nobodyListens = false;
    int waits = 0;
    std::vector<std::string> sent;
    std::string onTheWay; // is received when the channel closes
    std::function<void(const std::string&)> receive;
};

// Real edit controls of a fixed size, never shown.
class FakeViews : public EditorViews {
public:
    std::unique_ptr<EditorView> Create() override;
    bool fails = false;
};
