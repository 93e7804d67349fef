// The files, projects and workspaces that were open last, in lists of the menus. Each change is stored at
// once, so that a program that dies forgets none.
#pragma once

#include <optional>
#include <string>

namespace Mod_File {

void AddRecentFile(const std::string& path);
void AddRecentProject(const std::string& path);
void AddRecentWorkspace(const std::string& path);
// Empty the lists, in the menus and in the store.
void ClearRecentFiles();
void ClearRecentProjects();

// Reads all lists from the store and fills the menus, with full paths or names as gShowRecentFull says.
void LoadRecentFilesProjects();
// Stores them, cut to gRecentFiles.
void SaveRecentFilesProjects();

// The path of an entry, from 0. For one that is gone nothing, after the question whether to forget it.
std::optional<std::string> RecentFile(int item);
std::optional<std::string> RecentProject(int item);
std::optional<std::string> RecentWorkspace(int item);

} // namespace Mod_File
