// Workspaces: what comes back, what a damaged file still gives, and what is never lost over one.
#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Mod_Main.h"
#include "documents/Options.h"
#include "documents/Session.h"
#include "documents/WorkspaceText.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "sci/Mod_Sci.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using Keys = std::vector<std::string>;

const Workspace Sample{.caret = 7,
                       .windows = "{'area':{}}",
                       .entries = {{"/a b/c\".bb", true},
                                   {"/x\" Single=\"False\" Path=\"/y.bb", true},
                                   {"/caf\xE9/P.zpf", false}},
                       .views = {{"/a b/c\".bb", 7, 3, 0}, {"/x\" Caret=\"9\".bb", 0, 0, 12}}};

TEST(WorkspaceTextTest, AnyPathComesBackAsItWas) {
    EXPECT_EQ(ReadWorkspaceText(WorkspaceText(Sample)), Sample);
    Workspace odd = Sample;
    odd.entries.push_back({"/two\r\n</Projects>\r\nlines", true});
    EXPECT_EQ(ReadWorkspaceText(WorkspaceText(odd)), Sample);
    EXPECT_FALSE(ReadWorkspaceText("[Zolto Project file]\r\n"));
    EXPECT_FALSE(ReadWorkspaceText(""));
}

// A cut file gives a beginning of the whole one, and says that it is one.
TEST(WorkspaceTextTest, ACutFileGivesWhatStandsInFrontOfTheCut) {
    Workspace whole = Sample;
    whole.entries.erase(whole.entries.begin() + 1); // its first part looks like a whole line
    const std::string text = WorkspaceText(whole);
    const std::size_t projectsEnd = text.find("<Views>");
    const std::string last = "</Views>\r\n";
    for (std::size_t length = text.find('\r'); length < text.size() - last.size(); ++length) {
        const auto workspace = ReadWorkspaceText(text.substr(0, length));
        ASSERT_TRUE(workspace) << length;
        const bool atABlocksEnd = length + 2 >= projectsEnd && length < projectsEnd + 7;
        EXPECT_EQ(workspace->whole, atABlocksEnd) << length;
        ASSERT_LE(workspace->entries.size(), whole.entries.size());
        for (std::size_t at = 0; at < workspace->entries.size(); ++at)
            EXPECT_TRUE(workspace->entries[at] == whole.entries[at]) << length;
    }
}

struct WorkspaceTest : testing::Test {
    Session session;
    FakeDialogs& dialogs = session.host.dialogs;
    std::string file = session.host.Path("desk.zws");

    void SetUp() override {
        SaveNothingExtra();
        session.host.Put("Game/Lib/Maths.bb", Long("maths"));
        session.host.Put("Game/Main.bb", Long("main"));
        session.host.Put("Game/Game.zpf", "[Zolto Project file]\r\n<Files>\r\n AbsPath=\"Main.bb\"\r\n"
                                          " AbsPath=\"Lib\\Maths.bb\"\r\n</Files>\r\n");
    }
    static std::string Long(const std::string& name) {
        std::string text = "; " + name + "\r\n";
        for (int line = 1; line < 500; ++line) text += "; line " + std::to_string(line) + "\r\n";
        return text;
    }
    frmDoc& Front(const std::string& path) {
        session.host.dock.FindDocumentWindow(path)->Activate();
        return *ActiveForm();
    }
    void Look(const std::string& path, long anchor, long caret, long top) {
        Front(path);
        Mod_Sci::SetSel(anchor, caret);
        Mod_Sci::Send(SCI_SETFIRSTVISIBLELINE, top);
    }
    void ExpectLook(const std::string& path, long anchor, long caret, long top) {
        Front(path);
        EXPECT_EQ(Mod_Sci::Send(SCI_GETANCHOR), anchor) << path;
        EXPECT_EQ(Mod_Sci::GetCurrentPos(), caret) << path;
        EXPECT_EQ(Mod_Sci::GetFirstVisibleLine(), top) << path;
    }
    // A workspace file with these paths; a path that ends in .zpf is a project.
    std::string List(const Keys& paths, const std::string& windows = "") {
        Workspace workspace{.windows = windows};
        for (const std::string& path : paths) workspace.entries.push_back({path, !path.ends_with(".zpf")});
        return WorkspaceText(workspace);
    }
    bool LoadText(const std::string& text) {
        return Mod_File::LoadWorkSpace(session.host.Put("desk.zws", text));
    }
};

