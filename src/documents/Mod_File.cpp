// Opening and naming documents.
#include "documents/Mod_File.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_Main.h"
#include "documents/Mod_Project.h"
#include "documents/Options.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

DocumentCalls gDocumentCalls;

namespace Mod_File {

namespace {

constexpr const char* HelpWindow = "HELP WINDOW";
constexpr std::size_t ShortestNamedPath = 3; // such a path is tried whatever its extension

constexpr const char* OpenFilter = "All Supported Formats|*.bb;*.zpf|Zolto Project Files (*.zpf)|*.zpf|Blitz "
                                   "Basic File (*.bb)|*.bb|All Files|*.*";

class WaitCursor {
public:
    WaitCursor() { gHost.desktop->SetWaitCursor(true); }
    ~WaitCursor() { gHost.desktop->SetWaitCursor(false); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

DocumentWindow* WindowOfFile(const std::string& path) {
    for (DocumentWindow* window : gHost.dock->DocumentWindows()) {
        if (window->Key() == HelpWindow || window->HostedForm() == nullptr) continue;
        if (EqualNoCase(static_cast<frmDoc*>(window->HostedForm())->FullFilename, path)) return window;
    }
    return nullptr;
}

void TellUnloadable(const std::string& path) {
    gHost.dialogs->Show(
        {"Could not load file:\r\n" + path, MessageIcon::Critical, "File Could Not Be Loaded!"});
}

bool CanBeRead(const std::string& path) {
    try {
        gHost.files->Read(path);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// An open file comes to the front; with changes the user may have it loaded anew. True when the call is done.
bool AlreadyOpen(const std::string& path) {
    DocumentWindow* window = WindowOfFile(path);
    if (window == nullptr) return false;
    auto* document = static_cast<frmDoc*>(window->HostedForm());
    if (!document->Dirty) {
        window->Activate();
        return true;
    }
    const MessageAnswer answer = gHost.dialogs->Show(
        {"File " + document->Filename +
             " is already open and has changed.\r\nDo you want to reload this file and lose any changes ?",
         MessageIcon::Exclamation, "Warning", MessageButtons::YesNo, MessageAnswer::No});
    if (answer != MessageAnswer::Yes) return true;
    if (!CanBeRead(path)) { // the text in the window is all that is left of it
        TellUnloadable(path);
        return true;
    }
    window->Attach(nullptr);
    UnloadDocument(document);
    gHost.dock->DropDocumentWindow(*window);
    return false;
}

// What is no source and no project goes to the desktop. True when the call is done.
bool ForeignFile(const std::string& path) {
    if (path.size() <= ShortestNamedPath) return false;
    const std::string extension = GetExtension(path);
    if (extension == ".ZPF") {
        Mod_Project::LoadProject(path);
        if (gDocumentCalls.PopulateTreeView) gDocumentCalls.PopulateTreeView();
        return true;
    }
    if (extension == ".BB") return false;
    switch (gHost.files->Kind(path)) {
    case PathKind::File: gHost.files->OpenWithDesktop(path); return true;
    case PathKind::None:
        gHost.dialogs->Show({"File: " + path + " does not exists !", MessageIcon::Exclamation});
        return true;
    default: return false; // a folder or a device is refused by the attempt to load it
    }
}

bool OnlyLf(std::string_view text) {
    return text.find('\n') != std::string_view::npos && text.find('\r') == std::string_view::npos;
}

// Puts a file's bytes into a view as they are. The block at the end has CR LF in every file, so it does not
// tell how the source's own lines end.
void LoadText(frmDoc& document, const std::string& bytes) {
    const std::intptr_t view = document.SciEdi_WndData;
    document.LfEnds = OnlyLf(std::string_view(bytes).substr(0, bytes.find("\r\n;~Zolto Editor Parameters:")));
    const bool wide = std::any_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) != 0; });
    document.View->SetUtf8(wide && IsUtf8(bytes));
    Mod_Sci::SendTo(view, SCI_SETMODEVENTMASK,
                    0); // nobody listens yet, and the library would count characters
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

// A new document with a file's text; null, after nothing but the failure's text, when it cannot be read.
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
    if (window != nullptr)
        window->Attach(&document);
    else
        window = &gHost.dock->AddDocumentWindow(document.FullFilename, document.Caption(), &document);
    document.m_strDocumentWindowID = window->Key();
    window->SetVisible(true);
}

// Parses the active document's lines with nothing listening, and then starts listening. No change of the
// text enters the undo history.
template <class Parse>
void ParseUnheard(frmDoc& document, Parse parse) {
    Mod_Sci::SetModEventMask(0);
    Mod_Sci::SetUndoCollection(0);
    parse();
    CheckFileParameters();
    Mod_Sci::SetUndoCollection(1);
    Mod_Sci::SetModEventMask(EventMask);
    Mod_Sci::SetSavePoint();
    document.SubClass();
}

std::shared_ptr<ClsProject> AddSingleProject(const std::string& name,
                                             const std::shared_ptr<frmDoc>& document) {
    auto project = std::make_shared<ClsProject>();
    project->Name = name;
    project->FullPath = name;
    document->FullFilename = name;
    document->PrjName = name;
    document->PrjFullPath = name;
    document->SingleFile = true;
    project->Sources.Add(document, name);
    project->SingleFile = true;
    gProjects.Add(project, name);
    return project;
}

bool LoadDocument(const std::string& path, bool documentWindow, bool isSnippet) {
    std::shared_ptr<frmDoc> document;
    {
        const WaitCursor wait;
        std::string reason;
        document = ReadDocument(path, reason);
    }
    if (!document) {
        TellUnloadable(path);
        return false;
    }
    const auto project = AddSingleProject(path, document);
    document->IsSnippet = isSnippet;
    MakeActive(document.get());
    document->Initialise(GetFileName(path));
    gHost.desktop->Pump();
    MakeActive(document.get()); // the pump may have opened another document
    {
        const WaitCursor wait;
        project->Compiler = CheckFileCompilerUsed();
        Mod_Main::SetActiveCompiler(project->Compiler);
        ParseUnheard(*document, Mod_Parse::ParseFile);
        BindWindow(*document, documentWindow);
    }
    MakeActive(document.get());
    Mod_Sci::EmptyUndoBuffer();
    Mod_Sci::GrabFocus();
    if (gDocumentCalls.UpdateCommandUI) gDocumentCalls.UpdateCommandUI();
    return true;
}

int NextNewNumber() {
    static int counter = 0; // never reset while the program runs
    return ++counter;
}

// Asks for files; all but a single one are opened here.
std::string AskForFile() {
    FileQuestion question{"Open File", OpenFilter, {}, {}, true};
    const std::vector<std::string> chosen = gHost.dialogs->OpenFiles(question);
    if (chosen.size() == 1) return chosen[0];
    for (const std::string& path : chosen) OpenFile(path);
    return {};
}

} // namespace

bool OpenFile(const std::string& wanted, bool documentWindow, bool isSnippet) {
    return Guarded("OpenFile", "Mod_File", false, [&] {
        std::string path = wanted.empty() ? AskForFile() : wanted;
        if (path.empty()) return false;
        path = gHost.files->Find(path);
        if (ForeignFile(path) || AlreadyOpen(path)) return false;
        return LoadDocument(path, documentWindow, isSnippet);
    });
}

bool OpenProjectsFile(const std::string& path, bool documentWindow) {
    return Guarded("OpenProjectsFile", "Mod_File", false, [&] {
        const auto project = gCurrentProject;
        std::string reason;
        const std::shared_ptr<frmDoc> document = ReadDocument(path, reason);
        if (!document) return false;
        document->FullFilename = path;
        document->PrjName = project->Name;
        document->PrjFullPath = project->FullPath;
        document->SingleFile = false;
        document->CompilerUsed = project->Compiler;
        project->Sources.Add(document, path);
        MakeActive(document.get());
        document->Initialise(GetFileName(path));
        ParseUnheard(*document, [&] {
            CurrentFunctionName = MainProgram;
            CurrentLocals = project->MainFunLocals;
            CurrentTypeName.clear();
            FoldLevel = 0;
            IndentLevel = 0;
            Mod_Parse::ParseAllLines();
        });
        BindWindow(*document, documentWindow);
        MakeActive(document.get());
        Mod_Sci::EmptyUndoBuffer();
        return true;
    });
}

void NewFile() {
    Guarded("NewFile", "Mod_File", [&] {
        gHost.desktop->Pump();
        auto document = std::make_shared<frmDoc>();
        document->SubClass();
        std::string name = Options::gDefNewName;
        if (Options::gEnumerateNewFiles) name += " " + std::to_string(NextNewNumber());
        DocumentWindow& window = gHost.dock->AddDocumentWindow("", name, nullptr);
        try {
            document->m_strDocumentWindowID = window.Key();
            document->NewFile = true;
            const auto project = AddSingleProject(name, document);
            project->Compiler = gActiveCompiler ? gActiveCompiler->Name : DefaultCompiler;
            Mod_Main::SetActiveCompiler(project->Compiler);
        } catch (...) {
            gHost.dock->DropDocumentWindow(window); // a name that is taken leaves nothing behind
            throw;
        }
        MakeActive(document.get());
        document->Initialise(name);
        window.Attach(document.get());
        window.SetVisible(true);
        MakeActive(document.get());
        Mod_Sci::EmptyUndoBuffer();
        Mod_Sci::GrabFocus();
        if (gDocumentCalls.UpdateCommandUI) gDocumentCalls.UpdateCommandUI();
    });
}

void OpenFilesFromCommand(const std::string& commandLine) {
    Guarded("OpenFilesFromCommand", "Mod_File", [&] {
        std::vector<std::string> tokens;
        for (std::size_t from = 0; from <= commandLine.size();) {
            const std::size_t blank = std::min(commandLine.find(' ', from), commandLine.size());
            tokens.push_back(commandLine.substr(from, blank - from));
            from = blank + 1;
        }
        for (std::string& token : tokens) {
            if (token.starts_with('"')) token.erase(0, 1);
            if (token.ends_with('"')) token.pop_back();
        }
        long line = 0;
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            const std::string& token = tokens[i]; // untrimmed: a path may hold two blanks in a row
            const std::string option = UCase(TrimBlanks(token));
            if (option.starts_with("/L:")) {
                line = std::lrint(std::strtod(option.c_str() + 3, nullptr));
            } else if (!token.empty() && !gHost.desktop->ShortPath(token).empty()) {
                if (OpenFile(token) && line > 0) Mod_Sci::GotoLine(line - 1);
                line = 0;
            } else if (i + 1 < tokens.size()) {
                tokens[i + 1] = token + " " + tokens[i + 1];
            }
        }
    });
}

} // namespace Mod_File
