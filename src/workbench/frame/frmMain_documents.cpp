// Handles document windows that are activated, clicked and closed, and commands that are chosen.
#include "workbench/frame/frmMain.h"

#include "documents/CloseFiles.h"
#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/Options.h"
#include "editor/EditorCalls.h"
#include "editor/Mod_SciFun_tips.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"
#include "workbench/explorer/frmMainList.h"
#include "workbench/frame/Mod_MenuCommands.h"

namespace {

constexpr int InsideDocument = 1;
constexpr int OnTab = 3;

bool IsHelp(const DocumentWindow& window) { return window.Key() == HelpWindowKey; }

bool SingleFile() { return !gCurrentProject || gCurrentProject->SingleFile; }

// Activates the document's project and its compiler.
void TakeCompilerOf(frmDoc& document, ClsProject& project) {
    if (project.Compiler.empty() && gActiveCompiler) project.Compiler = gActiveCompiler->Name;
    if (!project.Compiler.empty()) Mod_Main::SetActiveCompiler(project.Compiler);
    if (project.SingleFile || document.CompilerUsed == project.Compiler) return;
    if (gActiveCompiler) gActiveCompiler->SetDefaultKeywords();
    document.CompilerUsed = project.Compiler;
}

void SetBox(const char* name, const std::string& text) {
    if (DockCommand* box = gHost.dock->FindCommand(name)) box->SetText(text);
}

}

void frmMain::DS_DocumentWindowActivate(DocumentWindow& window, bool creating) {
    if (creating) return;
    Guarded("DS_DocumentWindowActivate", "frmMain", [&] {
        if (!window.HostedForm()) return;
        if (IsHelp(window)) {
            ShowProgressPane(true);
            MakeActive(nullptr);
            UpdateCommandUI();
        } else if (frmDoc* document = DocumentIn(window)) {
            ActivateDocument(*document);
        }
        if (tabs_.current == window.Key()) return;
        tabs_.previous = tabs_.current;
        tabs_.current = window.Key();
    });
}

void frmMain::ActivateDocument(frmDoc& document) {
    MakeActive(&document);
    // The parser's state of the previous document is meaningless for this one.
    EndColoring();
    AllowCompletion(false);
    ForgetScope();
    document.State.Restyle();
    document.State.mJustActivated = true;
    if (gCurrentProject) {
        TakeCompilerOf(document, *gCurrentProject);
        // The lists show one file, and that file has changed.
        if (frmMainList::Instance().ShowOnlyFile()) frmMainList::Instance().Refresh();
        SetBox("cboCompilers", gActiveCompiler ? gActiveCompiler->Name : std::string());
        SetBox("cboCommandLine", gCurrentProject->CommandLine);
    }
    const auto caret = Mod_Sci::GetCurrentPos();
    const int line = Mod_Sci::LineFromPosition(caret);
    Mod_SciFun::ShowHelp(caret, line);
    if (OptionsEdit::ShowCurrentFunction) {
        SetFunctionText(Mod_Parse::CurrentFunctionForDisplay(line));
    }
    ShowProgressPane(false);
    UpdateCommandUI();
    document.View->GrabFocus();
}

void frmMain::DS_DocumentWindowDeactivate(DocumentWindow& window) {
    Guarded("DS_DocumentWindowDeactivate", "frmMain", [&] {
        frmDoc* document = DocumentIn(window);
        if (document && document->m_oSubclass) document->m_oSubclass->DeactivateCheck();
    });
}

void frmMain::DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) {
    Guarded("DS_DocumentWindowHiding", "frmMain", [&] { Mod_File::DocumentWindowHiding(window, cancel); });
}

void frmMain::DS_DocumentWindowHidden(DocumentWindow& window) {
    Guarded("DS_DocumentWindowHidden", "frmMain", [&] {
        frmDoc* document = DocumentIn(window);
        window.Attach(nullptr);
        if (document) UnloadDocument(document);
        gHost.dock->DropDocumentWindow(window);
        frmMainList::Instance().PuniLista(); // the lists let go of a closed project
        if (!ActiveDocument()) ForgetDocument();
        UpdateCommandUI();
    });
}

// Clears what the status bar and the boxes show of a document.
void frmMain::ForgetDocument() {
    SetPositionText({});
    SetFunctionText({});
    SetTipText({});
    SetBox("cboCompilers", {});
    SetBox("cboCommandLine", {});
}

void frmMain::DS_DocumentWindowDoubleClick(DocumentWindow& window, int place) {
    if (place != OnTab || IsHelp(window) || Options::gDoubleClickClosesTabs == 0) return;
    if (SingleFile())
        window.SetVisible(false);
    else
        gHost.dialogs->Show({.text = "You can't close a file that is part of a project !  ",
                             .icon = MessageIcon::Information});
}

void frmMain::DS_DocumentWindowContextClick(DocumentWindow& window, int place, int x, int y, bool& cancel) {
    Guarded("DS_DocumentWindowContextClick", "frmMain", [&] {
        if (IsHelp(window)) return;
        if (place == InsideDocument) {
            const bool byMouse = x >= 0;
            const auto position = byMouse ? Mod_Sci::PositionFromPoint(x, y) : Mod_Sci::GetCurrentPos();
            if (position < Mod_Sci::GetSelectionStart() || position > Mod_Sci::GetSelectionEnd())
                Mod_Sci::SetSel(position, position);
            gHost.dock->ShowPopup("PopupMenu1");
            cancel = true;
        } else if (place == OnTab) {
            cancel = true;
            gHost.dock->FillPopup("TabsContextMenu",
                                  {SingleFile() ? "Close File" : "Close Project", "Close All Files", "-",
                                   "New Horizontal Tab Group", "New Vertical Tab Group"});
            gHost.dock->ShowPopup("TabsContextMenu");
        }
    });
}

void frmMain::DS_CommandClick(DockCommand& command, int item) {
    Guarded("DS_CommandClick", "frmMain", [&] { Mod_MenuCommands::Route(command, item); });
}
