// Project files: reading, opening and writing.
#pragma once

#include "engine/ClsProject.h"

#include <memory>
#include <string>

namespace Mod_Project {

// Reads a .zpf file into a project record; false if it is not a project file. A message names each missing
// member, which is left out.
bool BuildProjectFromFile(const std::string& path, ClsProject& project);
// Reads, checks and opens a project; an empty path asks for one. An open project without open documents is
// read again. `fromWorkspace`: the windows exist already.
bool LoadProject(const std::string& path, bool fromWorkspace = false);
// Sets the arguments of the project's program. The project becomes dirty, unless it is a single file.
void SetCommandLine(ClsProject& project, const std::string& text);
// Writes the file of the project and clears Dirty. Throws a Failure and leaves the old file if that is
// impossible.
void WriteProject(ClsProject& project);
// The same, but reports a failure and returns false.
bool SaveProject(ClsProject& project);
// Insert by name without regard to case, after equal names.
void DodajFileSorted(std::shared_ptr<clsFile> file, ClsProject& project);
void DodajFolderSorted(std::shared_ptr<clsFolder> folder, ClsProject& project);
// Sets Name, FullPath and TreeParent of a category from its AbsPath.
void CompleteFolder(clsFolder& folder, const ClsProject& project);

} // namespace Mod_Project
