// A terminal window for a program that wants a console of its own.
#pragma once

#include <string>
#include <vector>

// Returns the desktop's terminal program with the arguments before a command; empty if there is none.
// $TERMINAL has priority.
std::vector<std::string> FindTerminal();

// Returns a command that runs `arguments` in that terminal and waits for Enter afterwards.
std::vector<std::string> InTerminal(std::vector<std::string> terminal,
                                    const std::vector<std::string>& arguments);
