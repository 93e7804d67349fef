// Goes from an entry of the Code Explorer to its place in the source.
#include "workbench/explorer/frmList.h"

#include "documents/Mod_File.h"
#include "documents/OpenPaths.h"
#include "editor/Mod_SciFun_goto.h"
#include "editor/frmDoc.h"
#include "engine/ClosedFiles.h"
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
        if (source.record->SciEdi_WndData == symbol.SciWndData) return &FormOf(*source.record);
    return nullptr;
}

// The locals of a function, or the fields of a type.
const clsHash& NamesIn(const Symbol& owner) {
    const auto* function = dynamic_cast<const ClsFunkcija*>(&owner);
    return function ? *function->Locals : *static_cast<const ClsType&>(owner).Fields;
}

// The folders, each with its separator, in which the path of an Include is looked up.
std::vector<std::string> IncludeFolders(const ClsProject& project, const Symbol& include) {
    std::vector<std::string> folders;
    if (const frmDoc* document = DocumentOf(project, include))
        folders.push_back(GetFolder(document->FullFilename));
    if (!project.SingleFile) folders.push_back(project.Path);
    return folders;
}

}

void frmList::GotoItem(const CodeList& list) {
    Guarded("GotoItem", "frmList", [&] {
        const auto project = lists_[construct_].project.lock();
        const SymbolPointer symbol = list.Current();
        // The main program is declared on no line.
        if (!project || !symbol || symbol->Handle == 0) return;
        SymbolPointer target = symbol;
        if (DocumentOf(*project, *symbol) == nullptr) {
            const SymbolPointer owner = &list == &ShownList() ? nullptr : ShownList().Current();
            target = Reopened(*project, symbol, owner);
        }
        frmDoc* document = target ? DocumentOf(*project, *target) : nullptr;
        if (document == nullptr || !Mod_SciFun::BringToFront(*document)) return;
        const int line = LineOf(*target);
        if (line >= 0) Mod_SciFun::GotoLine(line);
        document->View->GrabFocus();
    });
}

// Opens the closed file of a symbol, which declares all its symbols anew, and returns the new record of this
// one. `owner` is the function or type that it is listed under. Returns null if the symbol is gone.
SymbolPointer frmList::Reopened(const ClsProject& project, const SymbolPointer& symbol,
                                const SymbolPointer& owner) {
    const clsHash& table = project.*Constructs[construct_].table;
    const int ownersBefore = owner ? NamesakesBefore(table, *owner) : 0;
    const int before = NamesakesBefore(owner ? NamesIn(*owner) : table, *symbol);
    if (!OpenFileOf(symbol)) return nullptr;
    const std::intptr_t view = gActiveDoc->SciEdi_WndData;
    if (!owner) return NamesakeOf(view, table, symbol->Ime, before);
    // The main program belongs to no file.
    const SymbolPointer again =
        owner->Handle == 0 ? owner : NamesakeOf(view, table, owner->Ime, ownersBefore);
    return again ? NamesakeOf(view, NamesIn(*again), symbol->Ime, before) : nullptr;
}

// Opens the closed file of a symbol. Returns false if that fails.
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
        Mod_File::OpenHere(path);
    });
}
