// A terminal window for a program that wants a console of its own.
#pragma once

#include <string>
#include <vector>

// The terminal program of this desktop with the arguments that come before a command; empty where there is
// none. $TERMINAL goes first.
std::vector<std::string> FindTerminal();

// `arguments` run in that terminal, which stays open behind their end until Enter is pressed.
std::vector<std::string> InTerminal(std::vector<std::string> terminal,
                                    const std::vector<std::string>& arguments);
