// Fork and exec. Between the two only calls that are safe after a fork; a failure there comes back through
// a pipe that the exec closes.
#include "host/qt/system/Spawn.h"

#include "host/qt/system/FileHandle.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int LowPriority = 10;

// Puts a descriptor in its place. If it is there already it only loses its close-on-exec flag.
bool PutEnd(int from, int place, int nullDevice) {
    if (from < 0) from = nullDevice;
    return from == place ? fcntl(from, F_SETFD, 0) == 0 : dup2(from, place) >= 0;
}

[[noreturn]] void RunChild(const SpawnRequest& request, char* const* arguments, int nullDevice, int report) {
    setsid();
    if (request.lowPriority) setpriority(PRIO_PROCESS, 0, LowPriority);
    // Ignored signals and the mask would be inherited by the program.
    for (const int number : {SIGPIPE, SIGXFSZ, SIGINT, SIGTERM, SIGCHLD}) std::signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    const bool ready = PutEnd(request.input, 0, nullDevice) && PutEnd(request.output, 1, nullDevice) &&
                       PutEnd(request.error, 2, nullDevice) &&
                       (request.directory.empty() || chdir(request.directory.c_str()) == 0);
    if (ready) execv(arguments[0], arguments);
    const int failure = errno;
    [[maybe_unused]] const ssize_t written = write(report, &failure, sizeof failure);
    _exit(127);
}

// The number that the child reported before its exec; 0 when the exec closed the pipe.
int ReadReport(int report) {
    int failure = 0;
    ssize_t got;
    do got = read(report, &failure, sizeof failure);
    while (got < 0 && errno == EINTR);
    return got == static_cast<ssize_t>(sizeof failure) ? failure : 0;
}

}

SystemError LastSystemError(int number) { return {number, std::generic_category().message(number)}; }

pid_t Spawn(const SpawnRequest& request, SystemError& error) {
    std::vector<char*> arguments;
    for (const std::string& argument : request.arguments)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    const FileHandle nullDevice(open("/dev/null", O_RDWR | O_CLOEXEC));
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return error = LastSystemError(errno), 0;
    const FileHandle reader(ends[0]);
    FileHandle writer(ends[1]);
    const pid_t child = fork();
    if (child < 0) return error = LastSystemError(errno), 0;
    if (child == 0) RunChild(request, arguments.data(), nullDevice.Get(), writer.Get());
    writer.Close();
    const int failure = ReadReport(reader.Get());
    if (failure == 0) return child;
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    error = LastSystemError(failure);
    error.text = request.arguments.front() + ": " + error.text;
    return 0;
}