TEST_F(WorkspaceTest, EverythingThatWasOpenComesBack) {
    const std::string single = session.Open("a.bb", Long("a")).FullFilename;
    const std::string game = session.host.Path("Game/Game.zpf");
    Mod_File::OpenFile(game);
    const std::string main = session.host.Path("Game/Main.bb"),
                      maths = session.host.Path("Game/Lib/Maths.bb");
    const std::string other = session.Open("b.bb", Long("b")).FullFilename;
    Look(single, 50, 90, 200);
    Look(main, 6, 6, 0);
    Look(maths, 1000, 900, 40);
    Look(other, 2, 2, 300);
    Front(maths);
    session.Type("; typed "); // the star of its window doesn't come back
    Mod_Sci::SetSel(1000, 900);
    Mod_Sci::Send(SCI_SETFIRSTVISIBLELINE, 40);
    Mod_File::SaveWorkSpace(file);
    const Keys windows = session.WindowKeys();
    dialogs.WillAnswer(MessageAnswer::Yes); // saves the project's file
    ASSERT_TRUE(Mod_File::LoadWorkSpace(file));
    EXPECT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(session.WindowKeys(), windows);
    ASSERT_NE(ActiveForm(), nullptr);
    EXPECT_EQ(ActiveForm()->FullFilename, maths);
    EXPECT_EQ(gCurrentProject, gProjects.Find(game));
    EXPECT_EQ(gProjects.Item(0)->FullPath, single);
    EXPECT_EQ(gProjects.Item(1)->FullPath, game);
    EXPECT_EQ(gProjects.Item(2)->FullPath, other);
    for (DocumentWindow* window : session.host.dock.DocumentWindows())
        EXPECT_EQ(static_cast<HeadlessDocumentWindow*>(window)->caption.find('*'), std::string::npos);
    ExpectLook(single, 50, 90, 200);
    ExpectLook(main, 6, 6, 0);
    ExpectLook(maths, 1000, 900, 40);
    ExpectLook(other, 2, 2, 300);
    session.Type("Function Half(n)\r\nEnd Function\r\n"); // its pipeline runs
    ActiveForm()->m_oSubclass->DeactivateCheck();
    EXPECT_NE(gCurrentProject->Funkcii.ItemHash("Half"), nullptr);
}

TEST_F(WorkspaceTest, TheFileIsPlainText) {
    const std::string path = session.Open("a.bb", Long("a")).FullFilename;
    Mod_Sci::GotoPos(5);
    Mod_File::SaveWorkSpace(file);
    EXPECT_EQ(
        session.Bytes(file).find("[Zolto WorkSpace File]\r\n<Settings>\r\n Version=\"1\"\r\n CPOS=\"5\"\r\n"
                                 "</Settings>\r\n<Workspace>\r\n Windows=\""),
        0u);
    EXPECT_NE(session.Bytes(file).find("\"\r\n</Workspace>\r\n<Projects>\r\n Path=\"" + path +
                                       "\" Single=\"True\"\r\n</Projects>\r\n"),
              std::string::npos);
}

TEST_F(WorkspaceTest, ACaretWithoutViewsGoesToTheActiveDocument) {
    const std::string path = session.host.Put("a.bb", Long("a"));
    const auto load = [&](long caret) {
        Workspace workspace{.caret = caret, .windows = "windows\t" + path + "\t" + path + "\ta.bb"};
        workspace.entries.push_back({path, true});
        EXPECT_TRUE(LoadText(WorkspaceText(workspace)));
        return Mod_Sci::GetCurrentPos();
    };
    EXPECT_EQ(load(77), 77);
    EXPECT_EQ(load(10000000), 0);
}

