// The compiler box and the command-line box of the tool bars.
#include "ForgetFrame.h"
#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "documents/Session.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"
#include "workbench/frame/frmMain.h"

#include <gtest/gtest.h>

namespace {

struct BoxesTest : testing::Test {
    Session session;
    DockCommand& compilers = session.host.dock.Make("cboCompilers", "Compile");
    DockCommand& commandLine = session.host.dock.Make("cboCommandLine", "Compile");
    frmMain& window = frmMain::Instance();

    void SetUp() override {
        SaveNothingExtra();
        session.host.dock.SetEvents(&window);
    }
    void TearDown() override {
        session.host.dock.SetEvents(nullptr);
        ForgetFrame();
    }
    void Add(const char* name, const std::string& keywords) {
        auto compiler = std::make_shared<ClsCompiler>();
        compiler->Name = name;
        gCompilers.Add(compiler, name);
        if (!keywords.empty()) session.host.Put(std::string("Conf/") + name + ".lng", keywords);
    }
    void Choose(const char* name) {
        compilers.SetText(name);
        window.DS_ComboTextCommitted(compilers);
    }
    void TypeCommandLine(const char* text) {
        commandLine.SetText(text);
        window.DS_ComboTextChanged(commandLine);
    }
    std::string Project(const std::string& compiler) {
        session.host.Put("Main.bb", "Print 1\r\n");
        return session.host.Put("Game.zpf", "[Zolto Project file]\r\n<Settings>\r\n Compiler=\"" + compiler +
                                                "\"\r\n</Settings>\r\n<Files>\r\n AbsPath=\"Main.bb\"\r\n"
                                                "</Files>\r\n");
    }
};

TEST_F(BoxesTest, TheNextRunGetsWhatStandsInTheCommandLineBox) {
    const std::string first = session.Open("first.bb", "").FullFilename;
    TypeCommandLine("-level 3");
    EXPECT_EQ(gCurrentProject->CommandLine, "-level 3"); // not entered, and the next run has it
    session.Open("second.bb", "");
    window.DS_ComboTextCommitted(commandLine); // the box loses the focus when the next document has come
    EXPECT_EQ(gCurrentProject->CommandLine, "");
    window.DS_DocumentWindowActivate(*session.host.dock.ActiveDocumentWindow(), false);
    EXPECT_EQ(commandLine.Text(), "");
    EXPECT_EQ(gProjects.Find(first)->CommandLine, "-level 3");
}

TEST_F(BoxesTest, ANewCompilerParsesEveryDocumentOfTheProjectAnew) {
    std::string keywords = session.Bytes(session.host.Path("Conf/ZoltoBasic.lng"));
    keywords.replace(keywords.find("\nPrint"), 6, "\nPRINT");
    Add("Loud", keywords);
    Add("Bare", "");
    frmDoc& document = session.Open("a.bb", "Print 1\r\nGlobal lives\r\nGlobal score\r\n");
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    Choose("Bare"); // its keywords can't be had: nothing changes
    EXPECT_EQ(compilers.Text(), "ZoltoBasic");
    ASSERT_NE(FindKeyword("PRINT"), nullptr);
    EXPECT_EQ(gCurrentProject->Globals.Count(), 2);
    EXPECT_FALSE(document.Dirty);
    gCurrentProject->Compiler = "Bare"; // as a file's block may say
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    Choose("Bare"); // reported again, because it was chosen
    EXPECT_EQ(compilers.Text(), "ZoltoBasic");
    Choose("Loud");
    EXPECT_EQ(gActiveCompiler->Name, "Loud");
    EXPECT_EQ(gCurrentProject->Compiler, "Loud");
    EXPECT_EQ(Mod_Sci::LineText(0), "PRINT 1\r\n");
    EXPECT_TRUE(document.Dirty);
    EXPECT_FALSE(Mod_Sci::CanUndo());
    EXPECT_EQ(gCurrentProject->Globals.Count(), 2);
}

TEST_F(BoxesTest, AnyEntryRepairsAProjectWhoseCompilerIsNotKnown) {
    const std::string path = Project("Gone");
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    ASSERT_TRUE(Mod_Project::LoadProject(path));
    EXPECT_NE(session.LastMessage().find("\"Gone\""), std::string::npos);
    window.DS_DocumentWindowActivate(*session.host.dock.ActiveDocumentWindow(), false);
    EXPECT_EQ(compilers.Text(), "ZoltoBasic");
    EXPECT_EQ(gCurrentProject->Compiler, "Gone"); // kept until the user says otherwise
    Choose("ZoltoBasic");
    TypeCommandLine("-x");
    ASSERT_TRUE(Mod_File::CloseProject(gCurrentProject));
    EXPECT_NE(session.Bytes(path).find("Compiler=\"ZoltoBasic\""), std::string::npos);
    EXPECT_NE(session.Bytes(path).find("CommandLine=\"-x\""), std::string::npos);
}

}
