// Saving documents. After a failed write the old file is unchanged and the document still dirty.
#include "documents/Mod_File.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_File_backup.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Mod_Project.h"
#include "documents/OpenPaths.h"
#include "documents/Options.h"
#include "documents/RecentFiles.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/OptionsEdit.h"
#include "engine/WaitCursor.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Guards.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

namespace Mod_File {

namespace {

constexpr int FailureSaveWithoutDocument = 99020;
constexpr int FailureSaveAsWithoutDocument = 93320;

// Makes a document the active one for a scope. At the end the former one is active again if it is still open.
class TemporarilyActive {
public:
    explicit TemporarilyActive(frmDoc& document)
        : before_(ActiveForm() == nullptr ? 0 : ActiveForm()->Serial) {
        MakeActive(&document);
    }
    ~TemporarilyActive() { MakeActive(DocumentOfSerial(before_)); }
    TemporarilyActive(const TemporarilyActive&) = delete;
    TemporarilyActive& operator=(const TemporarilyActive&) = delete;

private:
    long before_;
};

void ShowCritical(std::string text, std::string title) {
    gHost.dialogs->Show({std::move(text), MessageIcon::Critical, std::move(title)});
}

std::string BytesOf(frmDoc& document, bool withBlock) {
    const TemporarilyActive active(document);
    return Mod_Sci::GetText() + (withBlock ? GetFileParameters() : std::string());
}

// Writes the text of a document, which need not be the active one, with or without a parameter block.
bool WriteDocument(frmDoc& document, const std::string& path, bool withBlock) {
    bool written = true;
    try {
        const WaitCursor wait;
        gHost.files->Write(path, BytesOf(document, withBlock));
    } catch (const Failure&) {
        written = false;
    }
    if (!written)
        ShowCritical("Could not save " + path +
                         "\r\nThe file may be in use by another process or disk is write protected",
                     "Document could not be saved !");
    return written;
}

void MarkSaved(frmDoc& document) {
    document.NewFile = false;
    if (OptionsEdit::EmptyUndo) Mod_Sci::SendTo(document.SciEdi_WndData, SCI_EMPTYUNDOBUFFER);
    Mod_Sci::SendTo(document.SciEdi_WndData, SCI_SETSAVEPOINT);
}

void ShowInvalidName(const std::string& path, const char* why) {
    ShowCritical("File named " + GetFileName(path) + why, "Invalid name");
}

// Whether a member may have that path: below the folder of the project, with a name that no other member has.
bool AllowedInProject(const ClsProject& project, const std::string& path) {
    if (!path.starts_with(project.Path)) {
        ShowCritical("Project Files must be saved in the project's (sub)folder !", "File Not Saved !");
        return false;
    }
    if (project.Files.Exist_Key(GetFileName(path))) {
        ShowInvalidName(path, " already exists in this project");
        return false;
    }
    return true;
}

// Whether the path belongs to another document, to a member of a project, or to the file of a project or
// workspace, which a source must not overwrite. Shows a message then.
bool UsedElsewhere(const frmDoc& document, const std::string& path) {
    const frmDoc* other = DocumentOfPath(path);
    if ((other != nullptr && other != &document) || ProjectOfPath(path) || SameFile(path, LastWorkspace())) {
        ShowInvalidName(path, " is already open");
        return true;
    }
    std::string memberPath;
    const auto project = ProjectOfMember(path, memberPath);
    if (!project || project->FullPath == document.PrjFullPath) return false;
    ShowInvalidName(path, " already exists in this project");
    return true;
}

void RenameSingle(frmDoc& document, const std::shared_ptr<ClsProject>& project, const std::string& path) {
    const std::string oldKey = project->FullPath;
    project->FullPath = path;
    document.PrjFullPath = path;
    document.PrjName = path; // the key with which ParseFile finds the project
    document.IsSnippet = false;
    gProjects.RemoveKey(oldKey);
    gProjects.Add(project, path);
}

void RenameMember(ClsProject& project, const std::string& oldName, const std::string& path) {
    const auto file = project.Files.Find(oldName);
    if (file) {
        if (EqualNoCase(project.MainFile, oldName)) project.MainFile = GetFileName(path);
        file->AbsPath = ToData(path.substr(project.Path.size()));
        file->Name = GetFileName(path);
        project.Files.RemoveKey(oldName);
        Mod_Project::DodajFileSorted(file, project);
    }
    project.Dirty = true;
    gDocumentCalls.PopulateTreeView();
}

// Renames a document in its project, its window and the recent files, after it was written under a new name.
void RenameEverywhere(frmDoc& document, const std::string& path) {
    const auto project = gCurrentProject;
    const std::string oldName = document.Filename;
    const std::string oldPath = document.FullFilename;
    if (DocumentWindow* window = gHost.dock->FindDocumentWindow(document.m_strDocumentWindowID)) {
        window->SetKey(path);
        document.m_strDocumentWindowID = window->Key();
    }
    document.SetFullFilename(path);
    document.SetFilename(GetFileName(path));
    MarkSaved(document);
    const auto record = project->Sources.Item(oldPath);
    project->Sources.RemoveKey(oldPath);
    project->Sources.Add(record, path);
    if (document.SingleFile)
        RenameSingle(document, project, path);
    else
        RenameMember(*project, oldName, path);
    UpdateVarFileNames(oldName, document.Filename);
    gDocumentCalls.RefreshCodeExplorer();
    gDocumentCalls.UpdateCommandUI();
}

// The initial folder of the dialog: that of the file, or that of the project for a new member.
std::string StartFolder(const frmDoc& document) {
    const std::string own = GetFolder(document.FullFilename);
    if (!own.empty() || document.SingleFile) return own;
    return gProjects.Item(document.PrjFullPath)->Path;
}

// Saves the dirty ones of these documents. A save may ask the user, so each document is looked up in its
// turn.
void SaveDirty(const std::vector<long>& serials) {
    const StillWindow still;
    for (const long serial : serials)
        if (frmDoc* document = DocumentOfSerial(serial); document != nullptr && document->Dirty)
            SaveFile(document);
}

} // namespace

bool SaveFile(frmDoc* document) {
    return Guarded("SaveFile", "Mod_File", false, [&] {
        if (document == nullptr) throw Failure(FailureSaveWithoutDocument, "No document to save");
        const std::string path = document->FullFilename;
        if (path.find('/') == std::string::npos) return SaveFileAs(document);
        const long serial = document->Serial;
        if (Options::gBackupEnabled && document->Dirty) BackupFile(path);
        document = DocumentOfSerial(serial);
        if (document == nullptr || !WriteDocument(*document, path, !document->IsSnippet)) return false;
        MarkSaved(*document);
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
        const long serial = document->Serial;
        const std::string path = gHost.dialogs->SaveFile(
            {"Save File As", "Blitz Basic File (*.bb)|*.bb", document->Filename, StartFolder(*document)});
        document = path.empty() ? nullptr : DocumentOfSerial(serial);
        if (document == nullptr) return false;
        if (!document->SingleFile && !AllowedInProject(*gProjects.Item(document->PrjFullPath), path))
            return false;
        if (UsedElsewhere(*document, path) || !WriteDocument(*document, path, true)) return false;
        const TemporarilyActive active(*document);
        RenameEverywhere(*document, path);
        if (document->SingleFile) AddRecentFile(path);
        return true;
    });
}

bool SaveAllFiles() {
    return Guarded("SaveAllFiles", "Mod_File", true, [&] {
        if (gActiveDoc == nullptr) return true;
        std::vector<long> serials;
        for (const DocumentWindow* window : gHost.dock->DocumentWindows()) {
            const frmDoc* document = DocumentIn(window);
            if (document != nullptr && !document->NewFile) serials.push_back(document->Serial);
        }
        SaveDirty(serials);
        return true;
    });
}

bool SaveProjectFiles() {
    return Guarded("SaveProjectFiles", "Mod_File", true, [&] {
        const auto project = gCurrentProject;
        if (!project) return true;
        std::vector<long> serials;
        for (const auto& source : project->Sources) serials.push_back(FormOf(*source.record).Serial);
        SaveDirty(serials);
        return true;
    });
}

bool WriteTextFile(const std::string& path) {
    return Guarded("WriteTextFile", "Mod_File", false, [&] {
        gHost.files->MakeFolders(GetFolder(path));
        return ActiveForm() != nullptr && WriteDocument(*ActiveForm(), path, false);
    });
}

bool CreateEmptyFile(const std::string& path) {
    return Guarded("CreateEmptyFile", "Mod_File", false, [&] {
        gHost.files->Write(path, "");
        return true;
    });
}

} // namespace Mod_File
