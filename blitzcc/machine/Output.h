// Standard output through a large buffer, which a helper thread empties while the program runs.
// Lines end in CR LF; the last line is always completed.
#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace blitz {

class Output {
public:
    /// Writes to a file descriptor, or collects in memory when it is negative.
    explicit Output(int descriptor);
    /// Completes the last line and writes all that is left.
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Appends bytes as they are.
    void write(std::string_view text);
    /// Appends a text and CR LF.
    void line(std::string_view text);
    /// Completes a line that was begun by write().
    void endLine();
    /// Writes out what is buffered; errors of the receiver are ignored.
    void flush();
    /// What was collected in memory.
    const std::string& collected() const { return buffer_; }

private:
    void append(std::string_view text);
    void empty(std::unique_lock<std::mutex>& lock);
    void flushNowAndThen();

    int descriptor_;
    std::string buffer_;
    bool midLine_ = false;
    bool closing_ = false;
    std::mutex mutex_;
    std::mutex writing_;
    std::condition_variable wake_;
    std::thread helper_;
};

}
