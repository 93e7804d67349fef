// Saving and loading workspaces.
#include "documents/Mod_File_workspace.h"

#include "documents/CloseFiles.h"
#include "documents/DocumentCalls.h"
#include "documents/LoadMessages.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "documents/OpenPaths.h"
#include "documents/RecentFiles.h"
#include "documents/WorkspaceText.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Guards.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_File {

namespace {

constexpr const char* Filter = "Workspaces (*.zws)|*.zws|All Files|*.*";
constexpr const char* KnownVersion = "1";

bool loading = false;

// While documents are being loaded no workspace is saved, because it would hold only some of them.
class LoadingScope {
public:
    LoadingScope() { loading = true; }
    ~LoadingScope() { loading = false; }
    LoadingScope(const LoadingScope&) = delete;
    LoadingScope& operator=(const LoadingScope&) = delete;
};

WorkspaceView ViewOf(const frmDoc& document) {
    const auto send = [&](unsigned message, std::intptr_t w = 0) {
        return static_cast<long>(Mod_Sci::SendTo(document.SciEdi_WndData, message, w));
    };
    return {document.FullFilename, send(SCI_GETCURRENTPOS), send(SCI_GETANCHOR),
            send(SCI_DOCLINEFROMVISIBLE, send(SCI_GETFIRSTVISIBLELINE))};
}

Workspace CurrentWorkspace() {
    Workspace workspace;
    workspace.windows = gHost.dock->WindowsText();
    if (const frmDoc* document = ActiveForm()) workspace.caret = ViewOf(*document).caret;
    for (const auto& entry : gProjects) {
        const ClsProject& project = *entry.record;
        if (project.FullPath.starts_with("{")) continue;
        workspace.entries.push_back({project.FullPath, project.SingleFile});
        for (const auto& source : project.Sources)
            if (!source.record->NewFile) workspace.views.push_back(ViewOf(FormOf(*source.record)));
    }
    return workspace;
}

bool WriteWorkspace(const std::string& path) {
    return Guarded("SaveWorkSpace", "Mod_File", false, [&] {
        if (loading) return false;
        gHost.files->MakeFolders(GetFolder(path));
        gHost.files->Write(path, WorkspaceText(CurrentWorkspace()));
        return true;
    });
}

// Removes the help window, because the stored arrangement creates it anew.
void DetachHelp() {
    DocumentWindow* help = gHost.dock->FindDocumentWindow(HelpWindowKey);
    if (help == nullptr) return;
    help->Attach(nullptr);
    gHost.dock->DropDocumentWindow(*help);
}

void RestoreWindows(const Workspace& workspace, LoadMessages& messages) {
    if (workspace.windows.empty()) return;
    try {
        gHost.dock->SetWindowsText(workspace.windows);
    } catch (const Failure&) {
        messages.Add({"The arrangement of the windows could not be read."});
    }
}

void OpenEntry(const WorkspaceEntry& entry, LoadMessages& messages) {
    messages.About(entry.path);
    // A name without a folder is that of a document that was never saved, even if such a file exists.
    const bool named = entry.path.find('/') != std::string::npos;
    if (!named || (!entry.single && gHost.files->Kind(gHost.files->Find(entry.path)) == PathKind::None))
        return TellUnloadable(entry.path);
    if (entry.single)
        OpenHere(entry.path, true);
    else if (!ProjectOfPath(entry.path))
        Mod_Project::LoadProject(entry.path, true);
}

// Gives an empty help window its form, and removes windows whose documents could not be loaded.
void FillOrDropEmptyWindows() {
    for (DocumentWindow* window : gHost.dock->DocumentWindows()) {
        Form* form = window->HostedForm();
        if (form == nullptr && window->Key() == HelpWindowKey && gDocumentCalls.HelpForm) {
            form = gDocumentCalls.HelpForm();
            window->Attach(form);
        }
        if (form == nullptr) gHost.dock->DropDocumentWindow(*window);
    }
}

// Restores selection and first visible line. Places beyond the end of the text are ignored: the file may have
// changed since.
void ShowView(frmDoc& document, const WorkspaceView& view) {
    const auto send = [&](unsigned message, std::intptr_t w = 0, std::intptr_t l = 0) {
        return Mod_Sci::SendTo(document.SciEdi_WndData, message, w, l);
    };
    const auto length = send(SCI_GETLENGTH);
    if (view.caret <= length && view.anchor <= length) send(SCI_SETSEL, view.anchor, view.caret);
    if (view.top < send(SCI_GETLINECOUNT))
        send(SCI_SETFIRSTVISIBLELINE, send(SCI_VISIBLEFROMDOCLINE, view.top));
    // All documents but one have no focus, and the first paint must not report a new caret line.
    document.m_oSubclass->OnKillFocus();
    document.Callback_OldLine = static_cast<int>(send(SCI_LINEFROMPOSITION, send(SCI_GETCURRENTPOS)));
}

void ShowViews(const Workspace& workspace) {
    for (const WorkspaceView& view : workspace.views)
        if (frmDoc* document = DocumentIn(gHost.dock->FindDocumentWindow(view.path)))
            ShowView(*document, view);
}

// Activates the front window, whose event is missing or came before it had its document.
void ActivateFrontWindow(const Workspace& workspace) {
    DocumentWindow* window = gHost.dock->ActiveDocumentWindow();
    const auto windows = gHost.dock->DocumentWindows();
    if (window == nullptr && !windows.empty()) {
        const auto front = std::find_if(windows.begin(), windows.end(),
                                        [](const DocumentWindow* other) { return other->InFront(); });
        (front == windows.end() ? windows.front() : *front)->Activate();
        window = gHost.dock->ActiveDocumentWindow();
    }
    MakeActive(DocumentIn(window));
    if (window == nullptr) return;
    if (frmDoc* document = ActiveForm()) document->m_oSubclass->OnSetFocus();
    gDocumentCalls.DocumentWindowActivated(*window);
    const frmDoc* document = ActiveForm();
    const bool known = document == nullptr || std::any_of(workspace.views.begin(), workspace.views.end(),
                                                          [&](const WorkspaceView& view) {
                                                              return view.path == document->FullFilename;
                                                          });
    if (!known && workspace.caret < Mod_Sci::GetLength()) Mod_Sci::GotoPos(workspace.caret);
}

void RestoreWorkspace(const Workspace& workspace) {
    LoadMessages messages;
    {
        const LoadingScope scope;
        const StillFrame still;
        DetachHelp();
        if (!workspace.whole)
            messages.Add({"The workspace file is incomplete. What could be read of it was loaded."});
        else if (!workspace.version.empty() && workspace.version != KnownVersion)
            messages.Add({"The workspace file is of another version. What is known of it was loaded."});
        RestoreWindows(workspace, messages);
        for (const WorkspaceEntry& entry : workspace.entries) OpenEntry(entry, messages);
        FillOrDropEmptyWindows();
        ShowViews(workspace);
        ActivateFrontWindow(workspace);
    }
    gDocumentCalls.UpdateCommandUI();
    messages.Show();
}

} // namespace

