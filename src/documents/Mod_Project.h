// Project files: reading, opening and writing.
#pragma once

#include "engine/ClsProject.h"

#include <memory>
#include <string>

namespace Mod_Project {

// Reads a .zpf into a project record; false when it is none. Missing members are dropped with a message.
bool BuildProjectFromFile(const std::string& path, ClsProject& project);
// Reads, checks and opens a project, also one that is open without a document of its own left; an empty path
// asks for one. `fromWorkspace`: its windows are there.
bool LoadProject(const std::string& path, bool fromWorkspace = false);
// Gives a project the arguments of its program; the file of a real one has to be written then.
void SetCommandLine(ClsProject& project, const std::string& text);
// Writes the project's file and clears Dirty. Fails when it cannot be written, and leaves the old file.
void WriteProject(ClsProject& project);
// The same; a failure is reported.
bool SaveProject(ClsProject& project);
// Insert by name, without regard to case, behind equal names.
void DodajFileSorted(std::shared_ptr<clsFile> file, ClsProject& project);
void DodajFolderSorted(std::shared_ptr<clsFolder> folder, ClsProject& project);
// A category's Name, FullPath and TreeParent from its AbsPath.
void CompleteFolder(clsFolder& folder, const ClsProject& project);

} // namespace Mod_Project
