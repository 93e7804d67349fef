// Projects as they are open: loading, members that are elsewhere, saving under other names, closing.
#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "documents/Session.h"
#include "engine/ClsCompiler.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace {

struct OpenProjectTest : testing::Test {
    Session session;
    FakeDialogs& dialogs = session.host.dialogs;

    void SetUp() override {
        SaveNothingExtra();
        session.host.Put("Game/Main.bb", "; main\r\nInclude \"Lib\\Maths.bb\"\r\nPrint Twice(4)\r\n");
        session.host.Put("Game/Lib/Maths.bb",
                         "; maths\r\nFunction Twice(n)\r\n\tReturn n * 2\r\nEnd Function\r\n");
        session.host.Put(
            "Game/Game.zpf",
            "[Zolto Project file]\r\n<Settings>\r\n MainFile=\"Main.bb\"\r\n</Settings>\r\n<Folders>\r\n"
            "</Folders>\r\n<Files>\r\n AbsPath=\"main.BB\" PrjFolder=\"\"\r\n AbsPath=\"lib\\maths.bb\"\r\n"
            "</Files>\r\n");
    }
    std::string Zpf() { return session.host.Path("Game/Game.zpf"); }
    std::string Main() { return session.host.Path("Game/Main.bb"); }
    std::string Maths() { return session.host.Path("Game/Lib/Maths.bb"); }
    std::shared_ptr<ClsProject> Load() {
        EXPECT_TRUE(Mod_Project::LoadProject(Zpf()));
        return gProjects.Find(Zpf());
    }
    frmDoc& Member(const std::string& path) {
        session.host.dock.FindDocumentWindow(path)->Activate();
        return *ActiveForm();
    }
};

TEST_F(OpenProjectTest, EveryMemberOpensAndSharesTheTables) {
    const auto project = Load();
    ASSERT_NE(project, nullptr);
    EXPECT_EQ(project->Compiler, DefaultCompiler);
    EXPECT_EQ(session.host.dock.ActiveDocumentWindow()->Key(), Main()); // not the one that was opened last
    EXPECT_EQ(session.WindowKeys(), (std::vector<std::string>{Main(), Maths()}));
    EXPECT_NE(project->Funkcii.ItemHash("Twice"), nullptr);
    frmDoc& document = Member(Maths());
    EXPECT_EQ(gCurrentProject, project);
    EXPECT_FALSE(document.SingleFile);
    EXPECT_EQ(document.PrjName, "Game");
    EXPECT_EQ(document.PrjFullPath, Zpf());
    EXPECT_FALSE(document.CanUndo());
    session.Type("Function Thrice(n)\r\nEnd Function\r\n");
    document.m_oSubclass->DeactivateCheck();
    EXPECT_NE(project->Funkcii.ItemHash("Thrice"), nullptr); // its pipeline runs
    dialogs.WillAnswer(MessageAnswer::No);
    EXPECT_TRUE(Mod_File::CloseProject(project));
    EXPECT_EQ(dialogs.messages.back().buttons, MessageButtons::YesNo);
    EXPECT_EQ(gProjects.Count(), 0);
    EXPECT_TRUE(session.WindowKeys().empty());
}

TEST_F(OpenProjectTest, OpeningByExtensionLoadsAProject) {
    EXPECT_FALSE(Mod_File::OpenFile(Zpf())); // no document of its own
    EXPECT_NE(gProjects.Find(Zpf()), nullptr);
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_Project::LoadProject(Zpf()));
    EXPECT_EQ(session.LastMessage(), "Project is already loaded");
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Exclamation);
    EXPECT_EQ(session.WindowKeys().size(), 2u);
    gProjects.Find(Zpf())->CommandLine = "-fast";
    gProjects.Find(Zpf())->Dirty = true;
    for (const std::string& path : {Main(), Maths()}) session.Close(path);
    EXPECT_TRUE(Mod_Project::LoadProject(Zpf())); // its tabs were closed one by one
    EXPECT_EQ(session.WindowKeys().size(), 2u);
    EXPECT_EQ(gProjects.Count(), 1);
    EXPECT_EQ(gCurrentProject->CommandLine, "-fast");
    EXPECT_EQ(ActiveForm()->FullFilename, Main());
}

