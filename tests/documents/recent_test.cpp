// The recent lists: their order, their bounds, and that the store has them at every moment.
#include "documents/Session.h"

#include "documents/ClsMRU.h"
#include "documents/Mod_File.h"
#include "documents/Options.h"
#include "documents/RecentFiles.h"

#include <gtest/gtest.h>
#include <map>

namespace {

using Texts = std::vector<std::string>;

TEST(MruTest, NewestFirstWithoutRegardToCaseAndBounded) {
    ClsMRU list("Test");
    for (const char* text : {"one", "two", "", "three", "ONE"}) list.Add(text);
    EXPECT_EQ(list.Items(), (Texts{"ONE", "three", "", "two"}));
    list.Add("four");
    list.Add("five");
    EXPECT_EQ(list.Items(), (Texts{"five", "four", "ONE", "three", ""}));
    list.Remove("FOUR");
    list.Remove("not there");
    EXPECT_EQ(list.IndexItem(2), "ONE");
    EXPECT_ANY_THROW(list.IndexItem(0));
    EXPECT_ANY_THROW(list.IndexItem(5));
}

TEST(MruTest, FavouritesKeepTheirOrderAndRefuseWhatIsTooMuch) {
    FakeHost host;
    ClsMRU list("Test");
    list.AsFavorites = true;
    list.Number = 2;
    for (const char* text : {"a", "A", "b"}) list.Add(text);
    EXPECT_EQ(list.Items(), (Texts{"a", "b"}));
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    list.Add("c");
    EXPECT_EQ(list.Items(), (Texts{"a", "b"}));
    EXPECT_EQ(host.dialogs.messages.back().text,
              "Maximum number of files reached !\r\nFile is not added to the list.");
    EXPECT_EQ(host.dialogs.messages.back().icon, MessageIcon::Critical);
}

TEST(MruTest, AShorterListLeavesNothingOfALongerOneInTheStore) {
    FakeHost host;
    ClsMRU list("MRUTest");
    for (const char* text : {"c", "b", "a"}) list.Add(text);
    list.Save();
    EXPECT_EQ(host.settings.Get("MRUTestMRU", "1", ""), "a");
    list.Remove("b");
    list.Save();
    ClsMRU again("MRUTest");
    again.Add("kept unless something is stored");
    again.Load();
    EXPECT_EQ(again.Items(), (Texts{"a", "c"}));
    for (const auto& [key, text] : std::map<std::string, std::string>{{"3", "C"}, {"5", "e"}, {"6", "f"}})
        host.settings.Save("MRUTestMRU", key, text); // written by hand: a text twice, a gap, too many
    again.Number = 3;
    again.Load();
    EXPECT_EQ(again.Items(), (Texts{"a", "c", "e"}));
    again.Number = 0; // the list of one that is always there
    again.Add("z");
    EXPECT_EQ(again.Items(), Texts{"z"});
    ClsMRU other("Other");
    other.Add("kept");
    other.Load();
    EXPECT_EQ(other.Items(), Texts{"kept"});
}

class RecentFilesTest : public testing::Test {
protected:
    RecentFilesTest() {
        Options::gRecentFiles = 3;
        Options::gShowRecentFull = 1;
        session.host.dock.Make("FileRecentFiles", "File");
        session.host.dock.Make("FileRecentProjects", "File");
        Mod_File::LoadRecentFilesProjects();
    }
    ~RecentFilesTest() override {
        Options::gRecentFiles = 10;
        Options::gShowRecentFull = 1;
    }
    Texts Shown(const char* command = "FileRecentFiles") {
        return session.host.dock.FindCommand(command)->Items();
    }
    std::string Stored(const char* key) { return session.host.settings.Get("RecentFilenames", key, "-"); }
    std::string Path(const char* name) { return session.host.Path(name); }

    Session session;
};

TEST_F(RecentFilesTest, EachOpenedFileStandsFirstOnceAndIsStoredAtOnce) {
    for (const char* name : {"a.bb", "b.bb", "c.bb", "d.bb"}) session.Open(name, "x");
    EXPECT_EQ(Shown(), (Texts{Path("d.bb"), Path("c.bb"), Path("b.bb")}));
    EXPECT_EQ(Stored("Count"), "3");
    EXPECT_EQ(Stored("1"), Path("d.bb"));
    EXPECT_EQ(Stored("4"), "-");
    session.Close(Path("b.bb"));
    session.Reopen(Path("b.bb"));
    EXPECT_EQ(Shown(), (Texts{Path("b.bb"), Path("d.bb"), Path("c.bb")}));
    session.host.dialogs.WillSave(Path("saved.bb"));
    Mod_File::SaveFileAs(ActiveForm());
    EXPECT_EQ(Shown().front(), Path("saved.bb"));
    EXPECT_TRUE(Shown("FileRecentProjects").empty());
}

TEST_F(RecentFilesTest, TheNextStartShowsThemAsTheOptionSays) {
    session.Open("a.bb", "x");
    Options::gShowRecentFull = 0;
    session.Open("b.bb", "x");
    EXPECT_EQ(Shown(), (Texts{"b.bb", "a.bb"}));
    session.host.settings.Save("RecentFilenames", "3", "behind the count");
    Options::gShowRecentFull = 1;
    Mod_File::LoadRecentFilesProjects();
    EXPECT_EQ(Shown(), (Texts{Path("b.bb"), Path("a.bb")}));
    for (const char* key : {"3", "4", "5"}) // written by hand: a text twice, too many
        session.host.settings.Save("RecentFilenames", key, *key == '3' ? Path("a.bb") : key);
    session.host.settings.Save("RecentFilenames", "Count", "5");
    Mod_File::LoadRecentFilesProjects();
    EXPECT_EQ(Shown(), (Texts{Path("b.bb"), Path("a.bb"), "4"}));
    session.host.settings.Save("RecentFilenames", "Count", "no number");
    Mod_File::LoadRecentFilesProjects();
    EXPECT_TRUE(Shown().empty());
}

TEST_F(RecentFilesTest, OneThatIsGoneIsForgottenOnlyOnRequest) {
    session.Open("a.bb", "x");
    session.Open("b.bb", "x");
    session.host.files.Remove(Path("a.bb"));
    session.host.dialogs.WillAnswer(MessageAnswer::No);
    EXPECT_FALSE(Mod_File::RecentFile(1));
    EXPECT_EQ(Shown().size(), 2u);
    session.host.dialogs.WillAnswer(MessageAnswer::Yes);
    EXPECT_FALSE(Mod_File::RecentFile(1));
    EXPECT_EQ(Shown(), Texts{Path("b.bb")});
    EXPECT_EQ(Stored("2"), "-");
    EXPECT_EQ(Mod_File::RecentFile(0), Path("b.bb"));
    EXPECT_FALSE(Mod_File::RecentFile(7));
    EXPECT_FALSE(Mod_File::RecentProject(0));
}

} // namespace
