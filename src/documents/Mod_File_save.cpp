// Saving documents. A failed write leaves the old file and the dirty document.
#include "documents/Mod_File.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_File_backup.h"
#include "documents/Mod_Project.h"
#include "documents/Options.h"
#include "documents/RecentFiles.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/OptionsEdit.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

namespace Mod_File {

namespace {

constexpr const char* HelpWindow = "HELP WINDOW";
constexpr int FailureSaveWithoutDocument = 99020;
constexpr int FailureSaveAsWithoutDocument = 93320;

// Works on a document as the active one and puts back which one was.
class ActiveFor {
public:
    explicit ActiveFor(frmDoc& document) : before_(ActiveForm()) { MakeActive(&document); }
    ~ActiveFor() { MakeActive(before_); }
    ActiveFor(const ActiveFor&) = delete;
    ActiveFor& operator=(const ActiveFor&) = delete;

private:
    frmDoc* before_;
};

void Critical(std::string text, std::string title) {
    gHost.dialogs->Show({std::move(text), MessageIcon::Critical, std::move(title)});
}

// Writes the active editor's text with a block behind it.
bool WriteActive(const std::string& path, const std::string& block) {
    BeginWaitCursor();
    bool written = true;
    try {
        gHost.files->Write(path, Mod_Sci::GetText() + block);
    } catch (const Failure&) {
        written = false;
    }
    EndWaitCursor();
    if (!written)
        Critical("Could not save " + path +
                     "\r\nThe file may be in use by another process or disk is write protected",
                 "Document could not be saved !");
    return written;
}

void AfterWrite(frmDoc& document) {
    document.NewFile = false;
    if (OptionsEdit::EmptyUndo) Mod_Sci::EmptyUndoBuffer();
    Mod_Sci::SetSavePoint();
}

// A project's member stays in the project's folder, and its name is its own.
bool AllowedInProject(const ClsProject& project, const std::string& path) {
    if (!path.starts_with(project.Path)) {
        Critical("Project Files must be saved in the project's (sub)folder !", "File Not Saved !");
        return false;
    }
    if (project.Files.Exist_Key(GetFileName(path))) {
        Critical("File named " + GetFileName(path) + " already exists in this project", "Invalid name");
        return false;
    }
    return true;
}

// Two documents of one path could not be told apart: closing one would take the other's project away.
bool OpenElsewhere(const frmDoc& document, const std::string& path) {
    for (const auto& project : gProjects) {
        const auto other = project.record->Sources.Find(path);
        if (!other || other.get() == &document) continue;
        Critical("File named " + GetFileName(path) + " is already open", "Invalid name");
        return true;
    }
    return false;
}

void RenameSingle(frmDoc& document, const std::shared_ptr<ClsProject>& project, const std::string& path) {
    const std::string oldKey = project->FullPath;
    project->FullPath = path;
    document.PrjFullPath = path;
    document.PrjName = path; // the key under which a whole-file parse looks the project up
    document.IsSnippet = false;
    gProjects.RemoveKey(oldKey);
    gProjects.Add(project, path);
}

void RenameMember(ClsProject& project, const std::string& oldName, const std::string& path) {
    const auto file = project.Files.Find(oldName);
    if (file) {
        file->AbsPath = ToData(path.substr(project.Path.size()));
        file->Name = GetFileName(path);
        project.Files.RemoveKey(oldName);
        Mod_Project::DodajFileSorted(file, project);
    }
    project.Dirty = true;
    if (gDocumentCalls.PopulateTreeView) gDocumentCalls.PopulateTreeView();
}

// Gives a document that was written under a new name that name everywhere.
void Rebind(frmDoc& document, const std::string& path) {
    const auto project = gCurrentProject;
    const std::string oldName = document.Filename;
    const std::string oldPath = document.FullFilename;
    if (DocumentWindow* window = gHost.dock->FindDocumentWindow(document.m_strDocumentWindowID)) {
        window->SetKey(path);
        document.m_strDocumentWindowID = window->Key();
    }
    document.SetFullFilename(path);
    document.SetFilename(GetFileName(path));
    AfterWrite(document);
    const auto record = project->Sources.Item(oldPath);
    project->Sources.RemoveKey(oldPath);
    project->Sources.Add(record, path);
    if (document.SingleFile)
        RenameSingle(document, project, path);
    else
        RenameMember(*project, oldName, path);
    UpdateVarFileNames(oldName, document.Filename);
    if (gDocumentCalls.RefreshCodeExplorer) gDocumentCalls.RefreshCodeExplorer();
    if (gDocumentCalls.UpdateCommandUI) gDocumentCalls.UpdateCommandUI();
}

} // namespace

bool SaveFile(frmDoc* document) {
    return Guarded("SaveFile", "Mod_File", false, [&] {
        if (document == nullptr) throw Failure(FailureSaveWithoutDocument, "No document to save");
        const std::string path = document->FullFilename;
        if (path.find('/') == std::string::npos) return SaveFileAs(document);
        const ActiveFor active(*document);
        if (Options::gBackupEnabled && document->Dirty) BackupFile(path);
        const std::string block = document->IsSnippet ? std::string() : GetFileParameters();
        if (!WriteActive(path, block)) return false;
        AfterWrite(*document);
        return true;
    });
}

bool SaveFileAs(frmDoc* document) {
    return Guarded("SaveFileAs", "Mod_File", false, [&] {
        if (document == nullptr) {
            Guarded("SaveFileAs", "Mod_File",
                    [] { throw Failure(FailureSaveAsWithoutDocument, "No document to save"); });
            document = ActiveForm();
            if (document == nullptr) return false;
        }
        const ActiveFor active(*document);
        const ClsProject& project = *gCurrentProject;
        FileQuestion question{"Save File As", "Blitz Basic File (*.bb)|*.bb", document->Filename,
                              document->SingleFile ? std::string() : project.Path};
        const std::string path = gHost.dialogs->SaveFile(question);
        if (path.empty()) return false;
        if (!document->SingleFile && !AllowedInProject(project, path)) return false;
        if (OpenElsewhere(*document, path)) return false;
        if (!WriteActive(path, GetFileParameters())) return false;
        Rebind(*document, path);
        if (document->SingleFile) AddRecentFile(path);
        return true;
    });
}

bool SaveAllFiles() {
    return Guarded("SaveAllFiles", "Mod_File", true, [&] {
        if (gActiveDoc == nullptr) return true;
        gHost.desktop->LockWindowUpdate(true);
        for (DocumentWindow* window : gHost.dock->DocumentWindows()) {
            if (window->Key() == HelpWindow || window->HostedForm() == nullptr) continue;
            auto* document = static_cast<frmDoc*>(window->HostedForm());
            if (document->Dirty && !document->NewFile) SaveFile(document);
        }
        gHost.desktop->LockWindowUpdate(false);
        return true;
    });
}

bool SaveProjectFiles() {
    return Guarded("SaveProjectFiles", "Mod_File", true, [&] {
        const auto project = gCurrentProject;
        if (!project) return true;
        std::vector<frmDoc*> documents; // a new name moves its entry, so the list is taken first
        for (const auto& source : project->Sources)
            documents.push_back(static_cast<frmDoc*>(source.record.get()));
        gHost.desktop->LockWindowUpdate(true);
        for (frmDoc* document : documents)
            if (document->Dirty) SaveFile(document);
        gHost.desktop->LockWindowUpdate(false);
        return true;
    });
}

bool WriteTextFile(const std::string& path) {
    return Guarded("WriteTextFile", "Mod_File", false, [&] {
        gHost.files->MakeFolders(GetFolder(path));
        return WriteActive(path, "");
    });
}

bool CreateEmptyFile(const std::string& path) {
    return Guarded("CreateEmptyFile", "Mod_File", false, [&] {
        gHost.files->Write(path, "");
        return true;
    });
}

} // namespace Mod_File
