// A running child with its three ends on pipes that never block.
#include "host/qt/system/ChildOnPipes.h"

#include "host/qt/system/Spawn.h"

#include <cerrno>
#include <csignal>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A poll hands over at most this much, so that a flood of output leaves the event loop its turns.
constexpr int MostBytes = 256 * 1024;

// Writes every bare LF as CR LF. A CR at the end waits for what comes next, because the LF of its pair may
// be the first byte of the next read.
std::string WithLineEnds(std::string_view bytes, bool& carriageReturn) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 16 + 2);
    for (const char c : bytes) {
        if (carriageReturn) text += '\r';
        if (c == '\n' && !carriageReturn) text += '\r';
        carriageReturn = c == '\r';
        if (!carriageReturn) text += c;
    }
    return text;
}

}

ChildOnPipes::ChildOnPipes(pid_t child, FileHandle input, FileHandle output, FileHandle error)
    : child_(child), input_(std::move(input)) {
    output_.handle = std::move(output);
    error_.handle = std::move(error);
}

ChildOnPipes::~ChildOnPipes() {
    if (reaped_) return;
    kill(-child_, SIGKILL);
    Reap(true);
}

bool ChildOnPipes::Reap(bool wait) {
    if (reaped_) return true;
    pid_t answer;
    do answer = waitpid(child_, nullptr, wait ? 0 : WNOHANG);
    while (answer < 0 && errno == EINTR);
    reaped_ = answer != 0;
    return reaped_;
}

SystemError ChildOnPipes::BytesWaiting(ChildPipe pipe, int& count) {
    count = 0;
    if (ioctl(Of(pipe).handle.Get(), FIONREAD, &count) != 0) return LastSystemError(errno);
    count = std::min(count, MostBytes);
    return {};
}

SystemError ChildOnPipes::Read(ChildPipe pipe, int count, std::string& bytes) {
    End& end = Of(pipe);
    std::string raw(static_cast<std::size_t>(count), '\0');
    std::size_t filled = 0;
    while (filled < raw.size()) {
        const ssize_t got = read(end.handle.Get(), raw.data() + filled, raw.size() - filled);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return LastSystemError(errno);
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    bytes = WithLineEnds(std::string_view(raw).substr(0, filled), end.carriageReturn);
    return {};
}

SystemError ChildOnPipes::Write(std::string_view bytes, int& written) {
    written = 0;
    const ssize_t taken = write(input_.Get(), bytes.data(), bytes.size());
    if (taken >= 0)
        written = static_cast<int>(taken);
    else if (errno != EAGAIN && errno != EINTR)
        return LastSystemError(errno);
    return {};
}

bool ChildOnPipes::HasEnded() {
    if (!Reap(false)) return false;
    if (killed_) return true;
    int output = 0, error = 0;
    BytesWaiting(ChildPipe::Output, output);
    BytesWaiting(ChildPipe::Error, error);
    return output == 0 && error == 0;
}

SystemError ChildOnPipes::Kill() {
    if (kill(-child_, SIGKILL) != 0 && errno != ESRCH) return LastSystemError(errno);
    killed_ = true;
    return {};
}

SystemError ChildOnPipes::Close() {
    int first = 0;
    for (FileHandle* handle : {&output_.handle, &error_.handle, &input_})
        if (const int error = handle->Close(); first == 0) first = error;
    return first == 0 ? SystemError{} : LastSystemError(first);
}
