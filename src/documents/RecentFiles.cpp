// The recent lists. The paths are kept here, the captions by the command that shows them.
#include "documents/RecentFiles.h"

#include "documents/OpenPaths.h"
#include "documents/Options.h"
#include "documents/StoredList.h"
#include "host/Dialogs.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace Mod_File {

namespace {

class RecentList {
public:
    RecentList(const char* command, const char* section) : command_(command), section_(section) {}

    void Add(const std::string& path) {
        Remove(path);
        paths_.insert(paths_.begin(), path);
        SaveAndShow();
    }
    void Forget(const std::string& path) {
        Remove(path);
        SaveAndShow();
    }
    void Clear() {
        paths_.clear();
        SaveAndShow();
    }
    void Load() {
        std::vector<std::string> stored = ReadStoredList(section_);
        const auto count = std::strtoul(gHost.settings->Get(section_, "Count", "0").c_str(), nullptr, 10);
        if (stored.size() > count) stored.resize(count);
        paths_.clear();
        for (std::string& path : stored)
            if (std::find(paths_.begin(), paths_.end(), path) == paths_.end())
                paths_.push_back(std::move(path));
        CutToLength();
        Show();
    }
    void Save() {
        CutToLength();
        WriteStoredList(section_, paths_);
        gHost.settings->Save(section_, "Count", std::to_string(paths_.size()));
    }
    // The path of an entry; nothing if the file is missing.
    std::optional<std::string> Choose(int item) {
        if (item < 0 || item >= static_cast<int>(paths_.size())) return {};
        const std::string path = paths_[static_cast<std::size_t>(item)];
        if (gHost.files->Kind(gHost.files->Find(path)) != PathKind::None) return path;
        if (gHost.dialogs->Show(
                {.text = "File: " + path + " does not exists !\r\nDo you want to remove it from the list ?",
                 .icon = MessageIcon::Exclamation,
                 .buttons = MessageButtons::YesNo}) == MessageAnswer::Yes)
            Forget(path);
        return {};
    }

private:
    void Remove(const std::string& path) {
        std::erase_if(paths_, [&](const std::string& entry) { return SameFile(entry, path); });
    }
    void CutToLength() {
        const auto most = static_cast<std::size_t>(std::max(0, Options::gRecentFiles));
        if (paths_.size() > most) paths_.resize(most);
    }
    void SaveAndShow() {
        Save();
        Show();
    }
    void Show() const {
        DockCommand* command = gHost.dock->FindCommand(command_);
        if (command == nullptr) return;
        std::vector<std::string> captions;
        for (const std::string& path : paths_)
            captions.push_back(Options::gShowRecentFull == 1 ? path : GetFileName(path));
        command->SetItems(captions);
    }

    const char* command_;
    const char* section_;
    std::vector<std::string> paths_; // newest first
};

RecentList files("FileRecentFiles", "RecentFilenames");
RecentList projects("FileRecentProjects", "RecentProjects");
RecentList workspaces("FileRecentWorkspaces", "RecentWorkspaces");

} // namespace

void AddRecentFile(const std::string& path) { files.Add(path); }
void AddRecentProject(const std::string& path) { projects.Add(path); }
void AddRecentWorkspace(const std::string& path) { workspaces.Add(path); }
void ClearRecentFiles() { files.Clear(); }
void ClearRecentProjects() { projects.Clear(); }

void LoadRecentFilesProjects() {
    Guarded("LoadRecentFilesProjects", "Mod_File", [] {
        files.Load();
        projects.Load();
        workspaces.Load();
    });
}

void SaveRecentFilesProjects() {
    Guarded("SaveRecentFilesProjects", "Mod_File", [] {
        files.Save();
        projects.Save();
        workspaces.Save();
    });
}

std::optional<std::string> RecentFile(int item) { return files.Choose(item); }
std::optional<std::string> RecentProject(int item) { return projects.Choose(item); }
std::optional<std::string> RecentWorkspace(int item) { return workspaces.Choose(item); }

} // namespace Mod_File
