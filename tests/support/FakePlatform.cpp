// Settings in memory, a clock that a test turns, processes from a script.
#include "support/FakePlatform.h"

#include "host/Failure.h"
#include "host/Outside.h"
#include "host/Text.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr int ViewWidth = 800;
constexpr int ViewHeight = 600;

std::string Folded(const std::string& section, const std::string& key) { return LCase(section + "/" + key); }

class FakeChild : public ChildProcess {
public:
    FakeChild(ChildScript script, FakeProcesses& owner) : script_(std::move(script)), owner_(owner) {}

    SystemError BytesWaiting(ChildPipe pipe, int& count) override {
        const auto& chunks = Of(pipe);
        count = chunks.empty() ? 0 : static_cast<int>(chunks.front().size());
        return {};
    }
    SystemError Read(ChildPipe pipe, int count, std::string& bytes) override {
        auto& chunks = Of(pipe);
        EXPECT_EQ(count, static_cast<int>(chunks.front().size()));
        bytes = chunks.front();
        chunks.pop_front();
        return {};
    }
    SystemError Write(std::string_view bytes, int& written) override {
        written = std::min(static_cast<int>(bytes.size()), script_.inputRoom);
        script_.inputRoom -= written;
        owner_.input += bytes.substr(0, static_cast<std::size_t>(written));
        return script_.writeError;
    }
    bool HasEnded() override {
        return killed_ || (script_.ends && script_.output.empty() && script_.errors.empty());
    }
    SystemError Kill() override {
        killed_ = true;
        ++owner_.killed;
        return {};
    }
    SystemError Close() override { return {}; }

private:
    std::deque<std::string>& Of(ChildPipe pipe) {
        return pipe == ChildPipe::Output ? script_.output : script_.errors;
    }

    ChildScript script_;
    FakeProcesses& owner_;
    bool killed_ = false;
};

}

std::string FakeSettings::Get(const std::string& section, const std::string& key,
                              const std::string& byDefault) {
    const auto at = values.find(Folded(section, key));
    return at == values.end() ? byDefault : at->second;
}

void FakeSettings::Save(const std::string& section, const std::string& key, const std::string& text) {
    values[Folded(section, key)] = text;
}

void FakeSettings::Delete(const std::string& section, const std::string& key) {
    values.erase(Folded(section, key));
}

void FakeFiles::Try(const std::string& access) const {
    for (const auto& [beginning, text] : failing)
        if (access.starts_with(beginning)) throw Failure(FailureFileAccess, access.substr(1) + ": " + text);
}

std::string FakeFiles::Read(const std::string& path) {
    Try("r" + path);
    return QtFiles::Read(path);
}

void FakeFiles::Write(const std::string& path, std::string_view bytes) {
    Try("w" + path);
    if (writesFail) throw Failure(FailureFileAccess, path + ": No space left on device");
    QtFiles::Write(path, bytes);
}

void FakeFiles::Remove(const std::string& path) {
    Try("w" + path);
    QtFiles::Remove(path);
}

void FakeFiles::Rename(const std::string& from, const std::string& to) {
    Try("w" + from);
    Try("w" + to);
    QtFiles::Rename(from, to);
}

void FakeFiles::MakeFolders(const std::string& path) {
    Try("w" + path);
    QtFiles::MakeFolders(path);
}

std::vector<std::string> FakeFiles::List(const std::string& folder) {
    Try("r" + folder);
    return QtFiles::List(folder);
}

void FakeDesktop::Pump() {
    const NestedLoop loop;
    QCoreApplication::processEvents();
}

bool FakeDesktop::WaitsForUser() {
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

int FakeClock::SetTimer(int milliseconds, std::function<void()> tick) {
    timers_[++lastTimer_] = {milliseconds, milliseconds, std::move(tick)};
    return lastTimer_;
}

void FakeClock::Advance(int milliseconds) {
    for (int passed = 0; passed < milliseconds; ++passed) {
        std::vector<int> due;
        for (auto& [id, timer] : timers_)
            if (--timer.left <= 0) {
                timer.left = timer.period;
                due.push_back(id);
            }
        for (const int id : due) {
            const auto at = timers_.find(id); // an earlier tick may have killed it
            if (at == timers_.end()) continue;
            const auto tick = at->second.tick;
            tick();
        }
    }
}

std::string FakeDesktop::FontFor(const std::string& name) { return name.empty() ? "Monospace" : name; }

std::string FakeDesktop::ShortPath(const std::string& path) {
    return access(path.c_str(), F_OK) == 0 ? path : std::string{};
}

void FakeDesktop::EndProcess(int status) {
    ADD_FAILURE() << "The process was ended with status " << status;
    throw Failure(0, "EndProcess");
}

void FakeProcesses::ExpectUsedUp() const {
    EXPECT_TRUE(scripts_.empty()) << scripts_.size() << " scripted children were not started";
}

std::unique_ptr<ChildProcess> FakeProcesses::Start(const ProcessStart& start, bool& pipeFailed,
                                                   SystemError& error) {
    started.push_back(start.command);
    if (scripts_.empty()) {
        ADD_FAILURE() << "Not scripted: the start of " << start.command;
        error = {2, "No such file or directory"};
        return nullptr;
    }
    ChildScript script = std::move(scripts_.front());
    scripts_.pop_front();
    pipeFailed = script.pipeFails;
    error = script.startError;
    if (pipeFailed || error) return nullptr;
    return std::make_unique<FakeChild>(std::move(script), *this);
}

SystemError FakeProcesses::StartDetached(const std::string& command) {
    detached.push_back(command);
    return releaseError;
}

SystemError FakeProcesses::StartInTerminal(const ProcessStart& start) {
    inTerminal.push_back(start.command);
    return releaseError;
}

bool FakeProcesses::RunIntoFile(const std::string& command, const std::string& target, int) {
    redirected.push_back(command);
    QtFiles().Write(target, redirectedOutput);
    return true;
}

std::unique_ptr<EditorView> FakeViews::Create() {
    if (fails) return nullptr;
    auto view = std::make_unique<QtEditorView>();
    auto* widget = static_cast<QWidget*>(view->NativeWidget());
    widget->resize(ViewWidth, ViewHeight);
    return view;
}