void SaveWorkSpace(const std::string& path) { WriteWorkspace(path); }

bool LoadWorkSpace(const std::string& path) {
    return Guarded("LoadWorkSpace", "Mod_File", false, [&] {
        if (loading) return false;
        if (gHost.files->Kind(path) == PathKind::None) {
            gHost.dialogs->Show({"No valid workspace file found !", MessageIcon::Exclamation});
            return false;
        }
        const auto workspace = ReadWorkspaceText(gHost.files->Read(path));
        if (!workspace) {
            gHost.dialogs->Show({"Invalid workspace file !", MessageIcon::Critical});
            return false;
        }
        if (!CloseAllFiles()) return false;
        RestoreWorkspace(*workspace);
        return true;
    });
}

void SaveWorkSpaceAs() {
    const std::string path = gHost.dialogs->SaveFile({"Save Workspace As", Filter, {}, {}});
    if (path.empty()) return;
    if (WriteWorkspace(path)) AddRecentWorkspace(path);
}

void OpenWorkspace() {
    const auto chosen = gHost.dialogs->OpenFiles({"Open Workspace", Filter, {}, {}, false});
    if (!chosen.empty() && LoadWorkSpace(chosen[0])) AddRecentWorkspace(chosen[0]);
}

void OpenRecentWorkspace(int item) {
    const auto path = RecentWorkspace(item);
    if (path && LoadWorkSpace(*path)) AddRecentWorkspace(*path);
}

std::string LastWorkspace() { return AppPath("Conf\\LastWorkspace.zws"); }

} // namespace Mod_File