// A message box in the middle of the members lets another view send events.
TEST_F(OpenProjectTest, MembersJoinTheirOwnProjectWhateverIsActive) {
    frmDoc& single = session.Open("single.bb", "s=1\r\n");
    struct : FakeDialogs {
        frmDoc* active = nullptr;
        MessageAnswer Show(const Message&) override { return MakeActive(active), MessageAnswer::Ok; }
    } wandering;
    wandering.active = &single;
    gHost.dialogs = &wandering;
    session.host.files.failing = {{"r" + Main(), "Input/output error"}};
    const auto project = Load();
    gHost.dialogs = &dialogs;
    EXPECT_EQ(project->Sources.Count(), 1);
    EXPECT_EQ(gProjects.Find(single.FullFilename)->Sources.Count(), 1);
}

TEST_F(OpenProjectTest, AMemberIsOneWhateverItsExtension) {
    const std::string level = session.host.Put("Game/level.inc", "l=1\r\n");
    session.host.Put("Game/Game.zpf", "[Zolto Project file]\r\n<Files>\r\n AbsPath=\"Main.bb\"\r\n "
                                      "AbsPath=\"level.inc\"\r\n</Files>\r\n");
    const auto project = Load();
    session.Close(level);
    EXPECT_TRUE(Mod_File::OpenFile(level));
    EXPECT_EQ(ActiveForm()->PrjFullPath, Zpf());
    EXPECT_TRUE(session.host.files.openedWithDesktop.empty());
}

TEST_F(OpenProjectTest, TheFileOfAProjectOrTheWorkspaceIsNoPlaceForASource) {
    Load();
    frmDoc& single = session.Open("single.bb", "s=1\r\n");
    const std::string before = session.Bytes(Zpf());
    for (const std::string& path : {Zpf(), session.host.Put("Conf/LastWorkspace.zws", before)}) {
        dialogs.WillSave(path);
        dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_FALSE(Mod_File::SaveFileAs(&single));
        EXPECT_TRUE(session.LastMessage().ends_with(" is already open"));
        EXPECT_EQ(session.Bytes(path), before);
    }
}

TEST_F(OpenProjectTest, AMemberThatIsOpenElsewhereStopsTheLoad) {
    session.Reopen(Maths());
    const frmDoc* active = ActiveForm();
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_Project::LoadProject(Zpf()));
    EXPECT_EQ(dialogs.messages.back().title, "Project loading aborted...");
    EXPECT_EQ(
        session.LastMessage(),
        "Some of the files in this project are already opened in Zolto as single file or as part of another "
        "project:\r\n" +
            Maths() + "\r\nSorry, in this release you can't have same file opened multiple times");
    EXPECT_EQ(gProjects.Count(), 1);
    EXPECT_EQ(session.WindowKeys().size(), 1u);
    EXPECT_EQ(ActiveForm(), active);
    EXPECT_EQ(gCurrentProject, gProjects.Find(Maths()));
}

TEST_F(OpenProjectTest, ProjectsThatCannotBeHad) {
    dialogs.WillOpen({});
    EXPECT_FALSE(Mod_Project::LoadProject(""));
    EXPECT_EQ(dialogs.questions.back().filter, "Zolto project files (*.zpf)|*.zpf");
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_Project::LoadProject(session.host.Put("x.zpf", "no project")));
    EXPECT_EQ(session.LastMessage(), "Not a valid project file !");
    session.host.Put("gone/Gone.zpf", "[Zolto Project file]\r\n<Files>\r\n AbsPath=\"a.bb\"\r\n</Files>\r\n");
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_TRUE(Mod_Project::LoadProject(session.host.Path("gone/Gone.zpf")));
    EXPECT_EQ(gProjects.Item(0)->Files.Count(), 0);
    EXPECT_TRUE(session.WindowKeys().empty());
    session.host.Put("gone/a.bb", "");
    EXPECT_TRUE(Mod_Project::LoadProject(session.host.Path("gone/Gone.zpf")));
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{session.host.Path("gone/a.bb")}); // it came back
    session.host.files.failing = {{"r" + Zpf(), "Permission denied"}};
    std::filesystem::create_directory(session.host.Path("folder.zpf"));
    for (const std::string& path : {Zpf(), session.host.Path("folder.zpf")}) {
        dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_FALSE(Mod_Project::LoadProject(path));
        EXPECT_EQ(session.LastMessage(), "Not a valid project file !");
    }
}

