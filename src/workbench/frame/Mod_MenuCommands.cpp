// The routines of commands that concern the main window itself.
#include "workbench/frame/Mod_MenuCommands.h"

#include "documents/ClsMRU.h"
#include "documents/Options.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/ParserState.h"
#include "host/Desktop.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"
#include "workbench/frame/KeyWatch.h"
#include "workbench/frame/frmMain.h"

#include <utility>

namespace {

// Only lines that come into view are coloured, so the visible lines have to be treated as new.
void RestyleVisible() {
    for (const auto& project : gProjects)
        for (const auto& source : project.record->Sources) {
            frmDoc& document = FormOf(*source.record);
            document.State.Restyle();
            document.Redraw();
        }
}

}

namespace Mod_MenuCommands {

void Route(DockCommand& command, int item) {
    const std::string category = command.Category();
    if ((category == "Sci" || category == "SciFocus") && !DocumentActive()) return;
    for (const RoutedCommand& route : Routes()) {
        if (command.Name() != route.name) continue;
        if (!route.run) return;
        if (route.cancelFirst && DocumentActive()) Mod_Sci::Send(SCI_CANCEL);
        return route.run({command, item});
    }
}

void ChangeStrictMode() {
    Guarded("ChangeStrictMode", "Mod_MenuCommands", [] {
        DockCommand* command = gHost.dock->FindCommand("Strict Mode");
        if (!command) return;
        command->SetChecked(!command->Checked());
        FollowStrictMark();
        FocusText();
    });
}

void FollowStrictMark() {
    DockCommand* command = gHost.dock->FindCommand("Strict Mode");
    if (!command) return;
    command->SetCaption(command->Checked() ? " Strict On" : "Strict Off");
    SetStrict(command->Checked());
    RestyleVisible();
}

void FocusText() {
    if (const frmDoc* document = ActiveForm()) document->View->GrabFocus();
}

void cboCompilers() {
    Guarded("cboCompilers", "Mod_MenuCommands", [] {
        DockCommand* box = gHost.dock->FindCommand("cboCompilers");
        if (!box || !gActiveCompiler || !gCurrentProject) return;
        // A project can name one compiler while another one is active as its substitute.
        if (EqualNoCase(box->Text(), gCurrentProject->Compiler) &&
            EqualNoCase(box->Text(), gActiveCompiler->Name))
            return;
        const auto compiler = gCompilers.Find(box->Text());
        if (!compiler || !compiler->SetDefaultKeywords()) {
            box->SetText(gActiveCompiler->Name);
            return;
        }
        ClsProject& project = *gCurrentProject;
        if (!project.SingleFile && project.Compiler != compiler->Name) project.Dirty = true;
        project.Compiler = compiler->Name;
        if (compiler == gActiveCompiler)
            return; // it was active already, as the substitute of an unknown compiler
        gActiveCompiler = compiler;
        for (const auto& source : project.Sources) {
            frmDoc& document = FormOf(*source.record);
            if (!project.SingleFile) document.CompilerUsed = compiler->Name;
            document.m_oSubclass->ParseAnew();
        }
        RestyleVisible();
    });
}

void cboCommandLine() {
    const DockCommand* box = gHost.dock->FindCommand("cboCommandLine");
    if (!box || box->Text().empty()) return;
    MRUCommandLine.Add(box->Text());
    MRUCommandLine.Save();
    frmMain::Instance().PopulateCboCommandLine();
}

void ShowPane(const char* pane) {
    if (DockPane* found = gHost.dock->FindPane(pane)) found->Show();
}

void TogglePane(const char* pane, bool byKey) {
    DockPane* found = gHost.dock->FindPane(pane);
    if (!found) return;
    // A rolled-away pane slides back when it loses the focus.
    if (byKey && found->AutoHidden() && found->HasFocus()) return FocusText();
    if (found->Visible() && !found->AutoHidden() && (!byKey || found->HasFocus()))
        found->Hide();
    else
        found->Show();
}

void ToggleStatusBar() {
    DockBar* bar = gHost.dock->FindBar("StatusBar");
    if (!bar) return;
    bar->SetVisible(!bar->Visible());
    if (DockCommand* command = gHost.dock->FindCommand("StatusBar")) command->SetChecked(bar->Visible());
}

void CloseFile() {
    const frmDoc* document = ActiveForm();
    if (!document) return;
    if (DocumentWindow* window = gHost.dock->FindDocumentWindow(document->m_strDocumentWindowID))
        window->SetVisible(false);
}

void CloseTab() {
    if (DocumentWindow* window = gHost.dock->ActiveDocumentWindow()) window->SetVisible(false);
}

void NextFileTab(bool byKey) {
    Guarded("NextFileTab", "Mod_MenuCommands", [byKey] {
        DockStudio& dock = *gHost.dock;
        if (dock.DocumentWindows().size() < 2) return;
        // While Control stays down, further presses go on through the group, as the menu command always does.
        if (Options::gTabbingStartsWithPrevious == 0 || !byKey || !ControlWasReleased())
            return dock.NextTab(1);
        RecentTabs& tabs = frmMain::Instance().Tabs();
        const DocumentWindow* active = dock.ActiveDocumentWindow();
        if (active && tabs.previous != active->Key())
            tabs.older = tabs.previous;
        else
            tabs.previous = tabs.older;
        DocumentWindow* window = dock.FindDocumentWindow(tabs.previous);
        if (window)
            window->Activate();
        else
            dock.NextTab(1);
    });
}

void ActivateWindow(int index) {
    const auto windows = gHost.dock->DocumentWindows();
    if (index >= 0 && index < static_cast<int>(windows.size()))
        windows[static_cast<std::size_t>(index)]->Activate();
}

} // namespace Mod_MenuCommands
