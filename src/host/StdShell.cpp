// Polls a child process and delivers its output as lines. An event handler may destroy the StdShell, so every
// access after an event checks `alive` first.
#include "host/StdShell.h"

#include "host/Clock.h"
#include "host/Desktop.h"
#include "host/Host.h"

#include <utility>

namespace {

constexpr int PollMilliseconds = 50;
constexpr std::string_view LineEnd = "\r\n";

// Calls a copy of the handler, because the handler may destroy the object that holds the original.
template <class Event, class... Values>
void Raise(const Event& event, const Values&... values) {
    if (const Event copy = event) copy(values...);
}

// Sets a flag for a scope, and clears it at the end if the object of the flag still exists.
class TickMark {
public:
    TickMark(bool& flag, std::shared_ptr<bool> alive) : flag_(flag), alive_(std::move(alive)) {
        flag_ = true;
    }
    ~TickMark() {
        if (*alive_) flag_ = false;
    }
    TickMark(const TickMark&) = delete;
    TickMark& operator=(const TickMark&) = delete;

private:
    bool& flag_;
    std::shared_ptr<bool> alive_;
};

}

StdShell::StdShell() = default;

StdShell::~StdShell() {
    *alive_ = false;
    if (timerId_ != 0 && gHost.clock) gHost.clock->KillTimer(timerId_);
    // Destroying the child kills its process.
    child_.reset();
}

bool StdShell::Execute(const std::string& commandString, const std::string&, const std::string& currentDir) {
    const auto alive = alive_;
    if (!Start(commandString, currentDir, "Cannot create pipe : Error 1213")) return false;
    // The window manager brings a window of the child to the front, so only the first output is left to do.
    if (*alive) gHost.desktop->Pump();
    return true;
}

bool StdShell::ExecuteNoCheck(const std::string& commandString, const std::string& currentDir) {
    return Start(commandString, currentDir, "Cannot create pipe : Error 1214");
}

bool StdShell::Start(const std::string& command, const std::string& directory, const char* pipeMessage) {
    if (Running()) {
        Raise(Error, std::string("Process already running."), ErrorAlreadyRunning);
        return false;
    }
    command_ = command;
    partialOutput_.clear();
    partialError_.clear();
    pendingInput_.clear();
    bool pipeFailed = false;
    SystemError error;
    child_ = gHost.processes->Start({command, directory}, pipeFailed, error);
    if (!child_) {
        Raise(Error, pipeFailed ? std::string(pipeMessage) : error.text, error.number);
        return false;
    }
    timerId_ = gHost.clock->SetTimer(PollMilliseconds, [this] { Tick(); });
    Raise(ProcessStarted);
    return true;
}

void StdShell::WriteConsole(const std::string& text) { pendingInput_ += text; }

bool StdShell::Terminate() {
    if (!Running()) {
        Raise(Error, std::string("No process to terminate."), ErrorNotRunning);
        return false;
    }
    const SystemError error = child_->Kill();
    if (error) Report(error);
    return !error;
}

void StdShell::Tick() {
    // A handler may pump events and so start the next tick inside this one.
    if (!Running() || inTick_) return;
    const auto alive = alive_;
    bool ended = false;
    {
        const TickMark mark(inTick_, alive);
        Poll(ChildPipe::Output, partialOutput_, ConsoleOutput);
        if (*alive) Poll(ChildPipe::Error, partialError_, ConsoleError);
        if (*alive) FeedInput();
        ended = *alive && child_->HasEnded();
        if (ended) DeliverRest(partialOutput_, ConsoleOutput);
        if (ended && *alive) DeliverRest(partialError_, ConsoleError);
    }
    if (!ended || !*alive) return;
    gHost.clock->KillTimer(timerId_);
    const SystemError error = child_->Close();
    if (error) Report(error);
    if (!*alive) return;
    child_.reset();
    timerId_ = 0;
    // The exit code is always 0: consumers judge success by the output.
    Raise(ProcessComplete, 0);
}

void StdShell::Poll(ChildPipe pipe, std::string& partial, const LineEvent& event) {
    int count = 0;
    SystemError error = child_->BytesWaiting(pipe, count);
    std::string bytes;
    if (!error && count > 0) error = child_->Read(pipe, count, bytes);
    if (error) return Report(error);
    if (!bytes.empty()) DeliverLines(bytes, partial, event);
}

// Delivers a last line without a line end.
void StdShell::DeliverRest(std::string& partial, const LineEvent& event) {
    if (!partial.empty()) Raise(event, std::exchange(partial, {}));
}

void StdShell::FeedInput() {
    while (!pendingInput_.empty()) {
        int written = 0;
        if (const SystemError error = child_->Write(pendingInput_, written)) {
            pendingInput_.clear();
            return Report(error);
        }
        if (written <= 0) return; // the child reads slowly; the next tick sends the rest
        pendingInput_.erase(0, static_cast<std::size_t>(written));
    }
}

void StdShell::Report(const SystemError& error) { Raise(Error, error.text, error.number); }

void StdShell::DeliverLines(const std::string& data, std::string& partial, const LineEvent& event) {
    const auto alive = alive_;
    const LineEvent deliver = event;
    const auto raise = [&](std::string line) {
        if (deliver) deliver(line);
        return *alive;
    };
    std::string carried = std::exchange(partial, {});
    std::size_t start = 0;
    for (auto end = data.find(LineEnd); end != data.npos; end = data.find(LineEnd, start)) {
        if (!raise(std::exchange(carried, {}) + data.substr(start, end - start))) return;
        start = end + LineEnd.size();
    }
    // Data that ends with a line end is followed by an empty line, which is delivered too.
    if (start == data.size()) return void(raise(std::exchange(carried, {})));
    carried.append(data, start);
    while (carried.size() > LongestLine) {
        std::string piece = carried.substr(0, LongestLine);
        carried.erase(0, LongestLine);
        if (!raise(std::move(piece))) return;
    }
    partial = std::move(carried);
}
