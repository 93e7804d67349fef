// Project files: what is read, what is kept, what is written, and what becomes of damaged ones.
#include "documents/Mod_Project.h"
#include "documents/Session.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

std::string File(const std::string& path, const std::string& more = "") {
    return " AbsPath=\"" + path + "\" PrjFolder=\"\" Line=\"3\" Column=\"4\" Tip=\"1\" Visible=\"True\"" +
           more + "\r\n";
}

std::string Project(const std::string& files, const std::string& settings = "",
                    const std::string& folders = "") {
    return "[Zolto Project file]\r\n<Settings>\r\n" + settings + "</Settings>\r\n<Folders>\r\n" + folders +
           "</Folders>\r\n<Files>\r\n" + files + "</Files>\r\n";
}

struct ProjectFileTest : testing::Test {
    FakeHost host;
    ClsProject project;
    bool Read(const std::string& bytes) {
        return Mod_Project::BuildProjectFromFile(host.Put("Game.zpf", bytes), project);
    }
    std::string Written() {
        EXPECT_TRUE(Mod_Project::SaveProject(project));
        return host.files.Read(host.Path("Game.zpf"));
    }
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const auto& entry : project.Files) names.push_back(entry.key);
        return names;
    }
};

TEST_F(ProjectFileTest, TheSampleProjectIsWrittenAsItWasRead) {
    namespace fs = std::filesystem;
    const std::string folder = std::string(ZOLTO_SOURCE_ROOT) + "/examples/DeepVein";
    fs::copy(folder, host.Path("DeepVein"), fs::copy_options::recursive);
    const std::string path = host.Path("DeepVein/DeepVein.zpf");
    ASSERT_TRUE(Mod_Project::BuildProjectFromFile(path, project));
    EXPECT_EQ(project.Name, "DeepVein");
    EXPECT_EQ(project.Path, host.Path("DeepVein/"));
    EXPECT_EQ(project.FullPath, path);
    EXPECT_EQ(project.MainFile, "DeepVein.bb");
    EXPECT_EQ(project.CommandLine, "-seed 2417 -days 120");
    const auto market = project.Files.Item("Market.bb");
    EXPECT_EQ(market->AbsPath, "World\\Market.bb");
    EXPECT_EQ(market->TreeParent, "DeepVein\\World");
    EXPECT_EQ(market->Line, 82);
    EXPECT_EQ(market->Column, 20);
    EXPECT_EQ(market->Tip, 66);
    EXPECT_TRUE(market->Visible);
    const auto world = project.Folders.Item("\\World");
    EXPECT_EQ(world->Name, "World");
    EXPECT_EQ(world->TreeParent, "DeepVein");
    EXPECT_TRUE(world->Expanded);
    const std::string before = host.files.Read(path);
    project.Dirty = true;
    ASSERT_TRUE(Mod_Project::SaveProject(project));
    EXPECT_EQ(host.files.Read(path), before);
    EXPECT_FALSE(project.Dirty);
}

TEST_F(ProjectFileTest, FilesAndFoldersAreSortedWithoutRegardToCase) {
    for (const char* name : {"b.bb", "A.bb", "c.bb", "sub/B2.bb"}) host.Put(name, "");
    ASSERT_TRUE(
        Read(Project(File("c.bb") + File("sub\\B2.bb") + File("b.bb") + File("A.bb"), "",
                     " AbsPath=\"\\z\" Expanded=\"True\"\r\n AbsPath=\"\\Q\\a\" Expanded=\"False\"\r\n")));
    EXPECT_EQ(Names(), (std::vector<std::string>{"A.bb", "b.bb", "B2.bb", "c.bb"}));
    EXPECT_EQ(project.Folders.Key(0), "\\Q\\a");
    EXPECT_EQ(project.Folders.Item(0)->TreeParent, "Game\\Q");
}

TEST_F(ProjectFileTest, AMissingMemberIsToldAndDroppedAtTheNextSave) {
    host.Put("here.bb", "");
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    const std::string bytes = Project(File("gone.bb") + File("here.bb"));
    ASSERT_TRUE(Read(bytes));
    const Message& told = host.dialogs.messages.back();
    EXPECT_EQ(told.title, "File not found");
    EXPECT_EQ(told.text,
              " File " + host.Path("gone.bb") +
                  " that is part of this project is missing \r\n This file will be removed from this "
                  "project");
    EXPECT_EQ(told.icon, MessageIcon::Exclamation);
    EXPECT_EQ(Names(), std::vector<std::string>{"here.bb"});
    EXPECT_EQ(host.files.Read(host.Path("Game.zpf")), bytes);
    EXPECT_EQ(Written().find("gone.bb"), std::string::npos);
}

