// The routing table: every command of the program with its routine, in routing order. A flat table.
#include "workbench/frame/Mod_MenuCommands.h"

#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Mod_Project.h"
#include "documents/RecentFiles.h"
#include "editor/Mod_SciFun_bookmarks.h"
#include "editor/Mod_SciFun_complete.h"
#include "editor/Mod_SciFun_edit.h"
#include "editor/Mod_SciFun_goto.h"
#include "editor/Mod_SciFun_navigation.h"
#include "editor/Mod_SciFun_tips.h"
#include "editor/PositionBrowser.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/Markers.h"
#include "engine/Mod_Folding.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/Dialogs.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"
#include "toolchain/Mod_Compiler.h"
#include "workbench/dialogs/frmAbout.h"
#include "workbench/find/frmFind.h"
#include "workbench/parts/MainWindow.h"
#include "workbench/settings/frmOptions.h"
#include "workbench/settings/frmOptionsEdit.h"
#include "workbench/styles/frmColors.h"

namespace Mod_MenuCommands {

namespace {

using namespace Mod_Parse;

template <void (*Routine)()>
void Run(const Click&) {
    Routine();
}

void SaveActive(const Click&) {
    if (frmDoc* document = ActiveForm()) Mod_File::SaveFile(document);
}

void SaveActiveAs(const Click&) {
    if (frmDoc* document = ActiveForm()) Mod_File::SaveFileAs(document);
}

void CloseActiveProject(const Click&) {
    if (const auto project = gCurrentProject) Mod_File::CloseProject(project);
}

void CompileActive(const Click&) {
    if (const frmDoc* document = ActiveForm()) Mod_Compiler::Compile(document->FullFilename, false);
}

void DebugActive(const Click&) {
    if (const frmDoc* document = ActiveForm()) Mod_Compiler::Compile(document->FullFilename, true);
}

void CheckActive(const Click&) {
    if (const frmDoc* document = ActiveForm()) Mod_Compiler::CheckForErrors(document->FullFilename);
}

void BuildActive(const Click&) {
    if (const frmDoc* document = ActiveForm()) Mod_Compiler::CreateExe(document->FullFilename);
}

void FocusCommandLine(const Click&) {
    DockBar* bar = gHost.dock->FindBar("Command Line");
    if (!bar) return;
    bar->SetVisible(true);
    bar->FocusFirstControl();
}

void ToggleFold(const Click&) {
    if (OptionsEdit::ShowFoldMargin == 0 || !DocumentActive()) return;
    Mod_Folding::ToggleFold(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()));
}

void OpenRecentFile(const Click& click) {
    if (const auto path = Mod_File::RecentFile(click.item)) Mod_File::OpenHere(*path);
}

void OpenRecentProject(const Click& click) {
    if (const auto path = Mod_File::RecentProject(click.item)) Mod_Project::LoadProject(*path);
}
void Explore(const Click& click) { ExploreFocusOn(click.command.Name()); }

void Toggle(const char* pane, const Click& click) { TogglePane(pane, click.command.FiredByKey()); }

template <class Change>
void OfCurrentPane(Change change) {
    if (DockPane* pane = gHost.dock->CurrentPane()) change(*pane);
}

void FloatPane(const Click&) {
    OfCurrentPane([](DockPane& pane) { pane.SetFloating(!pane.Floating()); });
}

void AutoHidePane(const Click&) {
    OfCurrentPane([](DockPane& pane) { pane.SetAutoHidden(!pane.AutoHidden()); });
}

template <int Steps>
void EnlargePane(const Click&) {
    OfCurrentPane([](DockPane& pane) { pane.Enlarge(Steps); });
}

void NotAvailable(const Click&) {
    gHost.dialogs->Show({.text = "This feature is not available yet, please wait for the next release... ",
                         .icon = MessageIcon::Information});
}

}

