// What has to be there before the program can run from a folder of the user's own.
#pragma once

#include <string>

// Copies what is missing below `appDir` from the installed data folder. A file that is there is never
// touched. Answers the system's text of the first failure, empty when all went well.
std::string FillAppDir(const std::string& appDir, const std::string& installed);
