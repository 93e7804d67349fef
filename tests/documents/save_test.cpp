// Saving, saving under a new name, new documents, and failures that must lose nothing.
#include "documents/Mod_File.h"
#include "documents/Options.h"
#include "documents/Session.h"
#include "engine/ClsProject.h"
#include "engine/OptionsEdit.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <gtest/gtest.h>

namespace {

struct SaveTest : testing::Test {
    Session session;
    FakeDialogs& dialogs = session.host.dialogs;
    void SetUp() override { SaveNothingExtra(); }
};

TEST_F(SaveTest, AFailedWriteKeepsTheOldFileAndTheChanges) {
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    session.Type("b=2\r\n");
    session.host.files.writesFail = true;
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::SaveFile(&document));
    EXPECT_EQ(session.LastMessage(),
              "Could not save " + document.FullFilename +
                  "\r\nThe file may be in use by another process or disk is write protected");
    EXPECT_EQ(dialogs.messages.back().title, "Document could not be saved !");
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Critical);
    EXPECT_TRUE(document.Dirty);
    EXPECT_EQ(session.Bytes(document.FullFilename), "a=1\r\n");
    session.host.files.writesFail = false;
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    EXPECT_FALSE(document.Dirty);
    EXPECT_EQ(LCase(session.Bytes(document.FullFilename)), "b=2\r\na=1\r\n");
}

TEST_F(SaveTest, UndoGoesBackBehindASaveUnlessTheOptionEmptiesIt) {
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    session.Type("b=2\r\n");
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    EXPECT_TRUE(document.CanUndo());
    OptionsEdit::EmptyUndo = 1;
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    OptionsEdit::EmptyUndo = 0;
    EXPECT_FALSE(document.CanUndo());
}

TEST_F(SaveTest, ANewNameMovesEverythingThatKnowsTheOldOne) {
    frmDoc& document = session.Open("a.bb", "; made\r\nFunction Made()\r\nEnd Function\r\n");
    const std::string path = session.host.Path("sub/b.bb");
    session.host.Put("sub/keep.txt", "");
    dialogs.WillSave("");
    EXPECT_FALSE(Mod_File::SaveFileAs(&document));
    const FileQuestion& asked = dialogs.questions.back();
    EXPECT_EQ(asked.title, "Save File As");
    EXPECT_EQ(asked.filter, "Blitz Basic File (*.bb)|*.bb");
    EXPECT_EQ(asked.fileName, "a.bb");
    dialogs.WillSave(path);
    ASSERT_TRUE(Mod_File::SaveFileAs(&document));
    EXPECT_EQ(document.FullFilename, path);
    EXPECT_EQ(document.Filename, "b.bb");
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
    EXPECT_EQ(gProjects.Count(), 1);
    ASSERT_NE(gProjects.Find(path), nullptr);
    EXPECT_EQ(gProjects.Find(path)->Sources.Key(0), path);
    EXPECT_EQ(gCurrentProject, gProjects.Find(path));
    session.Type("c=1\r\n");
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    EXPECT_EQ(session.Bytes(session.host.Path("a.bb")), "; made\r\nFunction Made()\r\nEnd Function\r\n");
    EXPECT_EQ(LCase(session.Bytes(path)).find("c=1"), 0u);
    dialogs.WillSave(path); // onto itself
    EXPECT_TRUE(Mod_File::SaveFileAs(&document));
    EXPECT_EQ(gProjects.Count(), 1);
}

// Two documents with one path could not be distinguished.
TEST_F(SaveTest, ANameThatAnotherDocumentHasOpenIsRefused) {
    const std::string other = session.Open("other.bb", "other=1\r\n").FullFilename;
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    dialogs.WillSave(other);
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::SaveFileAs(&document));
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Critical);
    EXPECT_EQ(session.Bytes(other), "other=1\r\n");
    EXPECT_EQ(gProjects.Count(), 2);
    EXPECT_EQ(document.FullFilename, session.host.Path("a.bb"));
    EXPECT_TRUE(Mod_File::SaveFile(&document));
}

TEST_F(SaveTest, AFailedSaveUnderANewNameChangesNothing) {
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    session.host.files.writesFail = true;
    dialogs.WillSave(session.host.Path("b.bb"));
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::SaveFileAs(&document));
    EXPECT_EQ(document.Filename, "a.bb");
    EXPECT_NE(gProjects.Find(session.host.Path("a.bb")), nullptr);
}