const std::vector<RoutedCommand>& Routes() {
    static const std::vector<RoutedCommand> table = {
        {"New Line", Run<Mod_SciFun::NewLine>},
        {"Undo", [](const Click&) { Mod_Sci::Undo(); }, true},
        {"Redo", [](const Click&) { Mod_Sci::Redo(); }, true},
        {"Cut", [](const Click&) { Mod_Sci::Cut(); }},
        {"Copy", [](const Click&) { Mod_Sci::Copy(); }},
        {"Paste", [](const Click&) { Mod_Sci::Paste(); }, true},
        {"Delete", [](const Click&) { Mod_Sci::Clear(); }},
        {"Select All", [](const Click&) { Mod_Sci::SelectAll(); }, true},
        {"Indent Selection", Run<Mod_SciFun::IndentSelection>},
        {"UnIndent Selection", Run<Mod_SciFun::UnIndentSelection>},
        {"Word Left", [](const Click&) { Mod_Sci::WordLeft(); }},
        {"Word Left Extend", [](const Click&) { Mod_Sci::WordLeftExtend(); }},
        {"Word Right", [](const Click&) { Mod_Sci::WordRight(); }},
        {"Word Right Extend", [](const Click&) { Mod_Sci::WordRightExtend(); }},
        {"Document Start", [](const Click&) { Mod_Sci::DocumentStart(); }},
        {"Document Start Extend", [](const Click&) { Mod_Sci::DocumentStartExtend(); }},
        {"Document End", [](const Click&) { Mod_Sci::DocumentEnd(); }},
        {"Document End Extend", [](const Click&) { Mod_Sci::DocumentEndExtend(); }},
        {"Delete Word Left", [](const Click&) { Mod_Sci::DelWordLeft(); }},
        {"Delete Line Left", [](const Click&) { Mod_Sci::DelLineLeft(); }},
        {"Delete Word Right", [](const Click&) { Mod_Sci::DelWordRight(); }},
        {"Delete Line Right", [](const Click&) { Mod_Sci::DelLineRight(); }},
        {"Cut Current Line", [](const Click&) { Mod_Sci::LineCut(); }},
        {"Delete Current Line", [](const Click&) { Mod_Sci::LineDelete(); }},
        {"Copy Current Line", [](const Click&) { Mod_Sci::LineCopy(); }},
        {"Move Current Line Up", Run<Mod_SciFun::MoveCurrentLineUp>},
        {"Move Current Line Down", Run<Mod_SciFun::MoveCurrentLineDown>},
        {"Comment Selection", Run<Mod_SciFun::CommentSelection>},
        {"UnComment Selection", Run<Mod_SciFun::UnCommentSelection>},
        {"Block From Selection", Run<Mod_SciFun::BlockFromSelection>},
        {"Goto Line", Run<AskGotoLine>, true},
        {"Goto Function", NotAvailable, true},
        {"Goto Declaration", Run<Mod_SciFun::GotoDeclaration>, true},
        {"Goto Previous Position", Run<Mod_SciFun::GotoPreviousPosition>, true},
        {"Goto Next Position", Run<Mod_SciFun::GotoNextPosition>, true},
        {"Toggle Fold", ToggleFold},
        {"KeywordHelp", [](const Click&) { Mod_SciFun::KeywordHelp(); }},
        {"Toggle Bookmark", [](const Click&) { Mod_SciFun::ToggleBookmark(-1); }},
        {"Previous Bookmark", Run<Mod_SciFun::GotoPrevBookmark>, true},
        {"Next Bookmark", Run<Mod_SciFun::GotoNextBookmark>, true},
        {"Clear All Bookmarks", Run<Mod_SciFun::ClearAllBookmarks>},
        {"Show Autocomplete", [](const Click&) { Mod_SciFun::ShowAutocomplete(); }},
        {"Show Calltip", [](const Click&) { Mod_SciFun::ShowCalltip(); }},
        {"Cycle Private", nullptr},
        {"Copy Private", nullptr},
        {"Paste Private", nullptr},
        {"Find", [](const Click&) { frmFind::Instance().StartFind(false); }},
        {"Find Next", [](const Click&) { frmFind::Instance().FindNext(true); }},
        {"Find Previous", [](const Click&) { frmFind::Instance().FindPrevious(true); }},
        {"Replace", [](const Click&) { frmFind::Instance().StartFind(true); }},
        {"Next Function", Run<Mod_SciFun::GotoNextFunction>},
        {"Previous Function", Run<Mod_SciFun::GotoPreviousFunction>},
        {"Auto Indent Selection", Run<Mod_SciFun::AutoIndentSelection>},
        {"Auto Indent Function", Run<Mod_SciFun::AutoindentCurrentFunction>},
        {"Complete Scope", Run<Mod_SciFun::CompleteScope>},
        {"Convert To Upper Case", [](const Click&) { Mod_Sci::UpperCase(); }},
        {"Convert To Lower Case", [](const Click&) { Mod_Sci::LowerCase(); }},
        {"Fold Everything", [](const Click&) { Mod_SciFun::FoldEverything(Mod_SciFun::AnyFold); }},
        {"UnFold Everything", [](const Click&) { Mod_SciFun::UnFoldEverything(Mod_SciFun::AnyFold); }},
        {"Fold Blocks", [](const Click&) { Mod_SciFun::FoldEverything(MaskOf(MarkerBlock)); }},
        {"UnFold Blocks", [](const Click&) { Mod_SciFun::UnFoldEverything(MaskOf(MarkerBlock)); }},
        {"Fold Functions", [](const Click&) { Mod_SciFun::FoldEverything(MaskOf(MarkerFunction)); }},
        {"UnFold Functions", [](const Click&) { Mod_SciFun::UnFoldEverything(MaskOf(MarkerFunction)); }},
        {"Fold Types", [](const Click&) { Mod_SciFun::FoldEverything(MaskOf(MarkerType)); }},
        {"UnFold Types", [](const Click&) { Mod_SciFun::UnFoldEverything(MaskOf(MarkerType)); }},
        {"Insert Color", nullptr},
        {"Insert Filename", NotAvailable},
        {"Insert FilePath", Run<Mod_SciFun::InsertFilePath>},
        {"New File", [](const Click&) { Mod_File::NewFile(); }},
        {"New Project", nullptr},
        {"Open File", [](const Click&) { Mod_File::OpenFile(""); }},
        {"Save File", SaveActive},
        {"Save All Files", [](const Click&) { Mod_File::SaveAllFiles(); }},
        {"Save File As", SaveActiveAs},
        {"Close File", [](const Click&) { CloseFile(); }},
        {"Close All Files", [](const Click&) { Mod_File::CloseAllFiles(); }},
        {"Load Last Workspace", [](const Click&) { Mod_File::LoadWorkSpace(Mod_File::LastWorkspace()); }},
        {"Open Workspace", Run<Mod_File::OpenWorkspace>},
        {"Save Workspace As", Run<Mod_File::SaveWorkSpaceAs>},
        {"Next File Tab", [](const Click& click) { NextFileTab(click.command.FiredByKey()); }},
        {"Previous File Tab", [](const Click&) { gHost.dock->NextTab(-1); }},
        {"Exit", [](const Click&) { gHost.dock->CloseWindow(); }},
        {"Save This Project", nullptr},
        {"Close Project", CloseActiveProject},
        {"Close This Project", nullptr},
        {"Add Existing Files", nullptr},
        {"Remove File", nullptr},
        {"Add New File", nullptr},
        {"Create Category", nullptr},
        {"Remove Category", nullptr},
        {"Rename", nullptr},
        {"Set As Main File", nullptr},
        {"Add Folder With Files", nullptr},
        {"FileRecentFiles", OpenRecentFile},
        {"FileRecentProjects", OpenRecentProject},
        {"FileRecentWorkspaces", [](const Click& click) { Mod_File::OpenRecentWorkspace(click.item); }},
        {"WindowList", [](const Click& click) { ActivateWindow(click.item); }},
        {"New Horizontal Tab Group", [](const Click&) { gHost.dock->NewTabGroup(false); }},
        {"New Vertical Tab Group", [](const Click&) { gHost.dock->NewTabGroup(true); }},
        {"File Explorer", [](const Click& click) { Toggle("FileExplorer", click); }},
        {"Output Window", [](const Click& click) { Toggle("Output", click); }},
        {"Projects Manager", [](const Click& click) { Toggle("Projects", click); }},
        {"Snippets Manager", [](const Click& click) { Toggle("Snippets", click); }},
        {"Code Explorer", [](const Click& click) { Toggle("CodeExplorer", click); }},
        {"Functions", Explore},
        {"Types", Explore},
        {"Arrays", Explore},
        {"Globals", Explore},
        {"Constants", Explore},
        {"Labels", Explore},
        {"StatusBar", [](const Click&) { ToggleStatusBar(); }},
        {"SwitchToLayout1", [](const Click&) { SwitchToLayout(1); }},
        {"SwitchToLayout2", [](const Click&) { SwitchToLayout(2); }},
        {"SwitchToLayout3", [](const Click&) { SwitchToLayout(3); }},
        {"SaveAsLayout1", [](const Click&) { SaveAsLayout(1); }},
        {"SaveAsLayout2", [](const Click&) { SaveAsLayout(2); }},
        {"SaveAsLayout3", [](const Click&) { SaveAsLayout(3); }},
        {"ResetLayout", [](const Click&) { ResetLayout(); }},
        {"About", [](const Click&) { ShowAbout(); }},
        {"cboCompilers",
         [](const Click&) {
             cboCompilers();
             FocusText();
         }},
        {"cboCommandLine", [](const Click&) { cboCommandLine(); }},
        {"Compile and Run", CompileActive},
        {"Compile and Run Last", [](const Click&) { Mod_Compiler::CompileLast(); }},
        {"Run Last Created EXE", [](const Click&) { Mod_Compiler::RunLastCreated(); }},
        {"Check For Errors", CheckActive},
        {"DebugCompile", DebugActive},
        {"CreateExecutable", BuildActive},
        {"ProgramCommandLine", FocusCommandLine},
        {"Toggle BreakPoint", [](const Click&) { Mod_SciFun::ToggleBreakPoint(); }},
        {"Strict Mode", [](const Click&) { ChangeStrictMode(); }},
        {"HotCode For Selection", nullptr},
        {"Edit HotCodes", nullptr},
        {"Apply HotCode", nullptr},
        {"Editor Settings", [](const Click&) { frmOptionsEdit(MainWindow()).exec(); }},
        {"Preferences", [](const Click&) { frmOptions(MainWindow()).exec(); }},
        {"Color Styles", [](const Click&) { frmColors(MainWindow()).exec(); }},
        {"UI Styles", nullptr},
        {"Export To HTML", nullptr},
        {"Print", NotAvailable},
        {"Print Preview", NotAvailable},
        {"External Tools", nullptr},
        {"MRUExternalTools", nullptr},
        {"Edit Userlibs", nullptr},
        {"Insert Snippet", nullptr},
        {"Edit Snippet", nullptr},
        {"Delete Snippet", nullptr},
        {"Add Category", nullptr},
        {"New Snippet", nullptr},
        {"Refresh Snippets", nullptr},
        {"Edit As File", nullptr},
        {"Stop Program", [](const Click&) { Mod_Compiler::StopRunning(); }},
        {"Customize", [](const Click&) { gHost.dock->Customize(); }},
        {"Move To Next Tab Group", [](const Click&) { gHost.dock->MoveToTabGroup(1); }},
        {"Move To Previous Tab Group", [](const Click&) { gHost.dock->MoveToTabGroup(-1); }},
        {"Close Tab", [](const Click&) { CloseTab(); }},
        {"Next Pane", [](const Click&) { gHost.dock->NextPane(1); }},
        {"Previous Pane", [](const Click&) { gHost.dock->NextPane(-1); }},
        {"Go to Output", [](const Click&) { ShowPane("Output"); }},
        {"Float Pane", FloatPane},
        {"Auto-Hide Pane", AutoHidePane},
        {"Enlarge Pane", EnlargePane<1>},
        {"Shrink Pane", EnlargePane<-1>},
        {"Menu Bar", [](const Click&) { gHost.dock->OpenMenuBar(); }},
    };
    return table;
}

} // namespace Mod_MenuCommands
