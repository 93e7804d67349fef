// Workspaces: the open files and the arrangement of their windows, in a file.
#pragma once

#include <string>

namespace Mod_File {

// Writes a workspace file. A failure is reported and leaves the old file unchanged. Does nothing while a
// workspace is being loaded, because only a part of it is open then.
void SaveWorkSpace(const std::string& path);
// Closes everything and opens the files of a workspace with their windows, carets and first visible lines.
// One message names the files that failed. False if nothing was loaded.
bool LoadWorkSpace(const std::string& path);
// The same with a file that the user chooses and that is added to the recent workspaces.
void SaveWorkSpaceAs();
void OpenWorkspace();
// Opens an entry of the recent workspaces. Index from 0.
void OpenRecentWorkspace(int item);
// The path of the file that is written whenever the program ends.
std::string LastWorkspace();

} // namespace Mod_File
