// One child process whose output arrives as events, line by line, from a poll every 50 ms. Failures are
// reported as Error events.
#pragma once

#include "host/Processes.h"

#include <functional>
#include <memory>
#include <string>

class StdShell {
public:
    static constexpr int ErrorAlreadyRunning = static_cast<int>(0x80040001);
    static constexpr int ErrorNotRunning = static_cast<int>(0x80040002);

    StdShell();
    ~StdShell(); // kills a child that still runs
    StdShell(const StdShell&) = delete;
    StdShell& operator=(const StdShell&) = delete;

    bool Running() const { return timerId_ != 0; }

    // Starts a command and pumps events once for its first output. False, after an Error event, if a child
    // runs already or the start failed.
    bool Execute(const std::string& commandString, const std::string& consoleName,
                 const std::string& currentDir);
    // Starts a command without pumping events. Otherwise like Execute.
    bool ExecuteNoCheck(const std::string& commandString, const std::string& currentDir);
    // Queues text for the child's input.
    void WriteConsole(const std::string& text);
    // Kills the child, which counts as running until the next poll. False after an Error event.
    bool Terminate();

    // Polls once. Called by the timer, and by tests.
    void Tick();

    std::function<void(const std::string& line)> ConsoleOutput;
    std::function<void(const std::string& line)> ConsoleError;
    std::function<void(int exitCode)> ProcessComplete;
    std::function<void(const std::string& message, int number)> Error;
    std::function<void()> ProcessStarted;

    // A longer line is delivered in pieces of this many bytes, before its end has arrived.
    static constexpr std::size_t LongestLine = 1 << 20;

private:
    using LineEvent = std::function<void(const std::string& line)>;

    bool Start(const std::string& command, const std::string& directory, const char* pipeMessage);
    void Poll(ChildPipe pipe, std::string& partial, const LineEvent& event);
    static void DeliverRest(std::string& partial, const LineEvent& event);
    void FeedInput();
    void Report(const SystemError& error);
    void DeliverLines(const std::string& data, std::string& partial, const LineEvent& event);

    // Becomes false when this object is destroyed, which an event handler may do.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    bool inTick_ = false;
    int timerId_ = 0;
    std::string command_;
    std::string pendingInput_;
    std::string partialOutput_;
    std::string partialError_;
    std::unique_ptr<ChildProcess> child_;
};
