// Closing documents and the program: what is asked, what Cancel keeps, and what is remembered.
#include "documents/CloseFiles.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/Mod_Project.h"
#include "documents/Session.h"
#include "engine/ClsProject.h"
#include "sci/Mod_Sci.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

struct CloseTest : testing::Test {
    Session session;
    FakeDialogs& dialogs = session.host.dialogs;

    void SetUp() override { SaveNothingExtra(); }
    frmDoc& Dirty(const std::string& name) {
        frmDoc& document = session.Open(name, "old\r\n");
        session.Type("; new ");
        return document;
    }
    std::string Handle() { return session.host.settings.Get("Instance", "Handle", ""); }
    bool Cancelled() {
        session.host.dock.CloseWindow();
        return !session.host.dock.closed;
    }
};

TEST_F(CloseTest, ADirtyFileIsAskedFor) {
    const std::string path = Dirty("a.bb").FullFilename;
    dialogs.WillAnswer(MessageAnswer::Cancel);
    session.Close(path);
    const Message& asked = dialogs.messages.back();
    EXPECT_EQ(asked.text,
              "The text in the file 'a.bb' has changed.\r\n\r\nDo you want to save the changes ?");
    EXPECT_EQ(asked.icon, MessageIcon::Question);
    EXPECT_EQ(asked.buttons, MessageButtons::YesNoCancel);
    ASSERT_EQ(session.WindowKeys().size(), 1u);
    EXPECT_TRUE(ActiveForm()->Dirty);
    dialogs.WillAnswer(MessageAnswer::Yes);
    session.Close(path);
    EXPECT_TRUE(session.WindowKeys().empty());
    EXPECT_EQ(session.Bytes(path), "; new old\r\n");
    EXPECT_EQ(gProjects.Count(), 0);
    EXPECT_EQ(gActiveDoc, nullptr);
    EXPECT_EQ(SciWndData, 0);
}

TEST_F(CloseTest, AHelpTabIsNeitherSavedNorClosedWithTheDocuments) {
    struct Page : Form {
        void* NativeWidget() override { return nullptr; }
    } page;
    session.host.dock.showsForms = false;
    const DocumentWindow& help = session.host.dock.AddDocumentWindow("", "Help", &page);
    const std::string path = Dirty("a.bb").FullFilename;
    EXPECT_EQ(DocumentIn(help), nullptr);
    EXPECT_TRUE(Mod_File::SaveAllFiles());
    EXPECT_EQ(session.Bytes(path), "; new old\r\n");
    EXPECT_TRUE(Mod_File::CloseAllFiles());
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{help.Key()});
}

TEST_F(CloseTest, NoThrowsTheChangesAwayAndAFailedSaveKeepsTheWindow) {
    const std::string path = Dirty("a.bb").FullFilename;
    session.host.files.writesFail = true;
    dialogs.WillAnswer(MessageAnswer::Yes);
    dialogs.WillAnswer(MessageAnswer::Ok);
    session.Close(path);
    ASSERT_EQ(session.WindowKeys().size(), 1u);
    EXPECT_TRUE(ActiveForm()->Dirty);
    dialogs.WillAnswer(MessageAnswer::No);
    session.Close(path);
    EXPECT_TRUE(session.WindowKeys().empty());
    EXPECT_EQ(session.Bytes(path), "old\r\n");
}

TEST_F(CloseTest, NothingClosesBeforeTheLastQuestionWasAnswered) {
    session.Open("clean.bb", "");
    const std::string first = Dirty("first.bb").FullFilename;
    const std::string second = Dirty("second.bb").FullFilename;
    const auto keys = session.WindowKeys();
    Mod_Main::Publish();
    const std::function<bool()> ends[] = {[&] { return Cancelled(); },
                                          [] { return !Mod_File::CloseAllFiles(); }};
    for (const auto& end : ends) {
        dialogs.WillAnswer(MessageAnswer::No);
        dialogs.WillAnswer(MessageAnswer::Cancel);
        EXPECT_TRUE(end());
        EXPECT_EQ(session.WindowKeys(), keys);
        EXPECT_TRUE(gProjects.Item(first)->Sources.Item(0)->Dirty);
        EXPECT_EQ(Handle(), "4711:channel"); // it can still be found
        EXPECT_TRUE(session.host.dock.savedLayouts.empty());
    }
    dialogs.WillAnswer(MessageAnswer::No);
    dialogs.WillAnswer(MessageAnswer::Yes);
    EXPECT_FALSE(Cancelled());
    EXPECT_TRUE(session.WindowKeys().empty());
    EXPECT_EQ(session.Bytes(second), "; new old\r\n");
    EXPECT_EQ(session.host.dock.savedLayouts,
              std::vector<std::string>{session.host.Path("Layouts/Layout0.8_0.mp")});
}

