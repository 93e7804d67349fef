// Fills the user's program directory from the installed data.
#pragma once

#include <string>

// Copies what is missing below `appDir` from the folder `installed`, and replaces files that are still as an
// older version installed them. A file that the user changed is never touched. Records what it copied in the
// file
// ".installed" below `appDir`. Returns the system's text of the first failure, empty on success.
std::string FillAppDir(const std::string& appDir, const std::string& installed);
