// The steps of loading a document.
#include "documents/DocumentLoading.h"

#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/LoadMessages.h"
#include "documents/Mod_File_params.h"
#include "documents/OpenPaths.h"
#include "editor/Guards.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_File {

namespace {

// Loads the bytes of a file into a view without converting them.
void LoadText(frmDoc& document, const std::string& bytes) {
    const std::intptr_t view = document.SciEdi_WndData;
    document.LfEnds = HasOnlyLf(bytes);
    document.MayHaveParameters = FindParameters(bytes) != std::string::npos;
    const bool wide = std::any_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) != 0; });
    document.View->SetUtf8(wide && IsUtf8(bytes));
    Mod_Sci::SendTo(view, SCI_SETMODEVENTMASK,
                    0); // for an unused notification the library would count characters
    Mod_Sci::SendTo(view, SCI_SETUNDOCOLLECTION, 0);
    if (bytes.find('\0') == std::string::npos) {
        Mod_Sci::SendTo(view, SCI_SETTEXT, 0, Mod_Sci::Address(bytes.c_str()));
    } else {
        Mod_Sci::SendTo(view, SCI_SETTARGETSTART, 0);
        Mod_Sci::SendTo(view, SCI_SETTARGETEND, 0);
        Mod_Sci::SendTo(view, SCI_REPLACETARGET, static_cast<std::intptr_t>(bytes.size()),
                        Mod_Sci::Address(bytes.data()));
    }
}

} // namespace

std::shared_ptr<frmDoc> ReadDocument(const std::string& path, std::string& reason) {
    try {
        const std::string bytes = gHost.files->Read(path);
        auto document = std::make_shared<frmDoc>();
        LoadText(*document, bytes);
        return document;
    } catch (const Failure& failure) {
        reason = failure.description;
        return nullptr;
    }
}

void BindWindow(frmDoc& document, bool documentWindow) {
    DocumentWindow* window = documentWindow ? gHost.dock->FindDocumentWindow(document.FullFilename) : nullptr;
    const bool cameBack = window != nullptr;
    if (cameBack) {
        window->Attach(&document);
        window->SetCaption(document.Caption()); // the stored caption may have the star of a dirty document
    } else {
        window = &gHost.dock->AddDocumentWindow(document.FullFilename, document.Caption(), &document);
    }
    document.m_strDocumentWindowID = window->Key();
    // SetVisible would bring a restored window to the front.
    if (!cameBack || !window->Visible()) window->SetVisible(true);
}

void ParseUnheard(frmDoc& document, const std::function<void()>& parse) {
    {
        const Unheard unheard;
        const Unrecorded unrecorded;
        parse();
        CheckFileParameters();
    }
    Mod_Sci::SetSavePoint();
    document.SubClass();
}

namespace {

// Removes the window of a document.
void LeaveWindow(frmDoc& document) {
    for (DocumentWindow* window : gHost.dock->DocumentWindows()) {
        if (window->HostedForm() != &document) continue;
        window->Attach(nullptr);
        gHost.dock->DropDocumentWindow(*window);
        return;
    }
}

} // namespace

void GiveUp(frmDoc& document, long activeBefore) {
    LeaveWindow(document);
    UnloadDocument(&document);
    MakeActive(DocumentOfSerial(activeBefore));
    if (gCurrentProject) Mod_Main::SetActiveCompiler(gCurrentProject->Compiler);
}

void PutAside(const std::shared_ptr<frmDoc>& document) {
    CloseUndoGroup(document.get());
    document->View->SetEvents(nullptr);
    LeaveWindow(*document);
    UnloadDocument(document.get());
    if (gActiveDoc == document.get()) MakeActive(nullptr);
}

void PutBack(const std::shared_ptr<frmDoc>& document, const std::shared_ptr<ClsProject>& project) {
    project->Sources.Add(document, document->FullFilename);
    if (document->SingleFile) gProjects.Add(project, project->FullPath);
    MakeActive(document.get());
    Mod_Main::SetActiveCompiler(project->Compiler);
    if (!document->SingleFile) {
        // UnloadDocument has made its symbols those of a closed file. The text and its undo history are
        // unchanged.
        const Unheard unheard;
        Mod_Sci::MarkerDeleteAll(-1);
        Mod_Parse::ParseOwn(*project);
    }
    document->SubClass();
    BindWindow(*document, false);
    MakeActive(document.get());
}

bool ActivateOpen(const std::string& path) {
    const frmDoc* document = DocumentOfPath(path);
    if (document == nullptr) return false;
    if (DocumentWindow* window = gHost.dock->FindDocumentWindow(document->m_strDocumentWindowID))
        window->Activate();
    return true;
}

bool OpenProjectsFile(const std::shared_ptr<ClsProject>& project, const std::string& path,
                      bool documentWindow) {
    return Guarded("OpenProjectsFile", "Mod_File", false, [&] {
        // A second path of an open file must not open a second document.
        if (ActivateOpen(path)) return true;
        const long before = ActiveForm() == nullptr ? 0 : ActiveForm()->Serial;
        std::string reason;
        const std::shared_ptr<frmDoc> document = ReadDocument(path, reason);
        if (!document) return false;
        document->FullFilename = path;
        document->PrjName = project->Name;
        document->PrjFullPath = project->FullPath;
        document->SingleFile = false;
        document->CompilerUsed = project->Compiler;
        project->Sources.Add(document, path);
        try {
            MakeActive(document.get());
            Mod_Main::SetActiveCompiler(project->Compiler);
            document->Initialise(GetFileName(path));
            ParseUnheard(*document, [&] { Mod_Parse::ParseOwn(*project); });
            BindWindow(*document, documentWindow);
        } catch (...) {
            GiveUp(*document, before);
            throw;
        }
        MakeActive(document.get());
        Mod_Sci::EmptyUndoBuffer();
        return true;
    });
}

bool OpenMember(const std::shared_ptr<ClsProject>& project, const std::string& path, bool documentWindow) {
    if (ActivateOpen(path)) return true;
    if (!OpenProjectsFile(project, path, documentWindow)) {
        TellUnloadable(path);
        return false;
    }
    if (!documentWindow) Mod_Sci::GrabFocus();
    gDocumentCalls.UpdateCommandUI();
    return true;
}

bool OpenMemberOfActive(const std::string& name) {
    const auto project = gCurrentProject;
    const auto file = project ? project->Files.Find(name) : nullptr;
    return file && OpenMember(project, MemberPath(*project, *file));
}

} // namespace Mod_File