// A member's prompt has Yes and No alone; the box that is dismissed cancels all the same.
TEST_F(CloseTest, TheAnswersOfOneClosingAreNotThoseOfTheNext) {
    session.Open("a.bb", "a");
    EXPECT_TRUE(Mod_File::CloseAllFiles());
    const std::string path = session.Open("b.bb", "b").FullFilename;
    session.Type("x");
    session.host.dialogs.WillAnswer(MessageAnswer::No);
    session.Close(path);
    EXPECT_EQ(session.host.dialogs.messages.size(), 1u);
}

TEST_F(CloseTest, ADismissedPromptKeepsAProject) {
    for (const char* name : {"one.bb", "two.bb"}) session.host.Put(name, "old\r\n");
    const std::string path =
        session.host.Put("game.zpf", "[Zolto Project file]\r\n<Files>\r\n AbsPath=\"one.bb\"\r\n "
                                     "AbsPath=\"two.bb\"\r\n</Files>\r\n");
    ASSERT_TRUE(Mod_Project::LoadProject(path));
    const auto project = gProjects.Item(path);
    const auto keys = session.WindowKeys();
    for (const std::string& key : keys) {
        session.host.dock.FindDocumentWindow(key)->Activate();
        session.Type("; new ");
    }
    const std::function<bool()> ends[] = {[&] { return Cancelled(); },
                                          [] { return !Mod_File::CloseAllFiles(); },
                                          [&] { return !Mod_File::CloseProject(project); }};
    for (const auto& end : ends) {
        dialogs.WillAnswer(MessageAnswer::No);
        dialogs.WillAnswer(MessageAnswer::Cancel);
        EXPECT_TRUE(end());
        EXPECT_EQ(dialogs.messages.back().buttons, MessageButtons::YesNo);
        EXPECT_EQ(session.WindowKeys(), keys);
        EXPECT_EQ(project->Sources.Count(), 2);
        EXPECT_EQ(gProjects.Count(), 1);
    }
    // A project that cannot be saved also stays open, until the user gives up its changes.
    project->Dirty = true;
    for (const auto& end : ends) {
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::No}) dialogs.WillAnswer(answer);
        session.host.files.failing = {{"w" + path, "Read-only file system"}};
        dialogs.WillAnswer(MessageAnswer::Cancel);
        EXPECT_TRUE(end());
        EXPECT_EQ(session.LastMessage().find("Could not save " + path), 0u);
        EXPECT_EQ(session.WindowKeys(), keys);
    }
    for (int question = 0; question < 2; ++question) dialogs.WillAnswer(MessageAnswer::No);
    dialogs.WillAnswer(MessageAnswer::Yes);
    EXPECT_TRUE(Mod_File::CloseProject(project));
}

// A process ended by a signal asks nothing and writes no text over its file.
TEST_F(CloseTest, TheEndWithoutAQuestionKeepsWhatIsRemembered) {
    const std::string path = Dirty("a.bb").FullFilename;
    Mod_Main::Publish();
    EXPECT_FALSE(Mod_Main::Ended());
    Mod_Main::EndNow();
    Mod_Main::PlaceMainWindow(); // a start that continues after the end
    EXPECT_TRUE(Mod_Main::Ended());
    EXPECT_EQ(session.Bytes(path), "old\r\n");
    const std::string workspace = session.Bytes(session.host.Path("Conf/LastWorkspace.zws"));
    EXPECT_NE(workspace.find(path), std::string::npos);
    EXPECT_EQ(Handle(), "0");
    EXPECT_EQ(session.host.dock.savedLayouts.size(), 1u);
    session.host.dock.DropDocumentWindow(*session.host.dock.FindDocumentWindow(path));
    Mod_Main::SaveSession(); // what has ended is not written again, with less in it
    EXPECT_EQ(session.Bytes(session.host.Path("Conf/LastWorkspace.zws")), workspace);
}