TEST_F(SaveTest, SavingNoDocumentIsReported) {
    session.host.ExpectErrorLog();
    EXPECT_FALSE(Mod_File::SaveFile(nullptr));
    EXPECT_NE(session.host.ErrorLog().find("99020"), std::string::npos);
    EXPECT_FALSE(Mod_File::SaveFileAs(nullptr));
    EXPECT_NE(session.host.ErrorLog().find("93320"), std::string::npos);
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    dialogs.WillSave(session.host.Path("b.bb"));
    EXPECT_TRUE(Mod_File::SaveFileAs(nullptr)); // falls back on the active document
    EXPECT_EQ(document.Filename, "b.bb");
}

struct NewFileTest : SaveTest {};

TEST_F(NewFileTest, ANewDocumentAsksForItsNameAtTheFirstSave) {
    Mod_File::NewFile();
    frmDoc& document = *ActiveForm();
    EXPECT_EQ(document.FullFilename, "New");
    EXPECT_TRUE(document.NewFile);
    EXPECT_FALSE(document.Dirty);
    session.Type("a=1\r\n");
    EXPECT_TRUE(document.Dirty);
    dialogs.WillSave(session.host.Path("first.bb"));
    ASSERT_TRUE(Mod_File::SaveFile(&document));
    EXPECT_EQ(dialogs.questions.back().fileName, "New");
    EXPECT_FALSE(document.NewFile);
    EXPECT_FALSE(document.Dirty);
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{session.host.Path("first.bb")});
    EXPECT_TRUE(Mod_File::SaveFile(&document)); // and asks no more
}

TEST_F(NewFileTest, ASecondOneGetsTheNextFreeNumber) {
    Mod_File::NewFile();
    Mod_File::NewFile();
    Mod_File::NewFile();
    ASSERT_EQ(gProjects.Count(), 3);
    EXPECT_EQ(gProjects.Key(0), "New");
    const int number = std::atoi(gProjects.Key(1).c_str() + 4);
    EXPECT_EQ(gProjects.Key(1), "New " + std::to_string(number));
    EXPECT_EQ(gProjects.Key(2), "New " + std::to_string(number + 1));
    EXPECT_EQ(ActiveForm()->Filename, gProjects.Key(2));
}

TEST_F(NewFileTest, CountedNamesGoOnAndAreNeverUsedAgain) {
    Options::gEnumerateNewFiles = 1;
    Options::gDefNewName = "Level";
    Mod_File::NewFile();
    const std::string first = ActiveForm()->FullFilename;
    ASSERT_EQ(first.substr(0, 6), "Level ");
    const int number = std::stoi(first.substr(6));
    session.Close(ActiveForm()->m_strDocumentWindowID);
    Mod_File::NewFile();
    EXPECT_EQ(ActiveForm()->FullFilename, "Level " + std::to_string(number + 1));
}

TEST_F(SaveTest, SaveAllPassesNewAndCleanDocumentsOver) {
    const std::string clean = session.Open("clean.bb", "a=1\r\n").FullFilename;
    session.host.Put("clean.bb", "changed outside\r\n");
    const std::string dirty = session.Open("dirty.bb", "b=1\r\n").FullFilename;
    session.Type("x=1\r\n");
    Mod_File::NewFile();
    session.Type("n=1\r\n");
    const frmDoc* active = ActiveForm();
    EXPECT_TRUE(Mod_File::SaveAllFiles());
    EXPECT_EQ(session.Bytes(clean), "changed outside\r\n");
    EXPECT_EQ(LCase(session.Bytes(dirty)), "x=1\r\nb=1\r\n");
    EXPECT_EQ(ActiveForm(), active);
    EXPECT_TRUE(active->Dirty);
    EXPECT_EQ(session.host.desktop.locks, 0);
}

TEST_F(SaveTest, AScratchCopyHasNoBlockAndLeavesTheDocumentDirty) {
    SaveEverythingExtra();
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    session.Type("b=1\r\n");
    ASSERT_TRUE(Mod_File::WriteTextFile(session.host.Path("Temp/New.bb")));
    EXPECT_EQ(LCase(session.Bytes(session.host.Path("Temp/New.bb"))), "b=1\r\na=1\r\n");
    EXPECT_TRUE(document.Dirty);
}

}
