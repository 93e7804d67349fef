// A command kept as one text, taken apart into what the system starts.
#pragma once

#include "host/Processes.h"

#include <string>
#include <string_view>
#include <vector>

// The arguments of a command: divided by blanks and tabs, with double quotes holding blanks together.
std::vector<std::string> SplitCommand(std::string_view command);

// Makes arguments startable: the program by its absolute path, looked up in PATH where it has no folder,
// and a Windows executable handed to wine. Answers what is in the way, empty when nothing is.
SystemError PrepareCommand(std::vector<std::string>& arguments);
