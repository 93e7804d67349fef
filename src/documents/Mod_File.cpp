// Opening and naming documents.
#include "documents/Mod_File.h"

#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/LoadMessages.h"
#include "documents/Mod_Project.h"
#include "documents/OpenPaths.h"
#include "documents/Options.h"
#include "documents/RecentFiles.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "engine/WaitCursor.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Outside.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

DocumentCalls gDocumentCalls;

namespace Mod_File {

namespace {

constexpr std::size_t ShortestNamedPath = 3; // a path of this length is opened whatever its extension

constexpr const char* OpenFilter = "All Supported Formats|*.bb;*.zpf|Zolto Project Files (*.zpf)|*.zpf|Blitz "
                                   "Basic File (*.bb)|*.bb|All Files|*.*";

bool CanBeRead(const std::string& path) {
    try {
        gHost.files->Read(path);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// Opens a file that is not a source with the desktop's program for it. False for a source.
bool ForeignFile(const std::string& path) {
    if (path.size() <= ShortestNamedPath || GetExtension(path) == ".BB") return false;
    switch (gHost.files->Kind(path)) {
    case PathKind::File: gHost.files->OpenWithDesktop(path); return true;
    case PathKind::None:
        TellLoadFailure({"File: " + path + " does not exists !", MessageIcon::Exclamation});
        return true;
    default: return false; // loading a folder or a device fails with a message
    }
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

void ShowSingle(frmDoc& document, ClsProject& project, bool documentWindow) {
    MakeActive(&document);
    document.Initialise(GetFileName(document.FullFilename));
    gHost.desktop->Pump();
    MakeActive(&document); // the pump may have moved the focus to another document
    const WaitCursor wait;
    project.Compiler = CheckFileCompilerUsed();
    Mod_Main::SetActiveCompiler(project.Compiler);
    ParseUnheard(document, Mod_Parse::ParseFile);
    BindWindow(document, documentWindow);
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
    const long before = ActiveForm() == nullptr ? 0 : ActiveForm()->Serial;
    const auto project = AddSingleProject(path, document);
    document->IsSnippet = isSnippet;
    try {
        ShowSingle(*document, *project, documentWindow);
    } catch (...) {
        GiveUp(*document, before);
        throw;
    }
    MakeActive(document.get());
    Mod_Sci::EmptyUndoBuffer();
    if (!documentWindow) Mod_Sci::GrabFocus(); // a workspace sets the focus at its end
    AddRecentFile(path);
    gDocumentCalls.UpdateCommandUI();
    return true;
}

// Loads an open document again. If that fails, the open text stays: there may be no other copy of it.
bool Reload(const std::shared_ptr<frmDoc>& document) {
    const auto project = gProjects.Item(document->PrjFullPath);
    const std::string path = document->FullFilename;
    if (!CanBeRead(path)) {
        TellUnloadable(path);
        return false;
    }
    PutAside(document);
    const bool loaded = Guarded("OpenFile", "Mod_File", false, [&] {
        return document->SingleFile ? LoadDocument(path, false, document->IsSnippet)
                                    : OpenMember(project, path);
    });
    if (!loaded) PutBack(document, project);
    return loaded;
}

// Brings an open file to the front. If it is dirty, asks whether to load it again; true if it was loaded.
bool OpenAgain(const frmDoc& document) {
    const long serial = document.Serial;
    const bool dirty = document.Dirty;
    ActivateOpen(document.FullFilename); // so that the user sees the file of the question
    if (!dirty) return false;
    const MessageAnswer answer = gHost.dialogs->Show(
        {"File " + document.Filename +
             " is already open and has changed.\r\nDo you want to reload this file and lose any changes ?",
         MessageIcon::Exclamation, "Warning", MessageButtons::YesNo, MessageAnswer::No});
    const frmDoc* still = answer == MessageAnswer::Yes ? DocumentOfSerial(serial) : nullptr;
    if (still == nullptr) return false;
    return Reload(std::static_pointer_cast<frmDoc>(
        gProjects.Item(still->PrjFullPath)->Sources.Item(still->FullFilename)));
}

// Opens a file that is open already or belongs to an open project. Returns nothing for any other file.
std::optional<bool> OpenKnown(const std::string& path, bool documentWindow) {
    if (const frmDoc* document = DocumentOfPath(path)) return OpenAgain(*document);
    std::string memberPath;
    if (const auto project = ProjectOfMember(path, memberPath))
        return OpenMember(project, memberPath, documentWindow);
    return std::nullopt;
}

// A name that no open document has. It ends with a number if the option asks for one or the name is in use.
std::string NewName() {
    static int counter = 0; // never reset while the program runs
    std::string name = Options::gDefNewName;
    if (Options::gEnumerateNewFiles) name += " " + std::to_string(++counter);
    while (gProjects.Exist_Key(name)) name = Options::gDefNewName + " " + std::to_string(++counter);
    return name;
}

// Asks for files. Returns the path of a single one; opens several at once and returns an empty path.
std::string AskForFile() {
    FileQuestion question{"Open File", OpenFilter, {}, {}, true};
    const std::vector<std::string> chosen = gHost.dialogs->OpenFiles(question);
    if (chosen.size() == 1) return chosen[0];
    for (const std::string& path : chosen) OpenFile(path);
    return {};
}

std::string WithoutQuotes(std::string token) {
    if (token.starts_with('"')) token.erase(0, 1);
    if (token.ends_with('"')) token.pop_back();
    return token;
}

// The text in quotes that begins with token `first`; `last` becomes the index of its last token. Empty if the
// token does not begin with a quote or no later token ends with one.
std::string QuotedFrom(const std::vector<std::string>& tokens, std::size_t first, std::size_t& last) {
    if (!tokens[first].starts_with('"')) return {};
    std::string whole;
    for (last = first; last < tokens.size(); ++last) {
        whole += (last > first ? " " : "") + tokens[last];
        if (whole.size() > 1 && whole.ends_with('"')) return whole.substr(1, whole.size() - 2);
    }
    return {};
}

} // namespace

bool OpenFile(const std::string& wanted, bool documentWindow, bool isSnippet) {
    return Guarded("OpenFile", "Mod_File", false, [&] {
        std::string path = wanted.empty() ? AskForFile() : wanted;
        if (path.empty()) return false;
        path = gHost.files->Find(path);
        if (const auto opened = OpenKnown(path, documentWindow)) return *opened;
        if (path.size() > ShortestNamedPath && GetExtension(path) == ".ZPF") {
            Mod_Project::LoadProject(path);
            gDocumentCalls.PopulateTreeView();
            return false;
        }
        return !ForeignFile(path) && LoadDocument(path, documentWindow, isSnippet);
    });
}

bool OpenHere(const std::string& wanted, bool documentWindow) {
    return Guarded("OpenFile", "Mod_File", false, [&] {
        const std::string path = gHost.files->Find(wanted);
        if (const auto opened = OpenKnown(path, documentWindow)) return *opened;
        return LoadDocument(path, documentWindow, false);
    });
}

void NewFile() {
    Guarded("NewFile", "Mod_File", [&] {
        gHost.desktop->Pump();
        auto document = std::make_shared<frmDoc>();
        document->SubClass();
        const std::string name = NewName();
        DocumentWindow& window = gHost.dock->AddDocumentWindow("", name, nullptr);
        try {
            document->m_strDocumentWindowID = window.Key();
            document->NewFile = true;
            const auto project = AddSingleProject(name, document);
            project->Compiler = gActiveCompiler ? gActiveCompiler->Name : DefaultCompiler;
            Mod_Main::SetActiveCompiler(project->Compiler);
        } catch (...) {
            gHost.dock->DropDocumentWindow(window); // the name is in use after all
            throw;
        }
        MakeActive(document.get());
        document->Initialise(name);
        window.Attach(document.get());
        window.SetVisible(true);
        MakeActive(document.get());
        Mod_Sci::EmptyUndoBuffer();
        Mod_Sci::GrabFocus();
        gDocumentCalls.UpdateCommandUI();
    });
}

void OpenFilesFromCommand(const std::string& commandLine) {
    Guarded("OpenFilesFromCommand", "Mod_File", [&] {
        std::vector<std::string> tokens = Split(commandLine, ' ');
        long line = 0;
        const auto open = [&](const std::string& path) {
            if (path.empty() || gHost.desktop->ShortPath(path).empty()) return false;
            if (OpenFile(path) && line > 0) {
                Mod_Sci::EnsureVisible(line - 1); // the line may be folded
                Mod_Sci::GotoLine(line - 1);
            }
            line = 0;
            return true;
        };
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            std::size_t last = i;
            // Quoted text is tried as a whole first, because its first word may be the name of another file.
            if (open(QuotedFrom(tokens, i, last))) {
                i = last;
                continue;
            }
            const std::string token =
                WithoutQuotes(tokens[i]); // not trimmed: a path may hold two blanks in a row
            const std::string option = UCase(TrimBlanks(token));
            if (option.starts_with("/L:"))
                line = std::lrint(std::strtod(option.c_str() + 3, nullptr));
            else if (!open(token) && i + 1 < tokens.size())
                tokens[i + 1] = token + " " + WithoutQuotes(tokens[i + 1]);
        }
    });
}

void FilesDropped(const std::vector<std::string>& paths) {
    for (const std::string& path : paths)
        FromOutside([path] {
            if (gHost.files->Kind(path) != PathKind::Folder) OpenFile(path);
        });
}

} // namespace Mod_File
