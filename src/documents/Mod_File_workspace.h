// Workspaces: what is open and how it is arranged, written to a file and brought back from one.
#pragma once

#include <string>

namespace Mod_File {

// Writes what is open to a file. A failure is reported and leaves the old file. Does nothing while a
// workspace is being loaded, because what is open then is only a part of it.
void SaveWorkSpace(const std::string& path);
// Closes what is open and opens what a workspace file tells, with its windows, carets and first visible
// lines. What could not be had is said in one message. False when nothing was loaded.
bool LoadWorkSpace(const std::string& path);
// The same with a file that the user chooses, which joins the recent workspaces.
void SaveWorkSpaceAs();
void OpenWorkspace();
// Opens an entry of the list of recent workspaces, from 0.
void OpenRecentWorkspace(int item);
// The file that every end of the program writes.
std::string LastWorkspace();

} // namespace Mod_File
