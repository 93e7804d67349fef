// The arguments of the process as the one text that the program reads.
#pragma once

#include <string>
#include <vector>

// Joins arguments by blanks; one that holds a blank stands in double quotes. A name of something that is
// there below `startFolder` becomes absolute, because another instance may read it from elsewhere.
std::string JoinCommandLine(const std::vector<std::string>& arguments, const std::string& startFolder);