TEST_F(WorkspaceTest, PlacesBeyondAShortenedFileAreIgnored) {
    const std::string path = session.Open("a.bb", Long("a")).FullFilename;
    for (const auto& [anchor, caret] : {std::pair{900L, 2L}, {2L, 900L}}) {
        session.host.Put("a.bb", Long("a"));
        Mod_File::CloseAllFiles();
        session.Reopen(path);
        Look(path, anchor, caret, 300);
        Mod_File::SaveWorkSpace(file);
        Mod_File::CloseAllFiles();
        session.host.Put("a.bb", "short\r\n");
        ASSERT_TRUE(Mod_File::LoadWorkSpace(file));
        ExpectLook(path, 0, 0, 0);
    }
}

TEST_F(WorkspaceTest, WhatIsNoWorkspaceClosesNothing) {
    session.Open("a.bb", "");
    for (const auto& [path, text] :
         {std::pair{session.host.Path("gone.zws"), "No valid workspace file found !"},
          {session.host.Put("empty.zws", ""), "Invalid workspace file !"},
          {session.host.Put("other.zws", "[Zolto Project file]\r\n"), "Invalid workspace file !"}}) {
        dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_FALSE(Mod_File::LoadWorkSpace(path));
        EXPECT_EQ(session.LastMessage(), text);
    }
    EXPECT_EQ(dialogs.messages.front().icon, MessageIcon::Exclamation);
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Critical);
    EXPECT_EQ(session.WindowKeys().size(), 1u);
    session.Type("; typed\r\n");
    dialogs.WillAnswer(MessageAnswer::Cancel); // of the question for the changed file
    EXPECT_FALSE(LoadText(List({})));
    EXPECT_TRUE(ActiveForm()->Dirty);
    dialogs.WillAnswer(MessageAnswer::No);
    EXPECT_TRUE(LoadText(List({})));
    EXPECT_TRUE(session.WindowKeys().empty());
}

TEST_F(WorkspaceTest, WhatCannotBeHadIsSaidOnceAndTheRestIsLoaded) {
    const std::string a = session.host.Put("a.bb", ""), b = session.host.Put("b.bb", "");
    const std::string main = session.host.Path("Game/Main.bb"),
                      maths = session.host.Path("Game/Lib/Maths.bb");
    const std::string game = session.host.Path("Game/Game.zpf"), gone = session.host.Path("gone.bb");
    const std::string noProject = session.host.Put("no.zpf", "nothing");
    const std::string arrangement =
        "windows\t" + b + "\t" + gone + "\tgone.bb*\t" + b + "\tb.bb*\t" + a + "\ta.bb";
    const std::string unloadable = "Could not load file:\r\n";
    const std::string full = List({a, b}, arrangement);
    struct {
        std::string text;
        Keys open;
        std::string said; // empty for nothing
    } const cases[] = {
        {List({a, gone, b}, arrangement), {b, a}, unloadable + gone},
        {List({a, gone, "New 1", session.host.Path("gone.zpf")}),
         {a},
         unloadable + gone + "\r\nNew 1\r\n" + session.host.Path("gone.zpf")},
        {List({a, a, b, session.host.Path("A.BB")}), {a, b}, ""},
        {List({game, game}), {main, maths}, ""},
        {List({noProject, a}), {a}, "Not a valid project file !\r\n" + noProject},
        {List({"New", a}), {a}, unloadable + "New"},
        {List({a, b}, "damaged"), {a, b}, "The arrangement of the windows could not be read."},
        {full.substr(0, full.find(" Path=\"" + b)),
         {a}, // the window of the other had no document
         "The workspace file is incomplete. What could be read of it was loaded."},
        {"[Zolto WorkSpace File]\r\n<Settings>\r\n Version=\"9\"\r\n</Settings>\r\n<Later>\r\n Path=\"x\"\r\n"
         "</Later>\r\n<Projects>\r\n Path=\"" +
             a + "\" Single=\"True\"\r\n</Projects>\r\n",
         {a},
         "The workspace file is of another version. What is known of it was loaded."},
    };
    for (const auto& one : cases) {
        const std::size_t before = dialogs.messages.size();
        if (!one.said.empty()) dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_TRUE(LoadText(one.text)) << one.text;
        EXPECT_EQ(session.WindowKeys(), one.open) << one.text;
        ASSERT_EQ(dialogs.messages.size(), before + (one.said.empty() ? 0 : 1)) << one.text;
        if (!one.said.empty()) {
            EXPECT_EQ(session.LastMessage(), one.said);
        }
        EXPECT_NE(ActiveForm(), nullptr) << one.text;
    }
}

