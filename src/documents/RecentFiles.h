// The menu lists of recent files, projects and workspaces. Each change is stored at once, so that a crash
// loses nothing.
#pragma once

#include <optional>
#include <string>

namespace Mod_File {

void AddRecentFile(const std::string& path);
void AddRecentProject(const std::string& path);
void AddRecentWorkspace(const std::string& path);
// Empty a list in the menu and in the settings.
void ClearRecentFiles();
void ClearRecentProjects();

// Reads all lists from the settings and fills the menus with full paths or names, as gShowRecentFull says.
void LoadRecentFilesProjects();
// Stores all lists, each with at most gRecentFiles entries.
void SaveRecentFilesProjects();

// The path of an entry, index from 0. If the file is missing: nothing, after the user was asked whether to
// remove the entry.
std::optional<std::string> RecentFile(int item);
std::optional<std::string> RecentProject(int item);
std::optional<std::string> RecentWorkspace(int item);

} // namespace Mod_File
