// A running child with its three ends on pipes that never block.
#pragma once

#include "host/Processes.h"
#include "host/qt/system/FileHandle.h"

#include <sys/types.h>

class ChildOnPipes : public ChildProcess {
public:
    ChildOnPipes(pid_t child, FileHandle input, FileHandle output, FileHandle error);
    ~ChildOnPipes() override;

    SystemError BytesWaiting(ChildPipe pipe, int& count) override;
    SystemError Read(ChildPipe pipe, int count, std::string& bytes) override;
    SystemError Write(std::string_view bytes, int& written) override;
    bool HasEnded() override;
    SystemError Kill() override;
    SystemError Close() override;

private:
    struct End {
        FileHandle handle;
        bool carriageReturn = false; // the last byte read was a CR, kept back
    };

    End& Of(ChildPipe pipe) { return pipe == ChildPipe::Output ? output_ : error_; }
    bool Reap(bool wait);

    pid_t child_;
    FileHandle input_;
    End output_;
    End error_;
    bool reaped_ = false;
    bool killed_ = false;
};
