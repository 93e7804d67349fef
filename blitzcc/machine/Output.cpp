// The buffered output: a program that prints much writes seldom, one that prints little shows at once.
// The helper thread empties the buffer every few milliseconds, also while the program computes.
#include "machine/Output.h"

#include <cerrno>
#include <chrono>
#include <unistd.h>

namespace blitz {

static constexpr size_t largeBuffer = 1 << 16;
static constexpr auto flushPeriod = std::chrono::milliseconds(20);

Output::Output(int descriptor) : descriptor_(descriptor) {
    if (descriptor_ >= 0) helper_ = std::thread([this] { flushNowAndThen(); });
}

Output::~Output() {
    endLine();
    flush();
    if (!helper_.joinable()) return;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        closing_ = true;
    }
    wake_.notify_one();
    helper_.join();
}

void Output::append(std::string_view text) {
    if (text.empty()) return;
    buffer_ += text;
    midLine_ = text.back() != '\n';
}

void Output::write(std::string_view text) {
    std::unique_lock<std::mutex> lock(mutex_);
    append(text);
    if (buffer_.size() >= largeBuffer) empty(lock);
}

void Output::line(std::string_view text) {
    std::unique_lock<std::mutex> lock(mutex_);
    append(text);
    append("\r\n");
    if (buffer_.size() >= largeBuffer) empty(lock);
}

void Output::endLine() {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (midLine_) append("\r\n");
}

void Output::flush() {
    std::unique_lock<std::mutex> lock(mutex_);
    empty(lock);
}

// Writes without holding up the program's thread; the second mutex keeps the order of the parts.
void Output::empty(std::unique_lock<std::mutex>& lock) {
    if (descriptor_ < 0) return;
    lock.unlock();
    const std::lock_guard<std::mutex> order(writing_);
    lock.lock();
    const std::string text = std::move(buffer_);
    buffer_.clear();
    lock.unlock();
    for (size_t done = 0; done < text.size();) {
        const ssize_t count = ::write(descriptor_, text.data() + done, text.size() - done);
        if (count < 0 && errno != EINTR) break;
        if (count > 0) done += static_cast<size_t>(count);
    }
    lock.lock();
}

void Output::flushNowAndThen() {
    std::unique_lock<std::mutex> lock(mutex_);
    while (!closing_) {
        wake_.wait_for(lock, flushPeriod);
        if (!buffer_.empty() && !closing_) empty(lock);
    }
}

}