TEST_F(CloseTest, TheStepsOfTheEndComeInTheirOrder) {
    std::vector<std::string> steps;
    session.Open("a.bb", "");
    gDocumentCalls.UnloadFind = [&] {
        EXPECT_EQ(Handle(), "0");
        EXPECT_EQ(session.WindowKeys().size(), 1u); // nothing was closed yet
        steps.push_back("find");
    };
    Mod_Main::Publish();
    EXPECT_FALSE(Cancelled());
    EXPECT_EQ(steps, std::vector<std::string>{"find"});
    EXPECT_FALSE(session.host.instances.receive); // no instance can hand over any more
}

TEST_F(CloseTest, AWindowWithdrawsOnlyItsOwnHandle) {
    const std::function<void()> ends[] = {[&] { EXPECT_FALSE(Cancelled()); }, Mod_Main::EndNow};
    for (const auto& end : ends) {
        Mod_Main::Publish();
        session.host.settings.Save("Instance", "Handle", "99:another"); // a window that started since
        end();
        EXPECT_EQ(Handle(), "99:another");
    }
}

// The instance that handed over a file was promised that it opens here.
TEST_F(CloseTest, AFileThatComesDuringTheEndCancelsIt) {
    const std::string path = session.host.Put("late.bb", "");
    Mod_Main::Publish();
    session.host.instances.onTheWay = path;
    EXPECT_TRUE(Cancelled());
    EXPECT_EQ(Handle(), "4711:channel");
    session.host.clock.Advance(100);
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
    EXPECT_FALSE(Cancelled());
}

TEST_F(CloseTest, WhatIsLeftGoesWithItsProgramBeforeThePlatformDoes) {
    for (const char* name : {"a.bb", "b.bb"}) {
        Dirty(name);
        session.host.processes.WillStart({.ends = false});
        EXPECT_TRUE(ActiveForm()->ShellClass->ExecuteNoCheck("program", ""));
    }
    Mod_Main::TakeDown();
    EXPECT_EQ(gProjects.Count(), 0);
    EXPECT_EQ(session.host.clock.Timers(), 0u);
}

TEST_F(CloseTest, AChangedProjectIsWrittenAtTheEnd) {
    const std::string path =
        session.host.Put("game.zpf", "[Zolto Project file]\r\n<Settings>\r\n</Settings>\r\n");
    ASSERT_TRUE(Mod_Project::LoadProject(path));
    gProjects.Item(path)->CommandLine = "-fast";
    gProjects.Item(path)->Dirty = true;
    EXPECT_FALSE(Cancelled());
    EXPECT_NE(session.Bytes(path).find(" CommandLine=\"-fast\"\r\n"), std::string::npos);
}

TEST_F(CloseTest, ThePlaceIsKeptAsFarAsTheWindowHadOne) {
    auto& place = session.host.dock.place;
    auto kept = [&](const char* key) { return session.host.settings.Get("Layout0.8_0", key, "none"); };
    place = {.top = 10, .left = 20, .width = 30, .height = 40, .state = 1};
    EXPECT_FALSE(Cancelled());
    EXPECT_EQ(kept("MainTop"), "none"); // minimised: nothing is touched
    EXPECT_EQ(kept("MainState"), "none");
    EXPECT_TRUE(session.host.dock.savedLayouts.empty());
    place.state = 0;
    EXPECT_FALSE(Cancelled());
    EXPECT_EQ(kept("MainTop") + kept("MainLeft") + kept("MainWidth") + kept("MainHeight"), "10203040");
    place = {.top = 99, .left = 99, .width = 99, .height = 99, .state = 2};
    EXPECT_FALSE(Cancelled());
    EXPECT_EQ(kept("MainTop"), "10"); // the last place that it had in normal state
    EXPECT_EQ(kept("MainState"), "2");
}

}
