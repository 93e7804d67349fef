// Opening by path, by dialog and by command line, and the messages if nothing can be opened.
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Session.h"
#include "engine/ClsProject.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

struct OpenTest : testing::Test {
    Session session;
    std::size_t Documents() { return session.host.dock.DocumentWindows().size(); }
    int CaretLine() { return Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()); }
};

TEST_F(OpenTest, ASingleFileIsAProjectOfItsOwn) {
    const frmDoc& document = session.Open("Some Game.bb", "a=1\r\n");
    EXPECT_EQ(document.FullFilename, session.host.Path("Some Game.bb"));
    EXPECT_EQ(document.Filename, "Some Game.bb");
    EXPECT_TRUE(document.SingleFile);
    EXPECT_FALSE(document.NewFile);
    EXPECT_EQ(gProjects.Count(), 1);
    EXPECT_EQ(gCurrentProject, gProjects.Find(document.FullFilename));
    EXPECT_EQ(gCurrentProject->Sources.Item(0).get(), &document);
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{document.FullFilename});
    EXPECT_FALSE(session.host.desktop.waitCursor);
}

TEST_F(OpenTest, AnOpenFileComesToTheFrontWhateverTheCaseOfItsName) {
    const std::string first = session.Open("first.bb", "a=1\r\n").FullFilename;
    session.Open("second.bb", "b=1\r\n");
    EXPECT_FALSE(Mod_File::OpenFile(session.host.Path("FIRST.bb")));
    EXPECT_EQ(ActiveForm()->FullFilename, first);
    EXPECT_EQ(Documents(), 2u);
}

TEST_F(OpenTest, AChangedFileIsLoadedAnewOnlyWhenTheUserSaysSo) {
    const std::string path = session.Open("a.bb", "a=1\r\n").FullFilename;
    session.Type("typed = 1\r\n");
    ASSERT_TRUE(ActiveForm()->Dirty);
    session.host.Put("a.bb", "other=1\r\n");
    session.host.dialogs.WillAnswer(MessageAnswer::No);
    EXPECT_FALSE(Mod_File::OpenFile(path));
    EXPECT_EQ(Mod_Sci::GetText().find("typed"), 0u);
    const Message& asked = session.host.dialogs.messages.back();
    EXPECT_EQ(asked.text,
              "File a.bb is already open and has changed.\r\nDo you want to reload this file and lose "
              "any changes ?");
    EXPECT_EQ(asked.title, "Warning");
    EXPECT_EQ(asked.icon, MessageIcon::Exclamation);
    EXPECT_EQ(asked.byDefault, MessageAnswer::No);
    session.host.dialogs.WillAnswer(MessageAnswer::Yes);
    EXPECT_TRUE(Mod_File::OpenFile(path));
    EXPECT_EQ(Mod_Sci::GetText(), "other=1\r\n");
    EXPECT_FALSE(ActiveForm()->Dirty);
    EXPECT_EQ(Documents(), 1u);
    EXPECT_EQ(gProjects.Count(), 1);
    session.Type("kept = 1\r\n");
    session.host.views.fails = true;
    for (const MessageAnswer next : {MessageAnswer::Yes, MessageAnswer::Ok})
        session.host.dialogs.WillAnswer(next);
    EXPECT_FALSE(Mod_File::OpenFile(path)); // the old one stays where the new one fails
    EXPECT_EQ(Mod_Sci::GetText().find("kept"), 0u);
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
    EXPECT_EQ(gCurrentProject, gProjects.Find(path));
}

TEST_F(OpenTest, AFileThatGetsNoWindowLeavesTheActiveDocument) {
    const frmDoc& first = session.Open("a.bb", "a=1\r\n");
    const std::string path = session.host.Put("b.bb", "b=1\r\n");
    session.host.dock.AddDocumentWindow(path, "in its way", nullptr);
    session.host.ExpectErrorLog();
    EXPECT_FALSE(Mod_File::OpenFile(path));
    EXPECT_EQ(ActiveForm(), &first);
    EXPECT_EQ(gProjects.Count(), 1);
}

TEST_F(OpenTest, AChangedFileThatIsGoneStaysInItsWindow) {
    const std::string path = session.Open("a.bb", "a=1\r\n").FullFilename;
    session.Type("typed = 1\r\n");
    session.host.files.Remove(path);
    session.host.dialogs.WillAnswer(MessageAnswer::Yes);
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::OpenFile(path));
    EXPECT_EQ(session.LastMessage(), "Could not load file:\r\n" + path);
    ASSERT_EQ(Documents(), 1u);
    EXPECT_EQ(Mod_Sci::GetText().find("typed"), 0u);
}

