// Arrangements: what is saved comes back, and a damaged file changes nothing.
#include "host/Failure.h"
#include "host/qt/frame/QtDockStudio.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace {

Layout Small() {
    Layout layout;
    layout.commands = {{.name = "File",
                        .kind = CommandKind::Popup,
                        .caption = "&File",
                        .entries = {{"Open"}, {"Exit", true}}},
                       {.name = "Open",
                        .caption = "&Open",
                        .category = "File",
                        .icon = "document-open",
                        .shortcuts = {"Ctrl+O"}},
                       {.name = "Exit", .caption = "E&xit"},
                       {.name = "Strict", .caption = "On", .checked = true}};
    layout.bars = {
        {.name = "MainMenu", .kind = BarKind::Menu, .entries = {{"File"}}},
        {.name = "Main", .caption = "Main", .visible = false, .entries = {{"Open"}, {"Strict", true}}}};
    layout.panes = {{.name = "Output", .caption = "Output", .area = "left"}};
    layout.start = {"Open"};
    return layout;
}

struct LayoutTest : testing::Test {
    FakeHost host;
    std::string Put(const Layout& layout) { return host.Put("Layout.mp", WriteLayout(layout)); }
};

TEST_F(LayoutTest, WhatIsWrittenIsReadBack) { EXPECT_EQ(ParseLayout(WriteLayout(Small())), Small()); }

TEST_F(LayoutTest, ASavedWindowComesBackInAnother) {
    const std::string path = host.Path("Layouts/user.mp");
    {
        QtDockStudio dock;
        dock.LoadLayout(Put(Small()));
        dock.FindBar("Main")->SetVisible(true);
        dock.FindPane("Output")->Hide();
        dock.FindCommand("Strict")->SetChecked(false);
        dock.SaveLayout(path);
    }
    QtDockStudio dock;
    dock.LoadLayout(Put(Small()));
    EXPECT_FALSE(dock.FindBar("Main")->Visible());
    dock.LoadLayout(path);
    EXPECT_TRUE(dock.FindBar("Main")->Visible());
    EXPECT_FALSE(dock.FindPane("Output")->Visible());
    EXPECT_FALSE(dock.FindCommand("Strict")->Checked());
    EXPECT_EQ(dock.IndexInBar("File", "Exit"), 1);
}

TEST_F(LayoutTest, AnotherArrangementHasItsOwnKeysAlone) {
    QtDockStudio dock;
    dock.LoadLayout(Put(Small()));
    Layout other = Small();
    for (LayoutCommand& command : other.commands)
        if (command.name == "Open") command.shortcuts = {"Ctrl+P"};
    dock.LoadLayout(Put(other));
    const auto& open = *static_cast<QtCommand*>(dock.FindCommand("Open"));
    EXPECT_EQ(open.Shortcuts(), std::vector{QKeyCombination(Qt::ControlModifier, Qt::Key_P)});
}

TEST_F(LayoutTest, APlainTextLosesTheMarkOfTheOneBefore) {
    QtDockStudio dock;
    dock.LoadLayout(Put(Small()));
    auto& command = *static_cast<QtCommand*>(dock.FindCommand("Open"));
    command.SetMarkedText("Bar (", "a", ")", 255);
    command.SetText("Bar (a)");
    EXPECT_EQ(command.Marked().left, "Bar (a)");
    EXPECT_EQ(command.Marked().hot, "");
}

TEST_F(LayoutTest, ADamagedOrMissingFileLeavesTheArrangement) {
    QtDockStudio dock;
    dock.LoadLayout(Put(Small()));
    DockCommand* open = dock.FindCommand("Open");
    const std::string good = WriteLayout(Small());
    Layout unknown = Small();
    unknown.bars[1].entries.push_back({"No such command"});
    Layout twice = Small();
    twice.commands.push_back({.name = "Open"});
    for (const std::string& bad : {std::string(), good.substr(0, good.size() / 2), std::string("[1]"),
                                   std::string("{\"format\": \"other\"}"), WriteLayout(unknown),
                                   WriteLayout(twice), std::string(1000, '[')}) {
        EXPECT_THROW(dock.LoadLayout(host.Put("bad.mp", bad)), Failure) << bad.substr(0, 40);
    }
    EXPECT_THROW(dock.LoadLayout(host.Path("missing.mp")), Failure);
    EXPECT_EQ(dock.FindCommand("Open"), open);
    EXPECT_EQ(dock.IndexInBar("Main", "Strict"), 1);
}

TEST_F(LayoutTest, AnOlderFileGainsWhatIsNewAndKeepsItsOwnKeys) {
    QtDockStudio dock;
    dock.LoadLayout(Put(Small()));
    Layout old = Small();
    old.commands.erase(old.commands.begin() + 2); // it knows no Exit
    old.commands[0].entries.pop_back();
    old.commands[1].shortcuts = {"Ctrl+P"};
    dock.LoadLayout(host.Put("old.mp", WriteLayout(old)));
    EXPECT_NE(dock.FindCommand("Exit"), nullptr);
    EXPECT_EQ(dock.IndexInBar("File", "Exit"), 1);
    EXPECT_EQ(static_cast<QtCommand*>(dock.FindCommand("Open"))->Record().shortcuts,
              std::vector<std::string>{"Ctrl+P"});
}

TEST_F(LayoutTest, CommandsAreAddedOnceAndWhereTheyBelong) {
    QtDockStudio dock;
    dock.LoadLayout(Put(Small()));
    dock.AddCommand("New", "New", "File", false);
    dock.InsertIntoBar("File", "New", 1, false);
    EXPECT_EQ(dock.IndexInBar("File", "Exit"), 2);
    try {
        dock.AddCommand("New", "New", "File", false);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureDuplicateKey);
    }
}

// The file of the factory is damaged and its text comes from elsewhere: the next file is still the user's.
TEST_F(LayoutTest, WithoutTheFactorysFileAUsersFileDoesNotTakeItsPlace) {
    QtDockStudio dock;
    EXPECT_THROW(dock.LoadLayout(host.Put("Layout.mp", "damaged")), Failure);
    dock.LoadFactoryText(WriteLayout(Small()));
    Layout old = Small();
    old.commands.erase(old.commands.begin() + 2); // it knows no Exit
    old.commands[0].entries.pop_back();
    old.bars[1].entries = {};
    dock.LoadLayout(host.Put("user.mp", WriteLayout(old)));
    EXPECT_NE(dock.FindCommand("Exit"), nullptr);
}

}