TEST_F(OpenProjectTest, AMemberStaysInTheFolderAndItsNameIsItsOwn) {
    const auto project = Load();
    frmDoc& document = Member(Maths());
    const auto refused = [&](const std::string& path, const char* text, const char* title) {
        dialogs.WillSave(path);
        dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_FALSE(Mod_File::SaveFileAs(&document));
        EXPECT_EQ(session.LastMessage(), text);
        EXPECT_EQ(dialogs.messages.back().title, title);
        EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Critical);
        EXPECT_EQ(session.host.files.Kind(path) == PathKind::File, path == Main());
    };
    refused(session.host.Path("Outside.bb"), "Project Files must be saved in the project's (sub)folder !",
            "File Not Saved !");
    refused(session.host.Path("Game/Lib/MAIN.bb"), "File named MAIN.bb already exists in this project",
            "Invalid name");
    EXPECT_EQ(dialogs.questions.back().folder, session.host.Path("Game/Lib/"));
    EXPECT_FALSE(project->Dirty);

    dialogs.WillSave(session.host.Path("Game/Lib/Algebra.bb"));
    ASSERT_TRUE(Mod_File::SaveFileAs(&document));
    EXPECT_TRUE(project->Dirty);
    EXPECT_EQ(project->Files.Key(0), "Algebra.bb"); // sorted anew
    EXPECT_EQ(project->Files.Item(0)->AbsPath, "Lib\\Algebra.bb");
    EXPECT_NE(project->Sources.Find(session.host.Path("Game/Lib/Algebra.bb")), nullptr);
    EXPECT_EQ(project->Funkcii.ItemHash("Twice")->File, "Algebra.bb");
    EXPECT_TRUE(Mod_File::CloseProject(project));
    EXPECT_NE(session.Bytes(Zpf()).find("AbsPath=\"Lib\\Algebra.bb\""), std::string::npos); // saved unasked
}

// However a closed member is requested, it returns to its project, or nothing changes.
TEST_F(OpenProjectTest, AMemberOpensAsThatMemberByWhateverWay) {
    const auto project = Load();
    const auto path = [&](const char* below) { return session.host.Path(below); };
    std::filesystem::create_symlink(Maths(), path("link.bb"));
    const std::function<void()> ways[] = {
        [&] { EXPECT_TRUE(Mod_File::OpenFile(Maths())); },
        [&] { EXPECT_TRUE(Mod_File::OpenFile(path("link.bb"))); },
        [&] { Mod_File::OpenFilesFromCommand(path("Game/../Game/Lib/Maths.bb")); }};
    for (const auto& way : ways) {
        session.Close(Maths());
        const frmDoc& single = session.Open("single.bb", "s=1\r\n");
        way();
        EXPECT_EQ(ActiveForm()->FullFilename, Maths());
        EXPECT_FALSE(ActiveForm()->SingleFile);
        EXPECT_EQ(gCurrentProject, project);
        EXPECT_EQ(project->Sources.Count(), 2);
        EXPECT_EQ(gProjects.Count(), 2);
        EXPECT_EQ(project->Funkcii.Count(), 2); // declared once, beside the main program
        session.Close(single.FullFilename);
    }
    session.Type("; changed\r\n");
    dialogs.WillAnswer(MessageAnswer::Yes);
    EXPECT_TRUE(Mod_File::OpenFile(path("link.bb"))); // loaded anew
    EXPECT_EQ(ActiveForm()->FullFilename, Maths());
    EXPECT_FALSE(ActiveForm()->SingleFile || ActiveForm()->Dirty);
    session.Type("; kept\r\n");
    session.host.views.fails = true;
    for (const MessageAnswer answer : {MessageAnswer::Yes, MessageAnswer::Ok}) dialogs.WillAnswer(answer);
    EXPECT_FALSE(Mod_File::OpenFile(Maths())); // the old one stays where the new one fails
    session.host.views.fails = false;
    EXPECT_EQ(Mod_Sci::GetText().find("; kept"), 0u);
    EXPECT_TRUE(ActiveForm()->Dirty);
    EXPECT_EQ(project->Sources.Count(), 2);
    EXPECT_EQ(project->Funkcii.Count(), 2);
    session.Type("; more\r\n");
    dialogs.WillAnswer(MessageAnswer::No);
    session.Close(Maths());
    frmDoc& single = session.Open("single.bb", "s=1\r\n");
    dialogs.WillSave(Maths());
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::SaveFileAs(&single)); // it would be beside the project
    EXPECT_EQ(session.LastMessage(), "File named Maths.bb already exists in this project");
    session.host.files.Remove(Maths());
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::OpenMember(project, Maths()));
    EXPECT_EQ(session.LastMessage(), "Could not load file:\r\n" + Maths());
    EXPECT_EQ(ActiveForm(), &single);
    EXPECT_EQ(gCurrentProject, gProjects.Find(single.FullFilename));
}

