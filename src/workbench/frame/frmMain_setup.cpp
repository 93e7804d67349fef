// Adapts a stored arrangement to this version of the program.
#include "workbench/frame/frmMain.h"

#include "documents/Options.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "workbench/frame/Mod_MenuCommands.h"

namespace {

// Adds a command that older arrangements lack. Returns null if the arrangement already has it.
DockCommand* AddIfNew(const char* name, const char* caption, const char* category, bool popup = false) {
    try {
        return &gHost.dock->AddCommand(name, caption, category, popup);
    } catch (const Failure& failure) {
        if (failure.number != FailureDuplicateKey) throw;
        return nullptr;
    }
}

// Inserts a command directly after another one; does nothing if the pop-up lacks the other one.
void InsertBehind(const char* popup, const char* behind, const char* command) {
    const int index = gHost.dock->IndexInBar(popup, behind);
    if (index >= 0) gHost.dock->InsertIntoBar(popup, command, index + 1, false);
}

void Append(const char* bar, const char* command, bool beginGroup) {
    gHost.dock->InsertIntoBar(bar, command, -1, beginGroup);
}

void AddMissingCommands() {
    if (DockCommand* command = AddIfNew("Save All Files", "Save A&ll", "File")) {
        command->SetCategory("Sci");
        InsertBehind("File", "Save File As", "Save All Files");
    }
    if (AddIfNew("ExternalToolsPopupMenu", "Run External Tool", "Built-In Menus", true))
        Append("Compile", "ExternalToolsPopupMenu", true);
    if (AddIfNew("Edit Userlibs", "Edit &Userlibs…", "Compile")) Append("Compile", "Edit Userlibs", true);
    if (DockCommand* strict = AddIfNew("Strict Mode", " Strict On", "Compile")) {
        Append("Compile", "Strict Mode", true);
        Append("CompilerToolBar", "Strict Mode", false);
        strict->SetChecked(true);
    }
    if (AddIfNew("MRUExternalTools", "MRUExternalTools", "Built-In Menus"))
        Append("ExternalToolsPopupMenu", "MRUExternalTools", false);
    if (AddIfNew("External Tools", "E&xternal Tools…", "Settings"))
        InsertBehind("Settings", "Edit HotCodes", "External Tools");
}

// A visible command without a routine would be a false promise, so it is hidden in every arrangement.
void HideUnbuiltCommands() {
    for (const auto& route : Mod_MenuCommands::Routes()) {
        DockCommand* command = gHost.dock->FindCommand(std::string(route.name));
        if (command) command->SetVisible(route.run != nullptr);
    }
}

}

void frmMain::AdditionalUISetup() {
    Guarded("AdditionalUISetup", "frmMain", [this] {
        DockStudio& dock = *gHost.dock;
        statusMain_ = dock.FindCommand("StatusMain");
        functions_ = dock.FindCommand("Functions");
        position_ = dock.FindCommand("Position");
        progress_ = dock.FindCommand("StatusProgressBar");
        undo_ = dock.FindCommand("Undo");
        redo_ = dock.FindCommand("Redo");
        if (DockCommand* clock = dock.FindCommand("StatusTime"))
            clock->SetVisible(Options::gDisplayTimeInStatusBar != 0);
        ShowProgressPane(false);
        ApplyCommandsAutoRepeat();
        AddMissingCommands();
        HideUnbuiltCommands();
        Mod_MenuCommands::FollowStrictMark();
        for (const char* pane : {"Projects", "FileExplorer", "Output", "Snippets", "CodeExplorer"})
            if (DockPane* found = dock.FindPane(pane)) DS_PaneShown(pane, found->Visible());
        DockBar* status = dock.FindBar("StatusBar");
        DockCommand* toggle = dock.FindCommand("StatusBar");
        if (status && toggle) toggle->SetChecked(status->Visible());
    });
}

void frmMain::ApplyCommandsAutoRepeat() {
    static constexpr const char* Repeating[] = {"Undo",
                                                "Redo",
                                                "Paste",
                                                "New Line",
                                                "Cycle Private",
                                                "Paste Private",
                                                "Find Next",
                                                "Find Previous",
                                                "Indent Selection",
                                                "UnIndent Selection",
                                                "Word Left",
                                                "Word Left Extend",
                                                "Word Right",
                                                "Word Right Extend",
                                                "Delete Word Left",
                                                "Delete Word Right",
                                                "Move Current Line Up",
                                                "Move Current Line Down",
                                                "Next Function",
                                                "Previous Function",
                                                "Previous Bookmark",
                                                "Next Bookmark",
                                                "Goto Previous Position",
                                                "Goto Next Position",
                                                "Next File Tab",
                                                "Previous File Tab"};
    for (const char* name : Repeating)
        if (DockCommand* command = gHost.dock->FindCommand(name)) command->SetAutoRepeat(true);
}

// The help tab shows the loading progress where a document shows the caret position.
void frmMain::ShowProgressPane(bool progress) {
    if (progress_) progress_->SetVisible(progress);
    if (position_) position_->SetVisible(!progress);
}

// While the user customises the menus, the text's context menu is in the menu bar, where it can be edited.
void frmMain::DS_Customization(bool begins) {
    if (begins) return gHost.dock->InsertIntoBar("MainMenu", "PopupMenu1", -1, false);
    gHost.dock->RemoveFromBar("MainMenu", "PopupMenu1");
    Mod_MenuCommands::FollowStrictMark();
    ApplyCommandsAutoRepeat();
}
