// The main window as the program sets it up, with real documents in a real frame.
#include "WindowTest.h"
#include "app/wire_up.h"
#include "documents/Mod_File_workspace.h"
#include "engine/ParserState.h"
#include "host/qt/commands/StatusText.h"
#include "sci/Mod_Sci.h"
#include "workbench/frame/Mod_MenuCommands.h"

#include <QApplication>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <map>

namespace {

// A hidden list must not receive keys.
TEST_F(WindowTest, AListOfTheExplorerIsShownBeforeItGetsTheFocus) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    for (const bool rolled : {true, false}) {
        dock->FindPane("CodeExplorer")->SetAutoHidden(rolled);
        ActiveForm()->View->GrabFocus();
        if (!rolled) dock->FindPane("CodeExplorer")->Hide();
        Click("Types");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "lvTypes");
        EXPECT_TRUE(QApplication::focusWidget()->isVisible());
    }
}

// "Close Tab" closes the active tab, even one that "Close File" leaves open.
TEST_F(WindowTest, CloseTabClosesTheTabInFront) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("b.bb", "Print 1\r\n")));
    gCurrentProject->SingleFile = false;
    window.UpdateCommandUI();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_W, Qt::ControlModifier);
    ASSERT_EQ(dock->DocumentWindows().size(), 1u);
    EXPECT_EQ(ActiveForm()->Filename, "a.bb");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(dock->DocumentWindows().empty());
    EXPECT_FALSE(dock->FindCommand("Close Tab")->Enabled());
    for (const char* name : {"Position", "Functions", "StatusMain", "cboCompilers", "cboCommandLine"})
        EXPECT_EQ(dock->FindCommand(name)->Text(), "") << name; // nothing of the last document
}

TEST_F(WindowTest, UndoAndRedoAreEnabledWhereTheyDoSomething) {
    WireUp();
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    const auto enabled = [&] {
        return std::pair(dock->FindCommand("Undo")->Enabled(), dock->FindCommand("Redo")->Enabled());
    };
    EXPECT_EQ(enabled(), std::pair(false, false));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_X);
    QApplication::processEvents();
    for (const bool all : {false, true}) {
        if (all) window.UpdateCommandUI();
        EXPECT_EQ(enabled(), std::pair(true, false));
    }
    Click("Undo");
    QApplication::processEvents();
    for (const bool all : {false, true}) {
        if (all) window.UpdateCommandUI();
        EXPECT_EQ(enabled(), std::pair(false, true));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Mod_Sci::GetLineCount(), 3);
    EXPECT_TRUE(dock->FindCommand("Close File")->Enabled());
    EXPECT_FALSE(dock->FindCommand("Close Project")->Enabled());
}

// What is known of the caret's scope in one document is wrong in the next.
TEST_F(WindowTest, AnotherTabHasAScopeOfItsOwn) {
    for (const char* name : {"a.bb", "b.bb"}) ASSERT_TRUE(Mod_File::OpenFile(host.Put(name, "Print 1\r\n")));
    SetFunction("of_b");
    SetType("of_b");
    dock->FindDocumentWindow(host.Path("a.bb"))->Activate();
    EXPECT_NE(CurrentFunctionName, "of_b");
    EXPECT_NE(CurrentTypeName, "of_b");
}

// The tables of a closed project go, so its names must leave the lists.
TEST_F(WindowTest, TheListsLetGoOfAClosedFile) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Global alone\r\n")));
    Click("Globals");
    const QAbstractItemModel& model = *dock->Window().findChild<QTreeView*>("lvGlobals")->model();
    EXPECT_EQ(model.rowCount(), 1);
    Click("Close Tab");
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(WindowTest, TheStatusBarIsReadAloudAndItsMarkFollowsIt) {
    window.SetTipText({.left = "Bar (", .hot = "a", .right = ")"});
    bool named = false;
    for (const auto* text : dock->Window().findChildren<StatusText*>())
        named = named || text->accessibleName() == "Bar (a)";
    EXPECT_TRUE(named);
    dock->FindBar("StatusBar")->SetVisible(false);
    window.AdditionalUISetup(); // as after loading an arrangement
    EXPECT_FALSE(dock->FindCommand("StatusBar")->Checked());
    dock->FindBar("StatusBar")->SetVisible(true);
    window.AdditionalUISetup();
    EXPECT_TRUE(dock->FindCommand("StatusBar")->Checked());
}

