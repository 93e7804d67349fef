// From an entry of the Code Explorer to its place in the source.
#include "workbench/frmList.h"

#include "documents/Mod_File.h"
#include "documents/OpenPaths.h"
#include "editor/Mod_SciFun_goto.h"
#include "editor/frmDoc.h"
#include "engine/SymbolLine.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"

#include <QMenu>

namespace {

frmDoc* DocumentOf(const ClsProject& project, const Symbol& symbol) {
    for (const auto& source : project.Sources)
        if (source.record->SciEdi_WndData == symbol.SciWndData)
            return static_cast<frmDoc*>(source.record.get());
    return nullptr;
}

// The folder, with its separator, that a path in an Include starts from.
std::vector<std::string> IncludeFolders(const ClsProject& project, const Symbol& include) {
    std::vector<std::string> folders;
    if (const frmDoc* document = DocumentOf(project, include))
        folders.push_back(GetFolder(document->FullFilename));
    if (!project.SingleFile) folders.push_back(project.Path);
    return folders;
}

}

void frmList::GotoItem(const SymbolPointer& symbol) {
    Guarded("GotoItem", "frmList", [&] {
        const auto project = lists_[construct_].project.lock();
        // The main program is declared on no line.
        if (!project || !symbol || symbol->Handle == 0) return;
        SymbolPointer target = symbol;
        if (DocumentOf(*project, *symbol) == nullptr) {
            if (!OpenFileOf(symbol)) return;
            // The file that was opened has declared it anew.
            target = (project.get()->*Constructs[construct_].table).ItemHash(symbol->Ime);
        }
        frmDoc* document = target ? DocumentOf(*project, *target) : nullptr;
        if (document == nullptr || !Mod_SciFun::BringToFront(*document)) return;
        const int line = LineOf(*target);
        if (line >= 0) Mod_SciFun::GotoLine(line);
        document->View->GrabFocus();
    });
}

// Opens the file of a symbol whose document was closed. False when it could not be opened.
bool frmList::OpenFileOf(const SymbolPointer& symbol) {
    const auto project = lists_[construct_].project.lock();
    if (project->SingleFile) return false;
    if (project->MainFile.empty()) {
        gHost.dialogs->Show({.text = "Please Set the 'Main File' for this project first...",
                             .icon = MessageIcon::Exclamation,
                             .title = "Operation aborted"});
        return false;
    }
    const auto file = project->Files.Find(symbol->File);
    if (!file) return false;
    return Mod_File::OpenMember(project, Mod_File::MemberPath(*project, *file));
}

void frmList::ShowIncludePopup(const QPoint& at) {
    CodeList* list = &ShownList();
    if (!list->indexAt(at).isValid()) return;
    QMenu popup(list);
    popup.setObjectName("CodeExPopupMenu");
    popup.addAction(tr("&Open Include"), this, [this] { OpenInclude(); });
    popup.exec(list->viewport()->mapToGlobal(at));
}

void frmList::OpenInclude() {
    Guarded("OpenInclude", "frmList", [this] {
        const auto project = lists_[construct_].project.lock();
        const SymbolPointer include = ShownList().Current();
        if (!project || !include) return;
        std::string path;
        for (const std::string& folder : IncludeFolders(*project, *include)) {
            std::string candidate = gHost.files->Find(CollapseSeparators(folder + ToDisk(include->Ime)));
            const bool there = gHost.files->Kind(candidate) != PathKind::None;
            if (path.empty() || there) path = std::move(candidate);
            if (there) break;
        }
        if (path.empty() || Mod_File::ActivateOpen(path)) return;
        Mod_File::OpenFile(path);
    });
}
