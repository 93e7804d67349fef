// Backups: their names, how many are kept, and that no trouble with them keeps a file from being saved.
#include "documents/Mod_File.h"
#include "documents/Options.h"
#include "documents/Session.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

struct BackupTest : testing::Test {
    Session session;
    fs::path before = fs::current_path();

    void SetUp() override {
        SaveNothingExtra();
        Options::gBackupEnabled = 1;
        Options::gBackupType = 0;
        Options::gBackupBakIncrement = 2;
        Options::gBackupStoreType = 1;
        Options::gBackupStoreFolder = session.host.Path("Backup");
        fs::create_directories(session.host.Path("run"));
        fs::current_path(session.host.Path("run"));
    }
    ~BackupTest() override {
        fs::current_path(before);
        Options::gBackupEnabled = Options::gBackupType = Options::gBackupStoreType = 0;
        Options::gBackupBakIncrement = 2;
        Options::gBackupStoreFolder.clear();
    }
    std::string Kept(const std::string& name) { return session.Bytes(session.host.Path("Backup/" + name)); }
    Names In(const char* folder) { return session.host.files.List(session.host.Path(folder)); }
    // Overwrites the file from outside, so that a backup can be distinguished from the text in the window.
    bool Save(frmDoc& document, const std::string& onDisk) {
        session.host.files.QtFiles::Write(document.FullFilename, onDisk);
        session.Type("; typed\r\n");
        return Mod_File::SaveFile(&document);
    }
};

TEST_F(BackupTest, NumberedCopiesMoveUpAndTheOldestGoes) {
    frmDoc& document = session.Open("src/a.bb", "");
    for (const char* bytes : {"one", "two", "three"}) EXPECT_TRUE(Save(document, bytes));
    EXPECT_EQ(In("Backup"), (Names{"a.bb.bak1", "a.bb.bak2"}));
    EXPECT_EQ(Kept("a.bb.bak1"), "three");
    EXPECT_EQ(Kept("a.bb.bak2"), "two");
    Options::gBackupBakIncrement = 2147483647; // a value that the settings store may hold
    EXPECT_TRUE(Save(document, "four"));
    EXPECT_EQ(Kept("a.bb.bak3"), "two");
    Options::gBackupBakIncrement = 1;
    EXPECT_TRUE(Save(document, "five"));
    EXPECT_EQ(Kept("a.bb.bak1"), "five");
    EXPECT_EQ(Kept("a.bb.bak2"), "three");
    EXPECT_EQ(In("src"), Names{"a.bb"});
    EXPECT_TRUE(In("run").empty());
}

TEST_F(BackupTest, AStampHasDateAndTimeInTheOrderOfTheUsersLanguage) {
    Options::gBackupType = 1;
    frmDoc& document = session.Open("a.bb", "");
    EXPECT_TRUE(Save(document, "one"));
    EXPECT_TRUE(Save(document, "two")); // within the same minute
    session.host.clock.shortDate = "12/25/93";
    EXPECT_TRUE(Save(document, "three"));
    session.host.clock.time = "03:59:00"; // the clock was set back
    EXPECT_TRUE(Save(document, "four"));
    EXPECT_EQ(In("Backup"),
              (Names{"a.bb_02.03.2001_03.59.bak", "a.bb_02.03.2001_04.05.bak", "a.bb_03.02.2001_04.05.bak"}));
    EXPECT_EQ(Kept("a.bb_03.02.2001_04.05.bak"), "two");
    EXPECT_EQ(Kept("a.bb_02.03.2001_04.05.bak"), "three");
}

TEST_F(BackupTest, WithoutAFolderTheCopyGoesWhereTheProgramRunsAndTheOldOnesMoveBesideTheFile) {
    Options::gBackupStoreType = 0;
    frmDoc& document = session.Open("src/a.bb", "");
    session.host.Put("src/a.bb.bak1", "older");
    EXPECT_TRUE(Save(document, "one"));
    EXPECT_EQ(In("src"), (Names{"a.bb", "a.bb.bak2"}));
    EXPECT_EQ(session.Bytes(session.host.Path("run/a.bb.bak1")), "one");
}

TEST_F(BackupTest, OnlyADirtyFileThatIsOnDiskAndWithTheSettingOn) {
    frmDoc& document = session.Open("a.bb", "text\r\n");
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    Options::gBackupEnabled = 0;
    EXPECT_TRUE(Save(document, "one"));
    Options::gBackupEnabled = 1;
    Mod_File::NewFile();
    session.Type("; new\r\n");
    session.host.dialogs.WillSave(session.host.Path("b.bb"));
    EXPECT_TRUE(Mod_File::SaveFile(ActiveForm()));
    EXPECT_FALSE(fs::exists(session.host.Path("Backup")));
}

struct Trouble {
    const char* name;
    std::function<void(FakeHost& host)> make;
    bool reported;
    Names left = {}; // in the backup folder
};