TEST_F(OpenTest, WhatIsNoSourceGoesToTheDesktop) {
    const std::string text = session.host.Put("readme.txt", "text");
    EXPECT_FALSE(Mod_File::OpenFile(text));
    EXPECT_EQ(session.host.files.openedWithDesktop, std::vector<std::string>{text});
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::OpenFile("/no/such.txt"));
    EXPECT_EQ(session.LastMessage(), "File: /no/such.txt does not exists !");
    EXPECT_EQ(session.host.dialogs.messages.back().icon, MessageIcon::Exclamation);
    EXPECT_EQ(Documents(), 0u);
    EXPECT_TRUE(Mod_File::OpenHere(text)); // an Include names it, or a workspace
    session.Open("a.bb", "");
    EXPECT_FALSE(Mod_File::OpenFile(text));
    EXPECT_EQ(ActiveForm()->FullFilename, text);
    const std::string workspace = session.host.Path("desk.zws");
    Mod_File::SaveWorkSpace(workspace);
    EXPECT_TRUE(Mod_File::LoadWorkSpace(workspace));
    EXPECT_EQ(Documents(), 2u);
    EXPECT_EQ(session.host.files.openedWithDesktop.size(), 1u);
}

TEST_F(OpenTest, WhatCannotBeReadIsToldAndLeavesNothingBehind) {
    const std::string folder = session.host.Path("folder.bb");
    const std::string fifo = session.host.Path("fifo.bb");
    std::filesystem::create_directory(folder);
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    for (const std::string& path : {folder, fifo, session.host.folder, session.host.Path("missing.bb"),
                                    std::string("/dev/null"), std::string("x")}) {
        session.host.dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_FALSE(Mod_File::OpenFile(path));
        EXPECT_EQ(session.LastMessage(), "Could not load file:\r\n" + path);
        EXPECT_EQ(session.host.dialogs.messages.back().title, "File Could Not Be Loaded!");
        EXPECT_EQ(session.host.dialogs.messages.back().icon, MessageIcon::Critical);
    }
    EXPECT_EQ(Documents(), 0u);
    EXPECT_EQ(gProjects.Count(), 0);
    EXPECT_EQ(gActiveDoc, nullptr);
    EXPECT_FALSE(session.host.desktop.waitCursor);
}

TEST_F(OpenTest, TheDialogOpensOneFileOrMany) {
    session.host.dialogs.WillOpen({});
    EXPECT_FALSE(Mod_File::OpenFile(""));
    const FileQuestion& asked = session.host.dialogs.questions.back();
    EXPECT_EQ(asked.title, "Open File");
    EXPECT_EQ(asked.filter, "All Supported Formats|*.bb;*.zpf|Zolto Project Files (*.zpf)|*.zpf|"
                            "Blitz Basic File (*.bb)|*.bb|All Files|*.*");
    EXPECT_TRUE(asked.multiple);
    session.host.dialogs.WillOpen({session.host.Put("one.bb", "")});
    EXPECT_TRUE(Mod_File::OpenFile(""));
    session.host.dialogs.WillOpen({session.host.Put("two.bb", ""), session.host.Put("three.bb", "")});
    EXPECT_FALSE(Mod_File::OpenFile(""));
    EXPECT_EQ(Documents(), 3u);
}

TEST_F(OpenTest, AMissingNameIsFoundWithOtherCase) {
    const std::string path = session.host.Put("Maps/Level One.bb", "a=1\r\n");
    EXPECT_TRUE(Mod_File::OpenFile(session.host.Path("maps/level one.BB")));
    EXPECT_EQ(ActiveForm()->FullFilename, path);
}

// What waits in the document that is left is parsed there, not in the one that comes.
TEST_F(OpenTest, AnEditedLineIsParsedWhenAnotherFileOpens) {
    frmDoc& first = session.Open("a.bb", "Global before\r\nb = 1\r\n");
    const auto project = gCurrentProject;
    Mod_Sci::GotoPos(7);
    Mod_Sci::ReplaceSel("now_");
    ASSERT_EQ(first.State.UnparsedLine, 0);
    session.Open("b.bb", "Global other\r\n");
    EXPECT_EQ(first.State.UnparsedLine, -1);
    EXPECT_NE(project->Globals.ItemHash("now_before"), nullptr);
    EXPECT_EQ(project->Globals.ItemHash("before"), nullptr);
    EXPECT_EQ(gCurrentProject->Globals.Count(), 1);
}

// An undo group that was opened in one view must not be ended in another, which would end the program.
TEST_F(OpenTest, AnUndoGroupEndsWithItsDocument) {
    session.Open("a.bb", "a = 1\r\n");
    session.Type("; one\r\n; two\r\n");
    ASSERT_TRUE(gUndoGroupOpen);
    session.Open("b.bb", "b = 1\r\n");
    EXPECT_FALSE(gUndoGroupOpen);
    session.host.desktop.Pump();
    session.host.dock.FindDocumentWindow(session.host.Path("a.bb"))->Activate();
    session.Type("; three\r\n");
    const frmDoc& first = *ActiveForm();
    SciNotification update;
    update.code = SCN_UPDATEUI; // the other view is shown beside this one, and has something to tell
    FormOf(*gProjects.Item(1)->Sources.Item(0)).m_oSubclass->OnNotify(update);
    EXPECT_TRUE(gUndoGroupOpen);
    session.host.desktop.Pump();
    EXPECT_FALSE(gUndoGroupOpen);
    ASSERT_EQ(ActiveForm(), &first);
    Mod_Sci::Undo();
    EXPECT_EQ(LCase(Mod_Sci::GetText()), "; one\r\n; two\r\na = 1\r\n");
}