// The later of the two is refused; nothing is shown twice and no document is without a window.
TEST_F(WorkspaceTest, AFileThatIsAlsoInAProjectIsOpenOnce) {
    const std::string main = session.host.Path("Game/Main.bb"), game = session.host.Path("Game/Game.zpf");
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_TRUE(LoadText(List({main, game})));
    EXPECT_EQ(dialogs.messages.back().title, "Project loading aborted...");
    EXPECT_EQ(session.WindowKeys(), Keys{main});
    EXPECT_EQ(gProjects.Count(), 1);
    EXPECT_TRUE(LoadText(List({game, main})));
    EXPECT_EQ(session.WindowKeys().size(), 2u);
    EXPECT_EQ(gProjects.Count(), 1);
}

TEST_F(WorkspaceTest, TheEndWritesTheDeskAndTheStartBringsItBack) {
    const std::string path = session.Open("a.bb", Long("a")).FullFilename;
    Look(path, 30, 30, 100);
    session.host.dock.CloseWindow();
    EXPECT_TRUE(session.host.dock.closed);
    EXPECT_TRUE(session.WindowKeys().empty());
    session.host.settings.Save("Options", "gStartUp", "1");
    const auto start = [](const std::string& commandLine) {
        gCompilers.RemoveAll();
        ASSERT_TRUE(Mod_Main::Main(commandLine));
    };
    start("");
    EXPECT_EQ(session.WindowKeys(), Keys{path});
    ExpectLook(path, 30, 30, 100);
    session.Close(path);
    session.host.files.Remove(Mod_File::LastWorkspace());
    dialogs.WillAnswer(MessageAnswer::Ok);
    start("");
    EXPECT_EQ(session.LastMessage(), "No valid workspace file found !");
    const std::string other = session.host.Put("b.bb", "");
    start(other); // a command line comes first
    EXPECT_EQ(session.WindowKeys(), Keys{other});
}

TEST_F(WorkspaceTest, AFailedWriteKeepsTheOldWorkspaceAndTheEndGoesOn) {
    session.Open("a.bb", "");
    Mod_File::SaveWorkSpace(Mod_File::LastWorkspace());
    const std::string before = session.Bytes(Mod_File::LastWorkspace());
    session.Open("b.bb", "");
    session.host.ExpectErrorLog();
    session.host.files.writesFail = true;
    session.host.dock.CloseWindow();
    EXPECT_TRUE(session.host.dock.closed);
    EXPECT_EQ(session.Bytes(Mod_File::LastWorkspace()), before);
    EXPECT_NE(session.host.ErrorLog().find("SaveWorkSpace"), std::string::npos);
}

TEST_F(WorkspaceTest, DialogsAndTheListOfRecentOnes) {
    Options::gShowRecentFull = 1;
    DockCommand& list = session.host.dock.Make("FileRecentWorkspaces", "File");
    const std::string path = session.Open("a.bb", "").FullFilename;
    dialogs.WillSave(file);
    Mod_File::SaveWorkSpaceAs();
    EXPECT_EQ(dialogs.questions.back().title, "Save Workspace As");
    EXPECT_EQ(dialogs.questions.back().filter, "Workspaces (*.zws)|*.zws|All Files|*.*");
    EXPECT_EQ(list.Items(), Keys{file});
    const std::string second = session.host.Put("second.zws", List({}));
    dialogs.WillOpen({second});
    Mod_File::OpenWorkspace();
    EXPECT_EQ(dialogs.questions.back().title, "Open Workspace");
    EXPECT_TRUE(session.WindowKeys().empty());
    EXPECT_EQ(list.Items(), (Keys{second, file}));
    Mod_File::OpenRecentWorkspace(1);
    EXPECT_EQ(session.WindowKeys(), Keys{path});
    EXPECT_EQ(list.Items(), (Keys{file, second}));
    dialogs.WillSave("");
    Mod_File::SaveWorkSpaceAs();
    dialogs.WillOpen({});
    Mod_File::OpenWorkspace();
    EXPECT_EQ(session.WindowKeys(), Keys{path});
}

} // namespace
