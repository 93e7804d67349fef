// The arguments of the process as the one text that the program reads.
#pragma once

#include <string>
#include <vector>

// Joins arguments with blanks; an argument with a blank is quoted. The name of a file that exists below
// `startFolder` becomes absolute, because another instance may have another current folder.
std::string JoinCommandLine(const std::vector<std::string>& arguments, const std::string& startFolder);