// One file is one document, whichever path leads to it; two files are two, however alike their names.
TEST_F(OpenTest, AFileIsOneDocumentUnderAllItsNames) {
    const frmDoc& document = session.Open("folder/one.bb", "a=1\r\n");
    const std::string path = document.FullFilename;
    const std::string hard = session.host.Path("hard.bb");
    const std::string soft = session.host.Path("soft");
    std::filesystem::create_hard_link(path, hard);
    std::filesystem::create_directory_symlink(session.host.Path("folder"), soft);
    for (const std::string& name : {hard, soft + "/one.bb", session.host.Path("folder/../folder//one.bb"),
                                    session.host.Path("folder/ONE.bb")}) {
        EXPECT_FALSE(Mod_File::OpenFile(name)) << name;
        EXPECT_EQ(ActiveForm(), &document);
        EXPECT_EQ(Documents(), 1u);
    }
    session.Type("b=2\r\n");
    session.host.dialogs.WillAnswer(MessageAnswer::Yes);
    EXPECT_TRUE(Mod_File::OpenFile(hard)); // loaded anew, and not renamed
    EXPECT_EQ(ActiveForm()->FullFilename, path);

    const frmDoc& other = session.Open("folder/ONE.bb", "other=1\r\n");
    EXPECT_EQ(Documents(), 2u);
    session.Type("b=2\r\n");
    EXPECT_TRUE(Mod_File::SaveFile(ActiveForm()));
    EXPECT_EQ(session.Bytes(other.FullFilename).find("b=2\r\nother=1\r\n"), 0u);
    EXPECT_EQ(session.Bytes(path), "a=1\r\n");
    session.Close(other.FullFilename);
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
}

TEST_F(OpenTest, ADroppedFolderIsPassedOver) {
    const std::string path = session.host.Put("folder/one.bb", "");
    Mod_File::FilesDropped({session.host.Path("folder"), path});
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
}

struct CommandLineTest : OpenTest {
    std::string one = session.host.Put("one.bb", "a=1\r\na=2\r\na=3\r\n");
    std::string blanks = session.host.Put("a b/x  y.bb", "b=1\r\nb=2\r\nb=3\r\n");
};

TEST_F(CommandLineTest, PathsFallApartAtBlanksAndAreFoundAgain) {
    for (const std::string& text :
         {one + " " + blanks, "\"" + one + "\" \"" + blanks + "\"", "\"" + blanks + "\" " + one}) {
        Mod_File::OpenFilesFromCommand(text);
        EXPECT_EQ(Documents(), 2u) << text;
        for (const std::string& key : session.WindowKeys()) session.Close(key);
    }
}

TEST_F(CommandLineTest, WhatStandsInQuotesIsOnePath) {
    const std::string path = session.host.Put("My Game/x.bb", "");
    const std::string folder = session.host.Path("My"); // the first part is the name of something else
    std::filesystem::create_directory(folder);
    Mod_File::OpenFilesFromCommand("\"" + path + "\" " + one);
    EXPECT_EQ(session.WindowKeys(), (std::vector<std::string>{path, one}));
}

TEST_F(CommandLineTest, ALineBelongsToTheNextFileThatExists) {
    Mod_File::OpenFilesFromCommand("/L:2 " + blanks);
    EXPECT_EQ(ActiveForm()->FullFilename, blanks);
    EXPECT_EQ(CaretLine(), 1);
    Mod_File::OpenFilesFromCommand("/l:3 " + one);
    EXPECT_EQ(CaretLine(), 2);
    session.Close(one);
    Mod_File::OpenFilesFromCommand(one + " /L:3");
    EXPECT_EQ(CaretLine(), 0);
    session.Close(one);
    session.Close(blanks);
    Mod_File::OpenFilesFromCommand("/L:2 " + one + " " + blanks); // used up by the first
    EXPECT_EQ(ActiveForm()->FullFilename, blanks);
    EXPECT_EQ(CaretLine(), 0);
}

TEST_F(CommandLineTest, WhatIsNotThereIsDroppedInSilence) {
    for (const char* text :
         {"/no/such file.bb", " ", "\"", "\"\"", "/L:", "/L:99999999999999999999 /no", "/L:x"})
        Mod_File::OpenFilesFromCommand(text);
    EXPECT_EQ(Documents(), 0u);
    Mod_File::OpenFilesFromCommand("/L:1e9 " + one); // beyond the end: the last line
    EXPECT_EQ(CaretLine(), 3);
}

}