TEST_F(WindowTest, ANoticeStaysItsTimeAndGivesWayToTheTip) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    const auto shown = [&] { return dock->FindCommand("StatusMain")->Text(); };
    window.SetTipText({.left = "tip", .hot = {}, .right = {}});
    window.SetNotice("first");
    host.clock.Advance(4000);
    window.SetNotice("second");
    window.SetTipText({.left = "next tip", .hot = {}, .right = {}});
    host.clock.Advance(4000);
    EXPECT_EQ(shown(), "second");
    host.clock.Advance(2000);
    EXPECT_EQ(shown(), "next tip");
    EXPECT_EQ(host.clock.Timers(), 0u);
}

// Every command of a shown menu has a routine, and no shown menu is empty.
TEST_F(WindowTest, MenusOfferOnlyWhatWorks) {
    std::map<std::string, bool> routed;
    for (const auto& route : Mod_MenuCommands::Routes())
        routed[std::string(route.name)] = route.run != nullptr;
    for (DockCommand* found : dock->Commands()) {
        auto* popup = static_cast<QtCommand*>(found);
        if (!popup->Menu() || !popup->Visible()) continue;
        int shown = 0;
        for (const LayoutEntry& entry : popup->Entries()) {
            const auto* command = static_cast<QtCommand*>(dock->FindCommand(entry.command));
            if (!command->Visible()) continue;
            ++shown;
            EXPECT_TRUE(command->Menu() || routed[entry.command]) << popup->Name() << ": " << entry.command;
        }
        EXPECT_GT(shown, 0) << popup->Name();
    }
}

TEST_F(WindowTest, ResetBringsBackKeysMenusAndPanes) {
    const std::string before = host.Path("before.mp"), after = host.Path("after.mp");
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    const auto recent = dock->FindCommand("FileRecentFiles")->Items();
    EXPECT_FALSE(recent.empty());
    dock->SaveLayout(before);
    auto* run = static_cast<QtCommand*>(dock->FindCommand("Compile and Run"));
    const auto keys = run->Record().shortcuts;
    run->SetShortcuts({});
    dock->RemoveFromBar("File", "Exit");
    dock->InsertIntoBar("Standard", "Word Left", 0, false);
    dock->FindPane("Output")->SetAutoHidden(true);
    dock->FindBar("Standard")->SetVisible(false);
    host.dialogs.WillAnswer(MessageAnswer::Yes);
    Click("ResetLayout");
    EXPECT_EQ(static_cast<QtCommand*>(dock->FindCommand("Compile and Run"))->Record().shortcuts, keys);
    EXPECT_FALSE(dock->FindPane("Output")->AutoHidden());
    EXPECT_EQ(dock->FindCommand("FileRecentFiles")->Items(), recent);
    dock->SaveLayout(after);
    Layout one = ParseLayout(host.files.Read(before)), two = ParseLayout(host.files.Read(after));
    one.windowState.clear();
    two.windowState.clear();
    EXPECT_EQ(one, two);
}

// The context menu of the text is in the menu bar for as long as it can be edited there.
TEST_F(WindowTest, CustomisingPutsTheContextMenuIntoTheMenuBar) {
    Click("Customize");
    EXPECT_GE(dock->IndexInBar("MainMenu", "PopupMenu1"), 0);
    dock->SaveLayout(host.Path("saved.mp"));
    EXPECT_EQ(dock->IndexInBar("MainMenu", "PopupMenu1"), -1);
    EXPECT_TRUE(static_cast<QtCommand*>(dock->FindCommand("Undo"))->AutoRepeat());
}

TEST_F(WindowTest, TheTabsMenuHoldsWhatFitsTheDocument) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    bool cancel = false;
    window.DS_DocumentWindowContextClick(*dock->ActiveDocumentWindow(), 3, 0, 0, cancel);
    EXPECT_TRUE(cancel);
    const auto& entries = static_cast<QtCommand*>(dock->FindCommand("TabsContextMenu"))->Entries();
    EXPECT_EQ(entries, (LayoutEntries{{"Close File", false},
                                      {"Close All Files", false},
                                      {"New Horizontal Tab Group", true},
                                      {"New Vertical Tab Group", false}}));
    static_cast<QtCommand*>(dock->FindCommand("TabsContextMenu"))->Menu()->close();
}