const Trouble Troubles[] = {
    {"FullDisk",
     [](FakeHost& host) { host.files.failing["w" + host.Path("Backup/")] = "No space left on device"; },
     true,
     {"a.bb.bak1"}},
    {"ReadOnlyFolder",
     [](FakeHost& host) { host.files.failing["w" + host.Path("Backup")] = "Read-only file system"; },
     true,
     {"a.bb.bak1"}},
    {"UnreadableFolder",
     [](FakeHost& host) { host.files.failing["r" + host.Path("Backup")] = "Permission denied"; },
     false,
     {"a.bb.bak1"}},
    {"MissingFolder", [](FakeHost& host) { fs::remove_all(host.Path("Backup")); }, false, {"a.bb.bak1"}},
    {"MissingDisk",
     [](FakeHost& host) { Options::gBackupStoreFolder = host.Path("gone/Backup"); },
     true,
     {"a.bb.bak1"}},
    {"AFolderThatCannotBeMade",
     [](FakeHost&) { Options::gBackupStoreFolder = "/proc/1/Backup"; },
     true,
     {"a.bb.bak1"}},
    {"AFileWhereTheFolderShouldBe",
     [](FakeHost& host) {
         fs::remove_all(host.Path("Backup"));
         host.Put("Backup", "precious");
     },
     true},
    {"AFolderWhereTheCopyShouldBe",
     [](FakeHost& host) {
         fs::remove(host.Path("Backup/a.bb.bak1"));
         fs::create_directories(host.Path("Backup/a.bb.bak1/full"));
         fs::create_directories(host.Path("Backup/a.bb.bak2/full"));
     },
     true,
     {"a.bb.bak1", "a.bb.bak2"}},
    {"ALinkToNowhere",
     [](FakeHost& host) {
         fs::remove(host.Path("Backup/a.bb.bak1"));
         fs::create_symlink(host.Path("nowhere/x"), host.Path("Backup/a.bb.bak1"));
     },
     false,
     {"a.bb.bak1", "a.bb.bak2"}},
    {"ALinkToTheFileItself",
     [](FakeHost& host) {
         fs::remove(host.Path("Backup/a.bb.bak1"));
         fs::create_symlink(host.Path("src/a.bb"), host.Path("Backup/a.bb.bak1"));
     },
     false,
     {"a.bb.bak1", "a.bb.bak2"}},
    {"APipeWhereTheCopyShouldBe",
     [](FakeHost& host) {
         Options::gBackupBakIncrement = 0; // nothing moves out of the way
         fs::remove(host.Path("Backup/a.bb.bak1"));
         mkfifo(host.Path("Backup/a.bb.bak1").c_str(), 0600);
     },
     true,
     {"a.bb.bak1"}},
    {"UnreadableFile",
     [](FakeHost& host) { host.files.failing["r" + host.Path("src/a.bb")] = "Permission denied"; },
     true,
     {"a.bb.bak1"}},
    {"VanishedFile", [](FakeHost& host) { fs::remove(host.Path("src/a.bb")); }, true, {"a.bb.bak1"}},
    {"CopiesThatCannotMove",
     [](FakeHost& host) {
         host.files.failing["w" + host.Path("Backup/a.bb.bak2")] = "Operation not permitted";
     },
     false,
     {"a.bb.bak1"}},
    {"ANegativeNumberOfCopies", [](FakeHost&) { Options::gBackupBakIncrement = -3; }, false, {"a.bb.bak1"}},
};

struct BackupTroubleTest : BackupTest, testing::WithParamInterface<Trouble> {};

TEST_P(BackupTroubleTest, TheFileIsSavedAllTheSame) {
    frmDoc& document = session.Open("src/a.bb", "");
    session.host.Put("Backup/a.bb.bak1", "older");
    if (GetParam().reported) session.host.ExpectErrorLog();
    session.Type("; typed\r\n");
    GetParam().make(session.host);
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    EXPECT_FALSE(document.Dirty);
    session.host.files.failing.clear();
    EXPECT_EQ(session.Bytes(document.FullFilename), "; typed\r\n");
    EXPECT_EQ(GetParam().reported, session.host.ErrorLog().find("BackupFile") != std::string::npos);
    if (fs::is_directory(session.host.Path("Backup"))) {
        EXPECT_EQ(In("Backup"), GetParam().left);
    } else {
        EXPECT_EQ(session.Bytes(session.host.Path("Backup")), "precious");
    }
}

INSTANTIATE_TEST_SUITE_P(Troubles, BackupTroubleTest, testing::ValuesIn(Troubles),
                         [](const auto& trouble) { return std::string(trouble.param.name); });

TEST_F(BackupTest, ANameOfFullLengthIsSavedThoughItsBackupWouldBeTooLong) {
    session.host.ExpectErrorLog();
    frmDoc& document = session.Open("src/" + std::string(252, 'n') + ".bb", "");
    EXPECT_TRUE(Save(document, "one"));
    EXPECT_EQ(session.Bytes(document.FullFilename), "; typed\r\n");
    EXPECT_NE(session.host.ErrorLog().find("BackupFile"), std::string::npos);
}

// Both are kept, as the newest and the one before.
TEST_F(BackupTest, TwoFilesOfOneNameShareTheFolder) {
    frmDoc& first = session.Open("one/a.bb", "");
    EXPECT_TRUE(Save(first, "first"));
    frmDoc& second = session.Open("two/a.bb", "");
    EXPECT_TRUE(Save(second, "second"));
    EXPECT_EQ(Kept("a.bb.bak1"), "second");
    EXPECT_EQ(Kept("a.bb.bak2"), "first");
}

} // namespace
