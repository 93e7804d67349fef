// Child processes with their three ends on pipes, without threads: the caller polls.
#pragma once

#include <memory>
#include <string>
#include <string_view>

// The system's number and text of a failed call.
struct SystemError {
    int number = 0;
    std::string text;
    explicit operator bool() const { return number != 0; }
};

enum class ChildPipe { Output, Error };

class ChildProcess {
public:
    virtual ~ChildProcess() = default; // what still runs is killed

    // Bytes that can be read from a pipe without waiting; bounded, so one poll stays short.
    virtual SystemError BytesWaiting(ChildPipe pipe, int& count) = 0;
    // Reads exactly `count` bytes that BytesWaiting told of. A bare LF comes as CR LF.
    virtual SystemError Read(ChildPipe pipe, int count, std::string& bytes) = 0;
    // Writes what the child's input takes now; `written` tells how many bytes that were.
    virtual SystemError Write(std::string_view bytes, int& written) = 0;
    // True once the child has ended and nothing waits in its pipes any more.
    virtual bool HasEnded() = 0;
    // Kills the child with all that it started.
    virtual SystemError Kill() = 0;
    // Closes all ends; the number of the first that failed is answered.
    virtual SystemError Close() = 0;
};

struct ProcessStart {
    std::string command;   // one text; double quotes hold arguments with blanks together
    std::string directory; // empty: the present one
};

class Processes {
public:
    virtual ~Processes() = default;

    // Starts a child on three pipes with low priority. Null, with `error` set, when a pipe
    // (`pipeFailed`) or the start failed.
    virtual std::unique_ptr<ChildProcess> Start(const ProcessStart& start, bool& pipeFailed,
                                                SystemError& error) = 0;
    // Starts a program of its own, uncaptured. The error is empty on success.
    virtual SystemError StartDetached(const std::string& command) = 0;
    // Whether this system has a terminal program.
    virtual bool HasTerminal() = 0;
    // Starts a program in a terminal window of its own. The error is empty on success.
    virtual SystemError StartInTerminal(const ProcessStart& start) = 0;
    // Runs a command with its output going to a file, pumping events, for at most `milliseconds`;
    // then it is left running. True when it ended in time.
    virtual bool RunIntoFile(const std::string& command, const std::string& target, int milliseconds) = 0;
    virtual void SetEnvironment(const std::string& name, const std::string& value) = 0;
};