// The first press returns to the previous tab, and back again; while Control stays down it continues through
// the group.
TEST_F(WindowTest, NextTabBeginsWithTheTabBefore) {
    for (const char* name : {"a.bb", "b.bb", "c.bb"})
        ASSERT_TRUE(Mod_File::OpenFile(host.Put(name, "Print 1\r\n")));
    const auto active = [&] { return DocumentIn(dock->ActiveDocumentWindow())->Filename; };
    const auto release = [&] { QTest::keyRelease(&dock->Window(), Qt::Key_Control); };
    const auto press = [&] {
        QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    };
    Options::gTabbingStartsWithPrevious = 1;
    press();
    release();
    dock->FindDocumentWindow(host.Path("a.bb"))->Activate();
    dock->FindDocumentWindow(host.Path("c.bb"))->Activate();
    press();
    EXPECT_EQ(active(), "a.bb");
    press();
    EXPECT_EQ(active(), "b.bb");
    release();
    press();
    EXPECT_EQ(active(), "a.bb");
    release();
    press();
    EXPECT_EQ(active(), "b.bb");
    for (const char* next : {"a.bb", "b.bb", "c.bb"}) { // the menu walks on
        EXPECT_NE(active(), next);
        Click("Next File Tab");
    }
    dock->FindDocumentWindow(host.Path("b.bb"))->Activate();
    Options::gTabbingStartsWithPrevious = 0;
    Click("Next File Tab");
    EXPECT_EQ(active(), "c.bb");
    Click("Previous File Tab");
    EXPECT_EQ(active(), "b.bb");
}

TEST_F(WindowTest, ADoubleClickOnATabClosesASingleFileOnly) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    DocumentWindow& tab = *dock->ActiveDocumentWindow();
    Options::gDoubleClickClosesTabs = 0;
    window.DS_DocumentWindowDoubleClick(tab, 3);
    EXPECT_TRUE(tab.Visible());
    Options::gDoubleClickClosesTabs = 1;
    gCurrentProject->SingleFile = false;
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    window.DS_DocumentWindowDoubleClick(tab, 3);
    EXPECT_EQ(host.dialogs.messages.back().text, "You can't close a file that is part of a project !  ");
    EXPECT_TRUE(tab.Visible());
    gCurrentProject->SingleFile = true;
    window.DS_DocumentWindowDoubleClick(tab, 3);
    EXPECT_TRUE(dock->DocumentWindows().empty());
}

// Two groups with a hidden tab in each; the caret of the one that is active is in a function.
TEST_F(WindowTest, AWorkspaceBringsBackTheGroupsTheirFrontsAndTheActiveDocument) {
    gDocumentCalls.DocumentWindowActivated = [this](DocumentWindow& active) {
        window.DS_DocumentWindowActivate(active, false);
    };
    std::string source;
    for (int number = 0; number < 100; ++number)
        source += "Function Step" + std::to_string(number) + "()\r\n\tPrint 1\r\nEnd Function\r\n\r\n";
    std::map<std::string, std::string> paths;
    for (const char* name : {"a", "b", "c", "d"}) {
        paths[name] = host.Put(std::string(name) + ".bb", source);
        ASSERT_TRUE(Mod_File::OpenFile(paths[name]));
    }
    const auto at = [&](const char* name) { return dock->FindDocumentWindow(paths[name]); };
    dock->NewTabGroup(true);
    at("c")->Activate();
    dock->MoveToTabGroup(1);
    at("d")->Activate();
    at("b")->Activate();
    Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(201)); // in Step50
    QApplication::processEvents();
    const std::string before = dock->WindowsText();
    const auto top = Mod_Sci::GetFirstVisibleLine();
    const std::string desk = host.Path("desk.zws");
    Mod_File::SaveWorkSpace(desk);
    Click("Close All Files");
    EXPECT_TRUE(dock->DocumentWindows().empty());
    ASSERT_TRUE(Mod_File::LoadWorkSpace(desk));
    QApplication::processEvents();
    EXPECT_EQ(dock->WindowsText(), before);
    for (const char* name : {"a", "b", "c", "d"}) {
        ASSERT_NE(at(name), nullptr) << name;
        EXPECT_NE(at(name)->HostedForm(), nullptr) << name;
        EXPECT_EQ(at(name)->InFront(), *name == 'b' || *name == 'd') << name;
    }
    ASSERT_NE(ActiveForm(), nullptr);
    EXPECT_EQ(ActiveForm()->FullFilename, paths["b"]);
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 201);
    EXPECT_EQ(Mod_Sci::GetFirstVisibleLine(), top);
    EXPECT_GT(top, 0);
    EXPECT_EQ(dock->FindCommand("Functions")->Text(), "Step50");
    EXPECT_TRUE(dock->FindCommand("Save File")->Enabled());
}

}
