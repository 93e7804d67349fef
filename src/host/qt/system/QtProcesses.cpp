// Child processes of this host: started here, polled by their owner.
#include "host/qt/system/QtProcesses.h"

#include "host/Outside.h"
#include "host/qt/system/ChildOnPipes.h"
#include "host/qt/system/CommandText.h"
#include "host/qt/system/Spawn.h"
#include "host/qt/system/Terminal.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Room for a burst of output between two polls.
constexpr int PipeBytes = 256 * 1024;
constexpr int PollMilliseconds = 10;

struct Pipe {
    FileHandle reader;
    FileHandle writer;
};

enum class OurEnd { Reader, Writer };

// Our end never blocks; the child's end is as a program expects it.
bool MakePipe(Pipe& made, OurEnd ours, SystemError& error) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        error = LastSystemError(errno);
        return false;
    }
    made = {FileHandle(ends[0]), FileHandle(ends[1])};
    const int own = ends[ours == OurEnd::Reader ? 0 : 1];
    fcntl(own, F_SETPIPE_SZ, PipeBytes); // a smaller pipe works too
    if (fcntl(own, F_SETFL, O_NONBLOCK) == 0) return true;
    error = LastSystemError(errno);
    return false;
}

}

QtProcesses::QtProcesses() {
    std::signal(SIGPIPE, SIG_IGN);
    // A pipe must never take the place of a standard stream that was closed at the start.
    int place;
    do place = open("/dev/null", O_RDWR);
    while (place >= 0 && place <= STDERR_FILENO);
    if (place > STDERR_FILENO) close(place);
}

std::unique_ptr<ChildProcess> QtProcesses::Start(const ProcessStart& start, bool& pipeFailed,
                                                 SystemError& error) {
    ReapLeftAlone();
    Pipe input, output, errors;
    pipeFailed = !MakePipe(input, OurEnd::Writer, error) || !MakePipe(output, OurEnd::Reader, error) ||
                 !MakePipe(errors, OurEnd::Reader, error);
    if (pipeFailed) return nullptr;
    SpawnRequest request;
    request.arguments = SplitCommand(start.command);
    error = PrepareCommand(request.arguments);
    if (error) return nullptr;
    request.directory = start.directory;
    request.input = input.reader.Get();
    request.output = output.writer.Get();
    request.error = errors.writer.Get();
    const pid_t child = Spawn(request, error);
    if (child == 0) return nullptr;
    return std::make_unique<ChildOnPipes>(child, std::move(input.writer), std::move(output.reader),
                                          std::move(errors.reader));
}

SystemError QtProcesses::StartDetached(const std::string& command) {
    ReapLeftAlone();
    SpawnRequest request;
    request.arguments = SplitCommand(command);
    if (SystemError error = PrepareCommand(request.arguments)) return error;
    return Release(request);
}

bool QtProcesses::HasTerminal() { return !FindTerminal().empty(); }

SystemError QtProcesses::StartInTerminal(const ProcessStart& start) {
    ReapLeftAlone();
    SpawnRequest request;
    request.directory = start.directory;
    request.arguments = SplitCommand(start.command);
    if (SystemError error = PrepareCommand(request.arguments)) return error;
    request.arguments = InTerminal(FindTerminal(), request.arguments);
    if (SystemError error = PrepareCommand(request.arguments)) return error;
    return Release(request);
}

// Starts a process that nobody waits for.
SystemError QtProcesses::Release(SpawnRequest request) {
    request.output = STDOUT_FILENO;
    request.error = STDERR_FILENO;
    request.lowPriority = false;
    SystemError error;
    if (const pid_t child = Spawn(request, error)) leftAlone_.push_back(child);
    return error;
}

bool QtProcesses::RunIntoFile(const std::string& command, const std::string& target, int milliseconds) {
    ReapLeftAlone();
    SpawnRequest request;
    request.arguments = SplitCommand(command);
    if (PrepareCommand(request.arguments)) return false;
    const FileHandle file(open(target.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (!file) return false;
    request.output = file.Get();
    SystemError error;
    const pid_t child = Spawn(request, error);
    if (child == 0) return false;
    QElapsedTimer clock;
    clock.start();
    while (waitpid(child, nullptr, WNOHANG) == 0) {
        if (clock.elapsed() >= milliseconds) {
            leftAlone_.push_back(child);
            return false;
        }
        {
            const NestedLoop loop;
            QCoreApplication::processEvents();
        }
        usleep(PollMilliseconds * 1000);
    }
    return true;
}

void QtProcesses::SetEnvironment(const std::string& name, const std::string& value) {
    setenv(name.c_str(), value.c_str(), 1);
}

void QtProcesses::ReapLeftAlone() {
    const auto ended = [](pid_t child) { return waitpid(child, nullptr, WNOHANG) != 0; };
    leftAlone_.erase(std::remove_if(leftAlone_.begin(), leftAlone_.end(), ended), leftAlone_.end());
}
