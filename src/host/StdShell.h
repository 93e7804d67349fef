// One child process whose output comes as events, line by line, from a 50 ms poll.
// The events are the only report of a failure.
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
    ~StdShell(); // what runs is killed
    StdShell(const StdShell&) = delete;
    StdShell& operator=(const StdShell&) = delete;

    bool Running() const { return timerId_ != 0; }

    // Starts a command, and pumps once so that first output may come. False, after an Error event, when
    // one runs already or the start failed.
    bool Execute(const std::string& commandString, const std::string& consoleName,
                 const std::string& currentDir);
    // The same without looking for the child's window.
    bool ExecuteNoCheck(const std::string& commandString, const std::string& currentDir);
    // Queues text for the child's input.
    void WriteConsole(const std::string& text);
    // Kills the child; it counts as running until the next poll. False after an Error event.
    bool Terminate();

    // One poll; the timer calls it, and so may a test.
    void Tick();

    std::function<void(const std::string& line)> ConsoleOutput;
    std::function<void(const std::string& line)> ConsoleError;
    std::function<void(int exitCode)> ProcessComplete;
    std::function<void(const std::string& message, int number)> Error;
    std::function<void()> ProcessStarted;

    // The longest line that is waited for; a longer one is delivered in pieces of this many bytes.
    static constexpr std::size_t LongestLine = 1 << 20;

private:
    using LineEvent = std::function<void(const std::string& line)>;

    bool Start(const std::string& command, const std::string& directory, const char* pipeMessage);
    void Poll(ChildPipe pipe, std::string& partial, const LineEvent& event);
    static void DeliverRest(std::string& partial, const LineEvent& event);
    void FeedInput();
    void Report(const SystemError& error);
    void DeliverLines(const std::string& data, std::string& partial, const LineEvent& event);

    // Becomes false when this object ends; event handlers may end it.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    bool inTick_ = false;
    int timerId_ = 0;
    std::string command_;
    std::string pendingInput_;
    std::string partialOutput_;
    std::string partialError_;
    std::unique_ptr<ChildProcess> child_;
};
