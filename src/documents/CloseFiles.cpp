// Closing documents and projects.
#include "documents/CloseFiles.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Dialogs.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Host.h"

#include <algorithm>
#include <vector>

namespace Mod_File {

namespace {

bool questionsAnswered = false; // the user was asked about all documents that are being closed

class QuestionsAnswered {
public:
    QuestionsAnswered() { questionsAnswered = true; }
    ~QuestionsAnswered() { questionsAnswered = false; }
    QuestionsAnswered(const QuestionsAnswered&) = delete;
    QuestionsAnswered& operator=(const QuestionsAnswered&) = delete;
};

bool BelongsTo(const frmDoc& document, const ClsProject* project) {
    return project == nullptr || project->Sources.Exist_Item(&document);
}

// The serial numbers of the documents of a project, or of all documents, in the order of their windows.
std::vector<long> SerialsOf(const ClsProject* project) {
    std::vector<long> serials;
    for (const DocumentWindow* window : gHost.dock->DocumentWindows())
        if (const frmDoc* document = DocumentIn(window); document != nullptr && BelongsTo(*document, project))
            serials.push_back(document->Serial);
    return serials;
}

DocumentWindow* WindowOf(const frmDoc& document) {
    return gHost.dock->FindDocumentWindow(document.m_strDocumentWindowID);
}

// Asks whether to save a dirty document, and saves it. False if the document has to stay open.
bool AskToSave(long serial) {
    frmDoc* document = DocumentOfSerial(serial);
    if (document == nullptr || !document->Dirty) return true;
    if (DocumentWindow* window = WindowOf(*document)) window->Activate();
    MakeActive(document);
    const MessageAnswer answer =
        gHost.dialogs->Show({"The text in the file '" + document->Filename +
                                 "' has changed.\r\n\r\nDo you want to save the changes ?",
                             MessageIcon::Question,
                             {},
                             document->SingleFile ? MessageButtons::YesNoCancel : MessageButtons::YesNo});
    document = DocumentOfSerial(serial);
    if (answer != MessageAnswer::Yes || document == nullptr) return answer == MessageAnswer::No;
    return SaveFile(document);
}

// Saves a dirty project without asking. False if that failed and the project has to stay open.
bool SaveOrKeep(const std::shared_ptr<ClsProject>& project) {
    if (project->SingleFile || !project->Dirty) return true;
    try {
        Mod_Project::WriteProject(*project);
        return true;
    } catch (const Failure&) {
        return gHost.dialogs->Show(
                   {"Could not save " + project->FullPath +
                        "\r\nThe file may be in use by another process or disk is write protected\r\n\r\nDo "
                        "you want to close the project and lose its changes ?",
                    MessageIcon::Critical, "Project could not be saved !", MessageButtons::YesNo,
                    MessageAnswer::No}) == MessageAnswer::Yes;
    }
}

bool AskFor(const std::shared_ptr<ClsProject>& project) {
    const std::vector<long> serials = SerialsOf(project.get());
    if (!std::all_of(serials.begin(), serials.end(), AskToSave)) return false;
    if (project) return SaveOrKeep(project);
    std::vector<std::shared_ptr<ClsProject>> all;
    for (const auto& entry : gProjects) all.push_back(entry.record);
    return std::all_of(all.begin(), all.end(), SaveOrKeep);
}

// Closes documents without asking again. False if one stayed open.
bool CloseWindows(const ClsProject* project, bool singleOnly) {
    const QuestionsAnswered scope;
    for (const long serial : SerialsOf(project)) {
        const frmDoc* document = DocumentOfSerial(serial);
        if (document == nullptr || (singleOnly && !document->SingleFile)) continue;
        if (DocumentWindow* window = WindowOf(*document)) window->SetVisible(false);
        if (DocumentOfSerial(serial) != nullptr) return false;
    }
    return true;
}

// Closes a project that was saved, and its documents without asking again.
bool CloseSavedProject(const std::shared_ptr<ClsProject>& project) {
    // A document that stayed open needs its project.
    if (!CloseWindows(project.get(), false) || project->Sources.Count() > 0) return false;
    if (gProjects.Exist_Key(project->FullPath)) gProjects.RemoveKey(project->FullPath);
    gDocumentCalls.RefreshCodeExplorer();
    gDocumentCalls.PopulateTreeView();
    return true;
}

} // namespace

bool AskForAll() { return AskFor(nullptr); }

bool CloseDocuments() { return CloseWindows(nullptr, false); }

void DocumentWindowHiding(DocumentWindow& window, bool& cancel) {
    if (questionsAnswered) return;
    if (const frmDoc* document = DocumentIn(window); document != nullptr && !AskToSave(document->Serial))
        cancel = true;
}

bool CloseAllFiles() {
    return Guarded("CloseAllFiles", "Mod_MenuCommands", false, [] {
        if (!AskForAll() || !CloseWindows(nullptr, true)) return false;
        bool closed = true;
        for (int index = gProjects.Count() - 1; index >= 0; --index) {
            const auto project = gProjects.Item(index);
            if (!project->SingleFile && !CloseSavedProject(project)) closed = false;
        }
        return closed;
    });
}

bool CloseProject(std::shared_ptr<ClsProject> project) {
    return Guarded("CloseProject", "Mod_File", false,
                   [&] { return AskFor(project) && CloseSavedProject(project); });
}

} // namespace Mod_File
