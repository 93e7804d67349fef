// A document: its view, its pipeline and its runner live and end with it.
#include "editor/frmDoc.h"

#include "editor/SciOptions.h"
#include "engine/ClosedFiles.h"
#include "engine/ClsProject.h"
#include "engine/ParserState.h"
#include "engine/SymbolLine.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

namespace {

long NextSerial() {
    static long last = 0;
    return ++last;
}

}

frmDoc::frmDoc() : Serial(NextSerial()) {
    View = gHost.views->Create();
    if (!View) throw Failure(FailureFileNotFound, "The edit control could not be made");
    SciEdi_WndData = View->DirectPointer();
    ForgetLines(SciEdi_WndData); // another view may have been there
    gSciDirect = View->DirectFunction();
    m_oSubclass = MakePipeline(*this);
    ShellClass = std::make_unique<StdShell>();
}

frmDoc::~frmDoc() {
    View->SetEvents(nullptr);
    CloseUndoGroup(this);
    if (gActiveDoc == this) MakeActive(nullptr);
}

void frmDoc::Initialise(const std::string& filename) {
    Filename = filename;
    SetSciOptions(true);
    SetSciConstants();
}

void frmDoc::SubClass() { View->SetEvents(m_oSubclass.get()); }

void frmDoc::SetFilename(const std::string& name) {
    if (Filename == name) return;
    Filename = name;
    RefreshCaption();
}

void frmDoc::SetDirty(bool dirty) {
    if (Dirty == dirty) return;
    Dirty = dirty;
    RefreshCaption();
}

bool frmDoc::CanUndo() const { return Mod_Sci::SendTo(SciEdi_WndData, SCI_CANUNDO) != 0; }

std::string frmDoc::Caption() const { return Dirty ? Filename + "*" : Filename; }

void frmDoc::RefreshCaption() {
    if (gHost.dock == nullptr || m_strDocumentWindowID.empty()) return;
    if (DocumentWindow* window = gHost.dock->FindDocumentWindow(m_strDocumentWindowID))
        window->SetCaption(Caption());
}

frmDoc* DocumentIn(const DocumentWindow& window) { return dynamic_cast<frmDoc*>(window.HostedForm()); }

frmDoc* DocumentIn(const DocumentWindow* window) { return window ? DocumentIn(*window) : nullptr; }

frmDoc* ActiveForm() { return gActiveDoc ? &FormOf(*gActiveDoc) : nullptr; }

frmDoc* DocumentOfSerial(long serial) {
    for (const auto& project : gProjects)
        for (const auto& source : project.record->Sources)
            if (frmDoc& document = FormOf(*source.record); document.Serial == serial) return &document;
    return nullptr;
}

void MakeActive(frmDoc* document) {
    gActiveDoc = document;
    SciWndData = document == nullptr ? 0 : document->SciEdi_WndData;
    gCurrentProject = document == nullptr ? nullptr : gProjects.Find(document->PrjFullPath);
}

void UnloadDocument(frmDoc* document) {
    const auto project = gProjects.Find(document->PrjFullPath);
    if (!project) return;
    // Held until the end: removing it from its project may be what destroys it.
    const auto held = project->Sources.Find(document->FullFilename);
    if (!held) return;
    if (!document->SingleFile) CloseSymbols(*project, document->SciEdi_WndData);
    project->Sources.RemoveKey(document->FullFilename);
    if (document->SingleFile) gProjects.RemoveKey(document->PrjFullPath);
}
