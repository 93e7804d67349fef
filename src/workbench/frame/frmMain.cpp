// The main window: start-up, enabling, and the events that aren't about document windows.
#include "workbench/frame/frmMain.h"

#include "documents/ClsMRU.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/Mod_Project.h"
#include "documents/Options.h"
#include "documents/RecentFiles.h"
#include "editor/EditorCalls.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "host/Clock.h"
#include "host/Desktop.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Guards.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "sci/Mod_Sci.h"
#include "workbench/explorer/frmMainList.h"
#include "workbench/frame/FactoryLayout.h"
#include "workbench/output/frmOutput.h"

namespace {

constexpr int NoticeMilliseconds = 6000;

constexpr struct {
    const char* pane;
    const char* command;
} PaneToggles[] = {{"Projects", "Projects Manager"},
                   {"FileExplorer", "File Explorer"},
                   {"Output", "Output Window"},
                   {"Snippets", "Snippets Manager"},
                   {"CodeExplorer", "Code Explorer"}};

}

frmMain& frmMain::Instance() {
    static frmMain window;
    return window;
}

void frmMain::Form_Load() {
    Guarded("Form_Load", "frmMain", [this] {
        Mod_Main::Publish();
        gHost.dock->SetEvents(this);
        LoadFactoryLayout();
        try {
            gHost.dock->LoadLayout(AppPath("Layouts\\Layout0.8_0.mp"));
        } catch (const Failure&) {
            // The user has no arrangement, or it cannot be read: the factory's arrangement stays.
        }
        AdditionalUISetup();
        AddDockForms(true);
        Mod_Main::PlaceMainWindow();
        Mod_File::LoadRecentFilesProjects();
        FillCompilers();
        MRUCommandLine.Load();
        PopulateCboCommandLine();
        if (Options::gOpenBrowserAtStartup != 0) {
            gDocumentCalls.OpenBrowser("");
            if (Options::gDefaultHelpPage.size() > 4) gDocumentCalls.OpenBrowser(Options::gDefaultHelpPage);
        }
        UpdateCommandUI();
    });
}

void frmMain::FillCompilers() {
    std::vector<std::string> names;
    for (const auto& entry : gCompilers) names.push_back(entry.record->Name);
    if (DockCommand* box = gHost.dock->FindCommand("cboCompilers")) box->SetItems(names);
}

void frmMain::PopulateCboCommandLine() {
    if (DockCommand* box = gHost.dock->FindCommand("cboCommandLine")) box->SetItems(MRUCommandLine.Items());
}

frmDoc* frmMain::ActiveDocument() { return DocumentIn(gHost.dock->ActiveDocumentWindow()); }

void frmMain::UpdateCommandUI() {
    const StillFrame still;
    Guarded("UpdateCommandUI", "frmMain", [this] {
        const bool have = DocumentActive() && ActiveDocument();
        const auto enable = [](const char* name, bool enabled) {
            if (DockCommand* command = gHost.dock->FindCommand(name)) command->SetEnabled(enabled);
        };
        enable("Save File", have);
        enable("Save File As", have);
        enable("Close Tab", gHost.dock->ActiveDocumentWindow() != nullptr);
        for (DockCommand* command : gHost.dock->Commands()) {
            const std::string category = command->Category();
            if (category == "Sci" || category == "SciFocus") command->SetEnabled(have);
        }
        if (!have) return;
        enable("Undo", Mod_Sci::CanUndo());
        enable("Redo", Mod_Sci::CanRedo());
        const bool single = !gCurrentProject || gCurrentProject->SingleFile;
        enable("Close File", single);
        enable("Close Project", !single);
    });
}

void frmMain::UpdateSciCommandUI() {
    Guarded("UpdateSciCommandUI", "frmMain", [this] {
        if (!DocumentActive()) return;
        if (undo_) undo_->SetEnabled(Mod_Sci::CanUndo());
        if (redo_) redo_->SetEnabled(Mod_Sci::CanRedo());
    });
}

void frmMain::AddDockForms(bool addNew) {
    Guarded("AddDockForms", "frmMain", [&] {
        AttachDockForm("Output", "Output", "utilities-terminal", frmOutput::Instance(), addNew);
        AttachDockForm("CodeExplorer", "Code Explorer", "view-list-tree", frmMainList::Instance(), addNew);
        // The arrangement lacks the pane, so there is nothing to show.
        for (const auto& toggle : PaneToggles)
            if (DockCommand* command = gHost.dock->FindCommand(toggle.command))
                command->SetVisible(gHost.dock->FindPane(toggle.pane) != nullptr);
    });
}

void frmMain::AttachDockForm(const std::string& pane, const std::string& caption, const std::string& icon,
                             Form& form, bool addNew) {
    Guarded("AttachDockForm", "frmMain", [&] { gHost.dock->AttachPane(pane, caption, icon, form, addNew); });
}

void frmMain::SetPositionText(const std::string& text) {
    if (position_) position_->SetText(text);
}

void frmMain::SetFunctionText(const std::string& text) {
    if (functions_) functions_->SetText(text);
}

void frmMain::SetTipText(const TipText& tip) {
    tip_ = tip;
    if (statusMain_ && noticeTimer_ == 0)
        statusMain_->SetMarkedText(tip.left, tip.hot, tip.right, tip.colour);
}

void frmMain::SetNotice(const std::string& text) {
    if (!statusMain_) return;
    if (noticeTimer_ != 0) gHost.clock->KillTimer(noticeTimer_);
    statusMain_->SetMarkedText(text, "", "", 0);
    noticeTimer_ = gHost.clock->SetTimer(NoticeMilliseconds, [this] {
        gHost.clock->KillTimer(noticeTimer_);
        noticeTimer_ = 0;
        SetTipText(tip_);
    });
}

// The next run gets the text in the box, whether the user committed it or not.
void frmMain::DS_ComboTextChanged(DockCommand& command) {
    if (command.Name() == "cboCommandLine" && gCurrentProject)
        Mod_Project::SetCommandLine(*gCurrentProject, command.Text());
}

void frmMain::DS_ComboTextCommitted(DockCommand& command) { DS_CommandClick(command, -1); }

void frmMain::DS_PaneShown(const std::string& pane, bool shown) {
    for (const auto& toggle : PaneToggles)
        if (pane == toggle.pane)
            if (DockCommand* command = gHost.dock->FindCommand(toggle.command)) command->SetChecked(shown);
}

void frmMain::DS_ShortcutFiring(DockCommand& command, bool& cancel) {
    if (command.Category() != "SciFocus") return;
    cancel = !DocumentActive();
    if (cancel || Mod_Sci::GetFocus()) return;
    cancel = true;
    // Every list and every box uses Enter itself.
    if (command.Name() != "New Line") gHost.desktop->Beep();
}

void frmMain::DS_FilesDropped(const std::vector<std::string>& paths) { Mod_File::FilesDropped(paths); }

void frmMain::DS_QueryUnload(bool& cancel) { Mod_Main::QueryUnload(cancel); }

void frmMain::DS_Resize() { Mod_Main::Resized(); }