// A window that cannot be had takes everything back.
TEST_F(OpenProjectTest, AMemberThatGetsNoWindowLeavesTheActiveDocument) {
    const auto project = Load();
    session.Close(Maths());
    const frmDoc& main = Member(Main());
    session.host.dock.AddDocumentWindow(Maths(), "in its way", nullptr);
    session.host.ExpectErrorLog();
    EXPECT_FALSE(Mod_File::OpenProjectsFile(project, Maths()));
    EXPECT_EQ(ActiveForm(), &main);
    EXPECT_EQ(SciWndData, main.SciEdi_WndData);
    EXPECT_EQ(project->Sources.Count(), 1);
}

TEST_F(OpenProjectTest, AProjectThatBringsNoDocumentLeavesTheActiveOneItsTables) {
    const std::string path = session.Open("a.bb", "Global before\r\n").FullFilename;
    for (const char* files : {"", " AbsPath=\"missing.bb\"\r\n"}) {
        const std::string zpf = session.host.Put(
            "p/x.zpf", std::string("[Zolto Project file]\r\n<Files>\r\n") + files + "</Files>\r\n");
        if (*files != '\0') dialogs.WillAnswer(MessageAnswer::Ok);
        EXPECT_TRUE(Mod_Project::LoadProject(zpf));
        EXPECT_EQ(gCurrentProject, gProjects.Find(path));
        session.Type("Global more\r\n");
        ActiveForm()->m_oSubclass->DeactivateCheck();
        EXPECT_NE(gProjects.Find(path)->Globals.ItemHash("more"), nullptr);
        EXPECT_TRUE(Mod_File::CloseProject(gProjects.Find(zpf)));
    }
}

// A rename of a file also changes the main file's key and every table.
TEST_F(OpenProjectTest, ARenamedMemberIsFollowedEverywhere) {
    const auto project = Load();
    frmDoc& main = Member(Main());
    dialogs.WillSave(session.host.Path("Game/Start.bb"));
    ASSERT_TRUE(Mod_File::SaveFileAs(&main));
    EXPECT_EQ(project->MainFile, "Start.bb");
    frmDoc& document = Member(Maths());
    dialogs.WillSave(session.host.Path("Game/Lib/Algebra.bb"));
    ASSERT_TRUE(Mod_File::SaveFileAs(&document));
    EXPECT_EQ(project->MainFile, "Start.bb");
    const auto locals = [&] {
        return static_cast<ClsFunkcija&>(*project->Funkcii.ItemHash("Twice")).Locals->Count();
    };
    const int before = locals();
    EXPECT_GT(before, 0);
    session.Close(session.host.Path("Game/Lib/Algebra.bb"));
    EXPECT_TRUE(Mod_File::OpenFile(session.host.Path("Game/Lib/Algebra.bb")));
    EXPECT_EQ(locals(), before);
    EXPECT_EQ(project->Funkcii.Count(), 2);
}

TEST_F(OpenProjectTest, SaveProjectFilesSavesOnlyThisProject) {
    const std::string single = session.Open("single.bb", "s=1\r\n").FullFilename;
    session.Type("s=2\r\n");
    Load();
    Member(Main());
    session.Type("; changed\r\n");
    frmDoc& document = Member(Maths());
    EXPECT_TRUE(Mod_File::SaveProjectFiles());
    EXPECT_EQ(session.Bytes(Main()).find("; changed\r\n"), 0u);
    EXPECT_EQ(session.Bytes(single), "s=1\r\n");
    EXPECT_EQ(ActiveForm(), &document);
}

// What could not be saved stays open, and so does the project that it belongs to.
TEST_F(OpenProjectTest, AFailedSaveWhileClosingKeepsTheProject) {
    const auto project = Load();
    frmDoc& document = Member(Maths());
    session.Type("; changed\r\n");
    session.host.files.writesFail = true;
    dialogs.WillAnswer(MessageAnswer::Yes);
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(Mod_File::CloseProject(project));
    EXPECT_NE(gProjects.Find(Zpf()), nullptr);
    ASSERT_NE(session.host.dock.FindDocumentWindow(Maths()), nullptr);
    session.host.files.writesFail = false;
    EXPECT_TRUE(Mod_File::SaveFile(&document));
    EXPECT_EQ(session.Bytes(Maths()).find("; changed\r\n"), 0u);
    EXPECT_TRUE(Mod_File::CloseProject(project));
    EXPECT_EQ(gProjects.Count(), 0);
}

}
