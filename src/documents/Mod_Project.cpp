// Reading, opening and writing of project files.
#include "documents/Mod_Project.h"

#include "documents/BlockText.h"
#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/DocumentLoading.h"
#include "documents/LoadMessages.h"
#include "documents/OpenPaths.h"
#include "documents/RecentFiles.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/WaitCursor.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace Mod_Project {

namespace {

constexpr const char* Header = "[Zolto Project file]";

// The content of a file; nothing if it cannot be read.
std::optional<std::string> BytesOf(const std::string& path) {
    try {
        return gHost.files->Read(path);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

// The two parts of a path around its last backslash.
std::string LastPart(const std::string& path) { return path.substr(path.rfind('\\') + 1); }
std::string WithoutLastPart(const std::string& path) {
    const std::size_t at = path.rfind('\\');
    return at == std::string::npos ? std::string() : path.substr(0, at);
}

void ReadSettings(ClsProject& project, const std::string& text) {
    project.Expanded = IsBlockTrue(BlockAttribute(text, "Expanded"));
    project.MainFile = BlockAttribute(text, "MainFile");
    project.Compiler = BlockAttribute(text, "Compiler");
    project.CommandLine = BlockAttribute(text, "CommandLine");
    project.Icon = BlockAttribute(text, "Icon");
}

void ReadFolder(ClsProject& project, const std::string& line) {
    auto folder = std::make_shared<clsFolder>();
    folder->AbsPath = BlockAttribute(line, "AbsPath");
    folder->Expanded = IsBlockTrue(BlockAttribute(line, "Expanded"));
    CompleteFolder(*folder, project);
    DodajFolderSorted(std::move(folder), project);
}

void ReadFile(ClsProject& project, const std::string& line) {
    auto file = std::make_shared<clsFile>();
    file->AbsPath = ToData(BlockAttribute(line, "AbsPath"));
    file->PrjFolder = BlockAttribute(line, "PrjFolder");
    file->Line = std::atoi(BlockAttribute(line, "Line").c_str());
    file->Column = std::atoi(BlockAttribute(line, "Column").c_str());
    file->Tip = std::atoi(BlockAttribute(line, "Tip").c_str());
    file->Visible = IsBlockTrue(BlockAttribute(line, "Visible"));
    file->TreeParent = project.Name + file->PrjFolder;
    file->Name = LastPart(file->AbsPath);
    const std::string path = Mod_File::MemberPath(project, *file);
    if (gHost.files->Kind(path) == PathKind::None) {
        Mod_File::TellLoadFailure({" File " + path + " that is part of this project is missing " +
                                       "\r\n This file will be removed from this project",
                                   MessageIcon::Exclamation, "File not found"});
        return;
    }
    DodajFileSorted(std::move(file), project);
}

// The first member that is open already, alone or in another project; empty if there is none.
std::string AlreadyOpenMember(const ClsProject& project) {
    for (const auto& entry : project.Files) {
        std::string path = Mod_File::MemberPath(project, *entry.record);
        if (Mod_File::DocumentOfPath(path) != nullptr) return path;
    }
    return {};
}

void OpenMembers(const std::shared_ptr<ClsProject>& project, bool fromWorkspace) {
    const WaitCursor wait;
    std::vector<std::string> paths;
    for (const auto& entry : project->Files) paths.push_back(Mod_File::MemberPath(*project, *entry.record));
    for (const std::string& path : paths)
        if (!Mod_File::OpenProjectsFile(project, path, fromWorkspace)) Mod_File::TellUnloadable(path);
}

// Brings the main file to the front, or the first file if there is no main file.
void ShowMainFile(const ClsProject& project) {
    auto file = project.Files.Find(LastPart(ToData(project.MainFile)));
    if (!file && project.Files.Count() > 0) file = project.Files.Item(0);
    if (!file) return;
    Mod_File::ActivateOpen(Mod_File::MemberPath(project, *file));
}

// Stops the event pipeline of the active document while other documents are loaded.
class PipelineRest {
public:
    PipelineRest() : window_(ActiveForm() == nullptr ? std::string() : ActiveForm()->m_strDocumentWindowID) {
        if (frmDoc* document = ActiveForm()) {
            document->m_oSubclass->DeactivateCheck();
            document->View->SetEvents(nullptr);
        }
    }
    ~PipelineRest() {
        if (window_.empty()) return;
        if (frmDoc* document = DocumentIn(gHost.dock->FindDocumentWindow(window_))) document->SubClass();
    }
    PipelineRest(const PipelineRest&) = delete;
    PipelineRest& operator=(const PipelineRest&) = delete;

private:
    std::string window_;
};

// Makes the compiler of the active document current again, after a project without documents was loaded.
void ReturnToActive() {
    MakeActive(ActiveForm());
    if (gCurrentProject) Mod_Main::SetActiveCompiler(gCurrentProject->Compiler);
}

// Empty when the user cancelled.
std::string AskForProject() {
    const auto chosen =
        gHost.dialogs->OpenFiles({"Open File", "Zolto project files (*.zpf)|*.zpf", {}, {}, false});
    return chosen.empty() ? std::string() : chosen[0];
}

// Whether an open project may be loaded again. Its changes are saved for that.
bool MayBeReplaced(ClsProject& project) {
    if (project.Sources.Count() > 0) {
        Mod_File::TellLoadFailure({"Project is already loaded", MessageIcon::Exclamation});
        return false;
    }
    return !project.Dirty || SaveProject(project);
}

// The project of a file with its compiler set as the active one. Null, after a message, when the file is not
// a project or one of the members is open otherwise.
std::shared_ptr<ClsProject> ReadProject(const std::string& path) {
    auto project = std::make_shared<ClsProject>();
    if (!BuildProjectFromFile(path, *project)) {
        Mod_File::TellLoadFailure({"Not a valid project file !", MessageIcon::Critical});
        return nullptr;
    }
    if (const std::string open = AlreadyOpenMember(*project); !open.empty()) {
        Mod_File::TellLoadFailure(
            {"Some of the files in this project are already opened in Zolto as single file "
             "or as part of another project:\r\n" +
                 open + "\r\nSorry, in this release you can't have same file opened multiple times",
             MessageIcon::Exclamation, "Project loading aborted..."});
        return nullptr;
    }
    if (project->Compiler.empty()) project->Compiler = DefaultCompiler;
    Mod_Main::SetActiveCompiler(project->Compiler);
    return project;
}

// Adds a project to gProjects and opens its members.
void AddAndOpen(const std::shared_ptr<ClsProject>& project, bool fromWorkspace) {
    gProjects.Add(project, project->FullPath);
    {
        const PipelineRest rest;
        OpenMembers(project, fromWorkspace);
    }
    if (!fromWorkspace) ShowMainFile(*project);
    if (project->Sources.Count() == 0) ReturnToActive();
}

template <class Collection, class Record>
int SortedPlace(const Collection& collection, const Record& record) {
    const std::string name = UCase(record.Name);
    int place = 0;
    for (const auto& entry : collection) {
        if (UCase(entry.record->Name) > name) return place;
        ++place;
    }
    return -1;
}

} // namespace

void CompleteFolder(clsFolder& folder, const ClsProject& project) {
    folder.FullPath = project.Path + ToDisk(folder.AbsPath);
    folder.TreeParent = project.Name + WithoutLastPart(folder.AbsPath);
    folder.Name = LastPart(folder.AbsPath);
}

void DodajFileSorted(std::shared_ptr<clsFile> file, ClsProject& project) {
    const std::string key = file->Name;
    const int place = SortedPlace(project.Files, *file);
    project.Files.Add(std::move(file), key, place);
}

void DodajFolderSorted(std::shared_ptr<clsFolder> folder, ClsProject& project) {
    const std::string key = folder->AbsPath;
    const int place = SortedPlace(project.Folders, *folder);
    project.Folders.Add(std::move(folder), key, place);
}

bool BuildProjectFromFile(const std::string& path, ClsProject& project) {
    return Guarded("BuildProjectFromFile", "Mod_File", false, [&] {
        const auto bytes = BytesOf(path);
        if (!bytes) return false;
        const std::vector<std::string> lines = BlockLines(*bytes);
        project.FullPath = path;
        project.Path = GetFolder(path);
        project.Name = GetFileName(path);
        project.Name.resize(project.Name.size() - std::min<std::size_t>(4, project.Name.size()));
        if (lines.empty() || lines[0] != Header) return false;
        std::string settings;
        for (std::size_t i = 1; i < lines.size(); ++i) {
            const std::string head = lines[i];
            if (head != "<Settings>" && head != "<Folders>" && head != "<Files>") continue;
            const std::string end = "</" + head.substr(1);
            for (++i; i < lines.size() && lines[i] != end; ++i) {
                // A faulty line is reported, and the other lines are still read.
                Guarded("BuildProjectFromFile", "Mod_File", [&] {
                    if (head == "<Settings>") settings += lines[i];
                    if (head == "<Folders>") ReadFolder(project, lines[i]);
                    if (head == "<Files>") ReadFile(project, lines[i]);
                });
            }
        }
        ReadSettings(project, settings);
        return true;
    });
}

bool LoadProject(const std::string& wanted, bool fromWorkspace) {
    return Guarded("LoadProject", "Mod_File", false, [&] {
        const std::string path = wanted.empty() ? AskForProject() : wanted;
        if (path.empty()) return false;
        // A project without an open document is read anew: its files may have come back since.
        const auto present = Mod_File::ProjectOfPath(path);
        if (present && !MayBeReplaced(*present)) return false;
        const auto project = ReadProject(path);
        if (!project) return false;
        if (present) gProjects.RemoveKey(present->FullPath);
        AddAndOpen(project, fromWorkspace);
        Mod_File::AddRecentProject(path);
        gDocumentCalls.PopulateTreeView();
        gDocumentCalls.UpdateCommandUI();
        if (SciWndData != 0 && !fromWorkspace) Mod_Sci::GrabFocus();
        return true;
    });
}

void SetCommandLine(ClsProject& project, const std::string& text) {
    if (project.CommandLine == text) return;
    project.CommandLine = text;
    if (!project.SingleFile) project.Dirty = true;
}

void WriteProject(ClsProject& project) {
    std::string text = std::string(Header) + "\r\n<Settings>\r\n";
    text += BlockValue("Version", "1") + "\r\n" + BlockValue("Expanded", BlockBoolean(project.Expanded)) +
            "\r\n" + BlockValue("Icon", project.Icon) + "\r\n" + BlockValue("MainFile", project.MainFile) +
            "\r\n" + BlockValue("Compiler", project.Compiler) + "\r\n" +
            BlockValue("CommandLine", project.CommandLine) + "\r\n";
    text += "</Settings>\r\n<Folders>\r\n";
    for (const auto& entry : project.Folders)
        text += BlockValue("AbsPath", entry.record->AbsPath) +
                BlockValue("Expanded", BlockBoolean(entry.record->Expanded)) + "\r\n";
    text += "</Folders>\r\n<Files>\r\n";
    for (const auto& entry : project.Files) {
        const clsFile& file = *entry.record;
        text += BlockValue("AbsPath", file.AbsPath) + BlockValue("PrjFolder", file.PrjFolder) +
                BlockValue("Line", std::to_string(file.Line)) +
                BlockValue("Column", std::to_string(file.Column)) +
                BlockValue("Tip", std::to_string(file.Tip)) +
                BlockValue("Visible", BlockBoolean(file.Visible)) + "\r\n";
    }
    text += "</Files>\r\n";
    gHost.files->Write(project.FullPath, text);
    project.Dirty = false;
}

bool SaveProject(ClsProject& project) {
    return Guarded("SaveProject", "Mod_File", false, [&] {
        WriteProject(project);
        return true;
    });
}

} // namespace Mod_Project
