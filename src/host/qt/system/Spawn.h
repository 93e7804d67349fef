// Starts a program in a session of its own, so that it can be killed with all that it started.
#pragma once

#include "host/Processes.h"

#include <string>
#include <sys/types.h>
#include <vector>

struct SpawnRequest {
    std::vector<std::string> arguments; // the first is the program's path
    std::string directory;              // empty: the present one
    int input = -1;                     // the child's three standard streams; -1 means the null device
    int output = -1;
    int error = -1;
    bool lowPriority = true;
};

// The child's id, which is its group's too; 0 with `error` set when it could not be started.
pid_t Spawn(const SpawnRequest& request, SystemError& error);

// The system's number with its text.
SystemError LastSystemError(int number);
