// The commands by their names: what the table and the default arrangement have to agree on.
#include "ForgetFrame.h"
#include "app/wire_up.h"
#include "engine/ParserState.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/qt/commands/QtCommand.h"
#include "host/qt/layout/Layout.h"
#include "support/FakeHost.h"
#include "workbench/frame/FactoryLayout.h"
#include "workbench/frame/Mod_MenuCommands.h"
#include "workbench/frame/frmMain.h"

#include <QKeySequence>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

namespace {

// Every name that an arrangement may use, in routing order.
const std::vector<std::string> Names = [] {
    std::vector<std::string> names;
    std::istringstream list(
        "New Line,Undo,Redo,Cut,Copy,Paste,Delete,Select All,Indent Selection,"
        "UnIndent Selection,Word Left,Word Left Extend,Word Right,Word Right Extend,"
        "Document Start,Document Start Extend,Document End,Document End Extend,Delete Word Left,"
        "Delete Line Left,Delete Word Right,Delete Line Right,Cut Current Line,Delete Current Line,"
        "Copy Current Line,Move Current Line Up,Move Current Line Down,Comment Selection,"
        "UnComment Selection,Block From Selection,Goto Line,Goto Function,Goto Declaration,"
        "Goto Previous Position,Goto Next Position,Toggle Fold,KeywordHelp,Toggle Bookmark,"
        "Previous Bookmark,Next Bookmark,Clear All Bookmarks,Show Autocomplete,Show Calltip,"
        "Cycle Private,Copy Private,Paste Private,Find,Find Next,Find Previous,Replace,"
        "Next Function,Previous Function,Auto Indent Selection,Auto Indent Function,Complete Scope,"
        "Convert To Upper Case,Convert To Lower Case,Fold Everything,UnFold Everything,Fold Blocks,"
        "UnFold Blocks,Fold Functions,UnFold Functions,Fold Types,UnFold Types,Insert Color,"
        "Insert Filename,Insert FilePath,New File,New Project,Open File,Save File,Save All Files,"
        "Save File As,Close File,Close All Files,Load Last Workspace,Open Workspace,"
        "Save Workspace As,Next File Tab,Previous File Tab,Exit,Save This Project,Close Project,"
        "Close This Project,Add Existing Files,Remove File,Add New File,Create Category,"
        "Remove Category,Rename,Set As Main File,Add Folder With Files,FileRecentFiles,"
        "FileRecentProjects,FileRecentWorkspaces,WindowList,New Horizontal Tab Group,"
        "New Vertical Tab Group,File Explorer,Output Window,Projects Manager,Snippets Manager,"
        "Code Explorer,Functions,Types,Arrays,Globals,Constants,Labels,StatusBar,"
        "SwitchToLayout1,SwitchToLayout2,SwitchToLayout3,SaveAsLayout1,SaveAsLayout2,"
        "SaveAsLayout3,ResetLayout,About,cboCompilers,cboCommandLine,Compile and Run,"
        "Compile and Run Last,Run Last Created EXE,Check For Errors,DebugCompile,CreateExecutable,"
        "ProgramCommandLine,Toggle BreakPoint,Strict Mode,HotCode For Selection,Edit HotCodes,"
        "Apply HotCode,Editor Settings,Preferences,Color Styles,UI Styles,Export To HTML,Print,"
        "Print Preview,External Tools,MRUExternalTools,Edit Userlibs,Insert Snippet,Edit Snippet,"
        "Delete Snippet,Add Category,New Snippet,Refresh Snippets,Edit As File,Stop Program,"
        "Customize,Move To Next Tab Group,Move To Previous Tab Group,Close Tab,"
        "Next Pane,Previous Pane,Go to Output,Float Pane,Auto-Hide Pane,Enlarge Pane,Shrink Pane,Menu Bar");
    for (std::string name; std::getline(list, name, ',');) names.push_back(name);
    return names;
}();

Layout DefaultLayout() {
    return ParseLayout(QtFiles().Read(std::string(ZOLTO_SOURCE_ROOT) + "/data/Layout.mp"));
}

TEST(CommandsTest, TheTableHoldsEveryNameInOrder) {
    std::vector<std::string> routed;
    for (const auto& route : Mod_MenuCommands::Routes()) routed.emplace_back(route.name);
    EXPECT_EQ(routed, Names);
}

TEST(CommandsTest, TheDefaultArrangementHoldsEveryName) {
    const Layout layout = DefaultLayout();
    std::set<std::string> known;
    for (const LayoutCommand& command : layout.commands) known.insert(command.name);
    for (const std::string& name : Names) EXPECT_EQ(known.count(name), 1u) << name;
    for (const char* name : {"File", "Compile", "Settings", "PopupMenu1", "TabsContextMenu", "StatusMain",
                             "Position", "StatusProgressBar", "StatusTime", "WindowList", "MRUExternalTools"})
        EXPECT_EQ(known.count(name), 1u) << name;
    std::set<std::string> bars;
    for (const LayoutBar& bar : layout.bars) bars.insert(bar.name);
    for (const char* name : {"MainMenu", "CompilerToolBar", "Command Line", "StatusBar"})
        EXPECT_EQ(bars.count(name), 1u) << name;
}

TEST(CommandsTest, NoKeyIsTakenTwiceAndEveryKeyIsOne) {
    std::map<std::string, std::string> owner;
    for (const LayoutCommand& record : DefaultLayout().commands) {
        const QtCommand command(record);
        EXPECT_EQ(command.Shortcuts().size(), record.shortcuts.size()) << record.name;
        for (const QKeyCombination key : command.Shortcuts()) {
            const std::string text = QKeySequence(key).toString().toStdString();
            EXPECT_EQ(owner.count(text), 0u) << text << ": " << owner[text] << " and " << record.name;
            owner[text] = record.name;
        }
    }
}

// Every command is in a menu or on a bar; a command without a routine is not offered.
TEST(CommandsTest, EveryCommandHasAPlace) {
    const Layout layout = DefaultLayout();
    const auto placed = PlacedCommands(layout);
    const std::set<std::string> unplaced{"Goto Function", "Print", "Print Preview", "Insert Filename",
                                         "Menu Bar"};
    for (const std::string& name : Names)
        EXPECT_NE(std::find(placed.begin(), placed.end(), name) != placed.end(), unplaced.count(name) != 0)
            << name;
}

TEST(CommandsTest, NoMnemonicStandsTwiceInAMenu) {
    const Layout layout = DefaultLayout();
    std::map<std::string, std::string> captions;
    for (const LayoutCommand& command : layout.commands) captions[command.name] = command.caption;
    const auto check = [&](const std::string& menu, const LayoutEntries& entries) {
        std::map<char, std::string> taken;
        for (const LayoutEntry& entry : entries) {
            const std::string& caption = captions[entry.command];
            const auto mark = caption.find('&');
            if (mark == caption.npos) continue;
            const auto letter = static_cast<char>(std::tolower(caption[mark + 1]));
            EXPECT_EQ(taken.count(letter), 0u) << menu << ": " << taken[letter] << " and " << caption;
            taken[letter] = caption;
        }
    };
    for (const LayoutCommand& command : layout.commands) check(command.name, command.entries);
    for (const LayoutBar& bar : layout.bars)
        if (bar.kind == BarKind::Menu) check(bar.name, bar.entries);
}

TEST(CommandsTest, TheBuiltInArrangementIsTheInstalledOne) {
    EXPECT_EQ(ParseLayout(FactoryLayoutText()), DefaultLayout());
}

struct RoutingTest : testing::Test {
    FakeHost host;
    void SetUp() override {
        for (const std::string& name : Names) host.dock.Make(name, "File");
        host.dock.SetEvents(&frmMain::Instance());
    }
    void TearDown() override {
        host.dock.SetEvents(nullptr);
        ForgetFrame();
    }
    void Click(const char* name) { frmMain::Instance().DS_CommandClick(*host.dock.FindCommand(name), -1); }
};

TEST_F(RoutingTest, StrictModeFlipsMarkCaptionAndStyle) {
    DockCommand& strict = *host.dock.FindCommand("Strict Mode");
    strict.SetChecked(true);
    Click("Strict Mode");
    EXPECT_EQ(strict.Caption(), "Strict Off");
    EXPECT_EQ(BadStyle, 0);
    Click("Strict Mode");
    EXPECT_EQ(strict.Caption(), " Strict On");
    EXPECT_EQ(BadStyle, 16);
    // An arrangement brings a mark of its own.
    host.Put("Layouts/Layout0.8_1.mp", "saved");
    const std::function<void()> sources[] = {[&] { Click("SwitchToLayout1"); },
                                             [&] { frmMain::Instance().DS_Customization(false); }};
    for (const auto& arrives : sources)
        for (const bool on : {false, true}) {
            strict.SetChecked(on);
            arrives();
            EXPECT_EQ(BadStyle, on ? 16 : 0);
            EXPECT_EQ(strict.Caption(), on ? " Strict On" : "Strict Off");
        }
}

TEST_F(RoutingTest, CommandsThatNeedADocumentDoNothingWithoutOne) {
    for (const std::string& name : Names) host.dock.FindCommand(name)->SetCategory("Sci");
    for (const std::string& name : Names) Click(name.c_str());
    EXPECT_TRUE(host.dialogs.messages.empty());
    EXPECT_FALSE(host.dock.closed);
    frmMain::Instance().UpdateCommandUI();
    EXPECT_FALSE(host.dock.FindCommand("Undo")->Enabled());
    EXPECT_FALSE(host.dock.FindCommand("Save File")->Enabled());
    EXPECT_EQ(host.dock.suspended, 0);
}

TEST_F(RoutingTest, PanesToggleAndTheirMarksFollow) {
    host.dock.panes["Output"] = std::make_unique<HeadlessPane>(host.dock, "Output");
    DockPane& pane = *host.dock.FindPane("Output");
    Click("Output Window");
    EXPECT_FALSE(pane.Visible());
    Click("Output Window");
    EXPECT_TRUE(pane.Visible());
    EXPECT_TRUE(host.dock.FindCommand("Output Window")->Checked());
    static_cast<HeadlessPane&>(pane).autoHidden = true;
    Click("Output Window"); // shown, but rolled away: it comes out instead of closing
    EXPECT_TRUE(pane.Visible());
    Click("Projects Manager"); // a pane that isn't there
}

TEST_F(RoutingTest, FixedMessages) {
    for (const char* name : {"Print", "Print Preview", "Goto Function"}) {
        host.dialogs.WillAnswer(MessageAnswer::Ok);
        Click(name);
        EXPECT_EQ(host.dialogs.messages.back().text,
                  "This feature is not available yet, please wait for the next release... ");
        EXPECT_EQ(host.dialogs.messages.back().icon, MessageIcon::Information);
    }
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click("SwitchToLayout2");
    EXPECT_EQ(host.dialogs.messages.back().text, "Layout2 is not created yet or is incorrect UI version !");
    EXPECT_TRUE(host.dock.loadedLayouts.empty());
    host.dialogs.WillAnswer(MessageAnswer::No);
    Click("ResetLayout");
    EXPECT_EQ(host.dialogs.messages.back().title, "Zolto - Reset Layout");
    EXPECT_TRUE(host.dock.loadedLayouts.empty());
    Click("Add Folder With Files");
}

TEST_F(RoutingTest, LayoutsKeepArrangementAndPlace) {
    host.dock.place = {.top = 100, .left = 200, .width = 9000, .height = 6000, .state = 0};
    Click("SaveAsLayout1");
    EXPECT_EQ(host.dock.savedLayouts, std::vector<std::string>{host.Path("Layouts/Layout0.8_1.mp")});
    host.Put("Layouts/Layout0.8_1.mp", "saved");
    host.dock.place = {.state = 2};
    Click("SwitchToLayout1");
    EXPECT_EQ(host.dock.loadedLayouts, host.dock.savedLayouts);
    EXPECT_EQ(host.dock.place.left, 200);
    EXPECT_EQ(host.dock.place.state, 0);
    EXPECT_EQ(host.desktop.locks, 0);
    host.dock.place.state = 1;
    Click("SaveAsLayout2"); // minimised: nothing is saved
    EXPECT_EQ(host.dock.savedLayouts.size(), 1u);
}

TEST_F(RoutingTest, WhatHasNoRoutineIsNotOffered) {
    host.dock.FindCommand("Undo")->SetVisible(false); // as an arrangement of an older program may have it
    frmMain::Instance().AdditionalUISetup();
    for (const auto& route : Mod_MenuCommands::Routes()) {
        const bool visible = host.dock.FindCommand(std::string(route.name))->Visible();
        EXPECT_EQ(visible, route.run != nullptr) << route.name;
    }
    EXPECT_TRUE(host.dock.FindCommand("Undo")->Visible());
    EXPECT_FALSE(host.dock.FindCommand("Add Folder With Files")->Visible());
}

TEST_F(RoutingTest, ADamagedLayoutIsToldAndChangesNothing) {
    host.Put("Layouts/Layout0.8_3.mp", "damaged");
    host.dock.missingLayouts = {host.Path("Layouts/Layout0.8_3.mp"), host.Path("Layout.mp")};
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click("SwitchToLayout3");
    EXPECT_EQ(host.dialogs.messages.back().text, "Layout3 is not created yet or is incorrect UI version !");
    host.dialogs.WillAnswer(MessageAnswer::Yes);
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click("ResetLayout"); // the factory's own file is gone, so the built-in text is used
    EXPECT_EQ(host.dock.factoryTexts, 1);
    EXPECT_EQ(host.desktop.locks, 0);
}

TEST_F(RoutingTest, AnOlderArrangementIsBroughtUpToDateOnce) {
    HeadlessDock old;
    gHost.dock = &old;
    old.Make("Save File As", "Sci");
    old.entries["File"] = {"Save File As", "Exit"};
    old.entries["Compile"] = {"Compile and Run"};
    for (int run = 0; run < 2; ++run) frmMain::Instance().AdditionalUISetup();
    EXPECT_EQ(old.entries["File"], (std::vector<std::string>{"Save File As", "Save All Files", "Exit"}));
    EXPECT_EQ(old.entries["Compile"], (std::vector<std::string>{"Compile and Run", "ExternalToolsPopupMenu",
                                                                "Edit Userlibs", "Strict Mode"}));
    EXPECT_EQ(old.FindCommand("Save All Files")->Category(), "Sci");
    EXPECT_TRUE(old.FindCommand("Strict Mode")->Checked());
    gHost.dock = &host.dock;
    frmMain::Instance().AdditionalUISetup();
}

}
