// A command kept as one text, taken apart into what the system starts.
#pragma once

#include "host/Processes.h"

#include <string>
#include <string_view>
#include <vector>

// The arguments of a command: divided by blanks and tabs, with double quotes holding blanks together.
std::vector<std::string> SplitCommand(std::string_view command);

// Makes arguments startable: finds the program in PATH if it has no folder, makes its path absolute, and runs
// a Windows executable with wine. Returns the obstacle, empty if there is none.
SystemError PrepareCommand(std::vector<std::string>& arguments);