TEST_F(ProjectFileTest, TwoMembersOfOneNameAreReportedAndTheFirstStays) {
    for (const char* name : {"a.bb", "sub/A.bb", "z.bb"}) host.Put(name, "");
    host.ExpectErrorLog();
    ASSERT_TRUE(Read(Project(File("a.bb") + File("sub\\A.bb") + File("z.bb"))));
    EXPECT_EQ(Names(), (std::vector<std::string>{"a.bb", "z.bb"}));
    EXPECT_EQ(project.Files.Item("a.bb")->AbsPath, "a.bb");
    EXPECT_NE(host.ErrorLog().find("BuildProjectFromFile"), std::string::npos);
}

TEST_F(ProjectFileTest, PathsAreFoundWithEitherSeparatorAndAnyCase) {
    host.Put("Maps/One.bb", "");
    host.Put("Two.bb", "");
    ASSERT_TRUE(Read(Project(File("MAPS\\one.BB") + File("./two.bb"))));
    EXPECT_EQ(project.Files.Count(), 2);
    EXPECT_EQ(project.Files.Item("one.BB")->AbsPath, "MAPS\\one.BB");
    EXPECT_NE(Written().find(" AbsPath=\".\\two.bb\""), std::string::npos); // the data keeps its form
}

TEST_F(ProjectFileTest, LfOnlyAndUnknownBlocksAreRead) {
    host.Put("a.bb", "");
    std::string bytes =
        "[Zolto Project file]\r\n<Future>\r\n AbsPath=\"no.bb\"\r\n</Future>\r\n" +
        Project(File("a.bb"), " CommandLine=\"x\" Compiler=\"C\"\r\n MainFile=\"a.bb\"\r\n").substr(22);
    for (std::size_t at; (at = bytes.find('\r')) != std::string::npos;) bytes.erase(at, 1);
    ASSERT_TRUE(Read(bytes));
    EXPECT_EQ(Names(), std::vector<std::string>{"a.bb"});
    EXPECT_EQ(project.MainFile, "a.bb");
    EXPECT_EQ(project.Compiler, "C");
    EXPECT_EQ(Written().find("\r\n<Settings>\r\n"), 20u);
}

TEST_F(ProjectFileTest, AQuoteInAValueIsCutAtTheNextReading) {
    project.FullPath = host.Path("Game.zpf");
    project.CommandLine = "-name \"Ann\"";
    Written();
    ClsProject again;
    ASSERT_TRUE(Mod_Project::BuildProjectFromFile(host.Path("Game.zpf"), again));
    EXPECT_EQ(again.CommandLine, "-name ");
}

TEST_F(ProjectFileTest, WhatIsNoProjectIsNone) {
    for (const char* bytes :
         {"", "\r\n[Zolto Project file]\r\n", "[Zolto project file]\r\n", "[Zolto Project file] \r\n"})
        EXPECT_FALSE(Read(bytes)) << bytes;
}

TEST_F(ProjectFileTest, DamageCostsOnlyWhatItHits) {
    host.Put("a.bb", "");
    host.ExpectErrorLog(); // two lines without a path have the same empty name
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    std::string bytes = Project(" AbsPath=\"\r\n" + File("a.bb") + "garbage \xFF\r\n AbsPath=\"no.bb\"\r\n");
    bytes.resize(bytes.find("</Files>")); // the end is missing
    ASSERT_TRUE(Read(bytes));
    EXPECT_TRUE(project.Files.Exist_Key("a.bb"));
    EXPECT_FALSE(project.Files.Exist_Key("no.bb"));
}

TEST_F(ProjectFileTest, AFailedWriteKeepsTheOldFileAndTheDirtyMark) {
    ASSERT_TRUE(Read(Project("", " CommandLine=\"old\"\r\n")));
    const std::string before = host.files.Read(host.Path("Game.zpf"));
    project.Dirty = true;
    project.CommandLine = "new";
    host.files.writesFail = true;
    host.ExpectErrorLog();
    EXPECT_FALSE(Mod_Project::SaveProject(project));
    EXPECT_TRUE(project.Dirty);
    EXPECT_EQ(host.files.Read(host.Path("Game.zpf")), before);
    EXPECT_NE(host.ErrorLog().find("SaveProject"), std::string::npos);
}

}
