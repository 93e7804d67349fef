// Child processes whose input, output and error output are pipes. There are no threads: the caller polls.
#pragma once

#include <memory>
#include <string>
#include <string_view>

// Number and text of a failed system call. Number 0 means success.
struct SystemError {
    int number = 0;
    std::string text;
    explicit operator bool() const { return number != 0; }
};

enum class ChildPipe { Output, Error };

class ChildProcess {
public:
    virtual ~ChildProcess() = default; // kills a child that still runs

    // The number of bytes that can be read without waiting; limited, so that a poll stays short.
    virtual SystemError BytesWaiting(ChildPipe pipe, int& count) = 0;
    // Reads exactly `count` bytes, at most as many as BytesWaiting reported. A bare LF becomes CR LF.
    virtual SystemError Read(ChildPipe pipe, int count, std::string& bytes) = 0;
    // Writes as many bytes as the child's input accepts without waiting, and sets `written` to their number.
    virtual SystemError Write(std::string_view bytes, int& written) = 0;
    // True after the child has ended and all its output was read.
    virtual bool HasEnded() = 0;
    // Kills the child and all processes that it started.
    virtual SystemError Kill() = 0;
    // Closes all pipes. Returns the first error.
    virtual SystemError Close() = 0;
};

struct ProcessStart {
    std::string command;   // one text; an argument with blanks is in double quotes
    std::string directory; // empty: the current one
};

class Processes {
public:
    virtual ~Processes() = default;

    // Starts a child with low priority. Null, with `error` set, if that failed; `pipeFailed` if the pipes
    // were the reason.
    virtual std::unique_ptr<ChildProcess> Start(const ProcessStart& start, bool& pipeFailed,
                                                SystemError& error) = 0;
    // Starts an independent program whose output is not captured.
    virtual SystemError StartDetached(const std::string& command) = 0;
    // Whether this system has a terminal program.
    virtual bool HasTerminal() = 0;
    // Starts a program in a new terminal window.
    virtual SystemError StartInTerminal(const ProcessStart& start) = 0;
    // Runs a command with its output going to a file, and pumps events meanwhile. False if the command takes
    // longer than `milliseconds`; it is left running then.
    virtual bool RunIntoFile(const std::string& command, const std::string& target, int milliseconds) = 0;
    virtual void SetEnvironment(const std::string& name, const std::string& value) = 0;
};
