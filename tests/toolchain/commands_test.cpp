// What the compiler is called with, and what stops a call.
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "documents/OpenPaths.h"
#include "documents/Options.h"
#include "editor/EditorCalls.h"
#include "editor/OpenDocuments.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"
#include "toolchain/CompileCommand.h"
#include "toolchain/Driver.h"

namespace {

using namespace Mod_Compiler;

struct CommandsTest : Driver {
    std::string Message() { return dialogs.messages.back().text; }
};

TEST(CompileCommandTest, EachJobHasItsOptions) {
    using enum CompilerJob::Kind;
    const auto text = [](CompilerJob::Kind kind, bool debug, const std::string& arguments = {}) {
        return CompileCommand{kind, debug, "/b c", "/s.bb", "/t.exe", arguments}.Text();
    };
    EXPECT_EQ(text(Run, false), "\"/b c\" \"/s.bb\"");
    EXPECT_EQ(text(Run, true, "-n  3 \"two   words\""), "\"/b c\" -d \"/s.bb\" -n 3 \"two  words\"");
    EXPECT_EQ(text(Check, true, "-n"), "\"/b c\" -c \"/s.bb\"");
    EXPECT_EQ(text(Build, true, "-n"), "\"/b c\" -o \"/t.exe\" \"/s.bb\"");
}

TEST_F(CommandsTest, EachJobStartsTheCompiler) {
    const std::string path = session.Open("a.bb", "a=1\r\n").FullFilename;
    const std::string start = Quoted(compiler) + " ";
    gCurrentProject->CommandLine = "-level";
    EXPECT_EQ(Command([&] { Compile(path, true); }), start + "-d " + Quoted(path) + " -level");
    EXPECT_EQ(Command([&] { CheckForErrors(path); }), start + "-c " + Quoted(path));
    dialogs.WillSave("/tmp/game.exe");
    EXPECT_EQ(Command([&] { CreateExe(path); }), start + "-o \"/tmp/game.exe\" " + Quoted(path));
    EXPECT_EQ(dialogs.questions.back().title, "Create Executable");
    EXPECT_EQ(dialogs.questions.back().filter, "Executables (*.exe)|*.exe");
    EXPECT_EQ(dialogs.questions.back().fileName, session.host.Path("a.exe"));
    EXPECT_EQ(processes.environment["BLITZPATH"], session.host.Path("Compilers/ZoltoBasic"));
    EXPECT_EQ(labels, (std::vector<std::string>{"Compiling program...", "Checking for errors...",
                                                "Creating executable..."}));
    EXPECT_EQ(cleared, 3);
    dialogs.WillSave("");
    CreateExe(path);
    EXPECT_EQ(processes.started.size(), 3u);
}

TEST_F(CommandsTest, ADirtyFileIsSavedFirstAndAFailedSaveStopsTheJob) {
    frmDoc& document = session.Open("a.bb", "a=1\r\n");
    session.Type("; changed\r\n");
    session.host.files.writesFail = true;
    dialogs.WillAnswer(MessageAnswer::Ok);
    Compile(document.FullFilename, false);
    EXPECT_TRUE(processes.started.empty());
    session.host.files.writesFail = false;
    Command([&] { Compile("", false); });
    EXPECT_FALSE(document.Dirty);
    EXPECT_EQ(session.Bytes(document.FullFilename).find("; changed\r\n"), 0u);
}

TEST_F(CommandsTest, AnUnsavedDocumentIsCompiledFromAScratchCopy) {
    Mod_File::NewFile();
    session.Type("Print 1\r\n");
    const std::string scratch = session.host.Path("Temp/New.bb");
    EXPECT_EQ(Command([&] { Compile("New", false); }), Quoted(compiler) + " " + Quoted(scratch));
    EXPECT_EQ(session.Bytes(scratch), "Print 1\r\n");
    EXPECT_TRUE(ActiveForm()->Dirty);
    EXPECT_TRUE(ActiveForm()->NewFile);
    EXPECT_EQ(Command([&] { CheckForErrors("New"); }), Quoted(compiler) + " -c " + Quoted(scratch));
    // Creating an executable asks for a file name, and Cancel stops it.
    dialogs.WillSave("");
    CreateExe("New");
    EXPECT_EQ(processes.started.size(), 2u);
    const std::string saved = session.host.Path("mine.bb");
    dialogs.WillSave(saved);
    dialogs.WillSave(session.host.Path("mine.exe"));
    EXPECT_NE(Command([&] { CreateExe("New"); }).find(Quoted(saved)), std::string::npos);
    EXPECT_EQ(dialogs.questions.back().fileName, session.host.Path("mine.exe"));
}

TEST_F(CommandsTest, AnErrorInAnUnsavedDocumentStandsInItself) {
    Mod_File::NewFile();
    session.Type("a = 1\r\nb =\r\n");
    const std::string window = ActiveForm()->m_strDocumentWindowID;
    const std::string scratch = session.host.Path("Temp/New.bb");
    dialogs.WillAnswer(MessageAnswer::Ok);
    processes.WillStart({.output = {"Parsing\r\n" + Quoted(scratch) + ":2:3:2:3:Expecting expression\r\n"}});
    CheckForErrors("New");
    session.Open("other.bb", "");
    session.host.clock.Advance(500);
    EXPECT_EQ(ActiveForm()->m_strDocumentWindowID, window);
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 1);
    EXPECT_EQ(Message(), "Expecting expression\r\n\r\nFile: \r\n\r\nLine: 2, Column: 3 ");
}

TEST_F(CommandsTest, AProjectIsCompiledFromItsMainFile) {
    session.host.Put("Game/Main.bb", "Include \"lib.bb\"\r\n");
    const std::string lib = session.host.Put("Game/Lib.bb", "a=1\r\n");
    const std::string other = session.Open("other.bb", "o=1\r\n").FullFilename;
    session.Type("; other\r\n");
    session.host.Put("Game/Game.zpf",
                     "[Zolto Project file]\r\n<Settings>\r\n CommandLine=\"-x\"\r\n</Settings>\r\n"
                     "<Files>\r\n AbsPath=\"Main.bb\"\r\n AbsPath=\"Lib.bb\"\r\n</Files>\r\n");
    ASSERT_TRUE(Mod_Project::LoadProject(session.host.Path("Game/Game.zpf")));
    session.host.dock.FindDocumentWindow(lib)->Activate();
    dialogs.WillAnswer(MessageAnswer::Ok);
    Compile(lib, false);
    EXPECT_EQ(Message(), "Please Set the 'Main File' for this project first...");
    EXPECT_EQ(dialogs.messages.back().title, "Operation aborted");
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Exclamation);
    gCurrentProject->MainFile = "main.bb";
    session.Type("; changed\r\n");
    EXPECT_EQ(Command([&] { Compile(lib, false); }),
              Quoted(compiler) + " " + Quoted(session.host.Path("Game/Main.bb")) + " -x");
    EXPECT_EQ(session.Bytes(lib).find("; changed\r\n"), 0u);
    session.Type("; unsaved\r\n");
    session.host.files.writesFail = true;
    dialogs.WillAnswer(MessageAnswer::Ok);
    Compile(lib, false); // what is on disk is not what the user sees
    EXPECT_EQ(processes.started.size(), 1u);
    session.host.files.writesFail = false;
    EXPECT_EQ(session.Bytes(other), "o=1\r\n"); // belongs to no project here
    Options::gOnCompileSave = 0;
    Command([&] { CheckForErrors(lib); });
    EXPECT_EQ(session.Bytes(other).find("; other\r\n"), 0u);
}

TEST_F(CommandsTest, AMissingCompilerIsToldWithItsPlace) {
    const std::string path = session.Open("a.bb", "").FullFilename;
    session.host.files.Remove(compiler);
    dialogs.WillAnswer(MessageAnswer::Ok);
    Compile(path, false);
    EXPECT_EQ(Message(), "Specified compiler not found on location :\r" + compiler +
                             ".exe\rPlease check your compiler settings !");
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Exclamation);
    EXPECT_TRUE(labels.empty());
}

TEST_F(CommandsTest, AConsoleOfItsOwnIsATerminalAndWithoutOneTheOutputPane) {
    const std::string path = session.Open("a.bb", "").FullFilename;
    const std::string command = Quoted(compiler) + " " + Quoted(path);
    gActiveCompiler->RealConsole = true;
    Compile(path, false);
    EXPECT_EQ(processes.inTerminal, std::vector<std::string>{command});
    EXPECT_TRUE(processes.started.empty());
    EXPECT_TRUE(labels.empty());
    EXPECT_EQ(Command([&] { CheckForErrors(path); }), Quoted(compiler) + " -c " + Quoted(path));
    processes.releaseError = {8, "no terminal today"};
    dialogs.WillAnswer(MessageAnswer::Ok);
    Compile(path, false);
    EXPECT_EQ(Message(), "no terminal today");
    EXPECT_EQ(output, std::vector<std::string>{"no terminal today"});
    processes.hasTerminal = false;
    EXPECT_EQ(Command([&] { Compile(path, false); }), command);
    EXPECT_EQ(output.size(), 1u); // says so
    Options::gLastCreatedExe = session.host.Put("a.exe", "");
    EXPECT_EQ(Command(RunLastCreated), Quoted(Options::gLastCreatedExe));
    EXPECT_EQ(output.size(), 1u);
    Options::gLastCreatedExe.clear();
}

TEST_F(CommandsTest, ACompilerThatCannotBeStartedSaysWhy) {
    const std::string path = session.Open("a.bb", "").FullFilename;
    for (const auto& job : {std::function<void()>([&] { Compile(path, false); }),
                            std::function<void()>([&] { CheckForErrors(path); })}) {
        processes.WillStart({.startError = {8, "blitzcc.exe: is a Windows program."}});
        dialogs.WillAnswer(MessageAnswer::Ok);
        job();
        EXPECT_EQ(Message(), "blitzcc.exe: is a Windows program.");
        EXPECT_FALSE(progress);
    }
}

TEST_F(CommandsTest, CompileAndRunLastGoesBackToItsDocument) {
    const std::string first = session.Open("first.bb", "").FullFilename;
    Command([&] { Compile(first, false); });
    frmDoc& second = session.Open("second.bb", "");
    EXPECT_EQ(Command([] { CompileLast(); }), Quoted(compiler) + " " + Quoted(first));
    EXPECT_EQ(ActiveForm()->FullFilename, first);
    // It is found under a name that it got later, too.
    const std::string renamed = session.host.Path("renamed.bb");
    dialogs.WillSave(renamed);
    ASSERT_TRUE(Mod_File::SaveFileAs(ActiveForm()));
    BringToFront(second);
    EXPECT_EQ(Command([] { CompileLast(); }), Quoted(compiler) + " " + Quoted(renamed));
}

TEST_F(CommandsTest, TheLastExecutableIsRememberedWhenItsBuildEnds) {
    const std::string path = session.Open("a.bb", "").FullFilename;
    const std::string exe = session.host.Put("a.exe", "");
    dialogs.WillSave(exe);
    Command([&] { CreateExe(path); });
    EXPECT_EQ(session.host.settings.Get("Options", "gLastCreatedExe", ""), exe);
    RunLastCreated();
    EXPECT_EQ(processes.inTerminal, std::vector<std::string>{Quoted(exe)});
    Command([&] { CheckForErrors(path); });
    EXPECT_EQ(Options::gLastCreatedExe, exe);
    session.host.files.Remove(exe);
    dialogs.WillAnswer(MessageAnswer::Ok);
    RunLastCreated();
    EXPECT_EQ(Message(), "File " + exe + " not found !");
    Options::gLastCreatedExe.clear();
    RunLastCreated();
    EXPECT_EQ(processes.inTerminal.size(), 1u);
}

TEST_F(CommandsTest, NothingRunsWithoutADocumentAndStopEndsWhatRuns) {
    Compile("", false);
    StopRunning();
    const std::string path = session.Open("a.bb", "").FullFilename;
    processes.WillStart({.ends = false});
    Compile(path, false);
    ASSERT_TRUE(ActiveForm()->ShellClass->Running());
    std::string word;
    gEditorCalls.SetNotice = [&](const std::string& text) { word = text; };
    session.Type("x");
    Compile(path, false); // one at a time: nothing is saved, cleared or shown
    EXPECT_EQ(word, "Process already running.");
    session.Open("b.bb", "");
    StopRunning(); // this one runs nothing
    EXPECT_EQ(word, "No process to terminate.");
    BringToFront(*Mod_File::DocumentOfPath(path));
    EXPECT_TRUE(ActiveForm()->Dirty);
    EXPECT_EQ(cleared, 1);
    gEditorCalls = {};
    StopRunning();
    EXPECT_EQ(output.back(), "The program was stopped.");
    session.host.clock.Advance(200);
    EXPECT_EQ(processes.killed, 1);
    EXPECT_FALSE(ActiveForm()->ShellClass->Running());
}

TEST_F(CommandsTest, TheProgressWindowFollowsTheCompileThatItTellsOf) {
    const std::string first = session.Open("first.bb", "").FullFilename;
    processes.WillStart({.ends = false});
    CheckForErrors(first);
    session.Open("second.bb", "");
    processes.WillStart({.ends = false});
    CheckForErrors(ActiveForm()->FullFilename);
    session.host.dock.FindDocumentWindow(first)->Activate();
    MakeActive(gProjects.Find(first) ? &FormOf(*gProjects.Find(first)->Sources.Item(0)) : nullptr);
    CompilerOutput::StopShown(); // the second one's, although the first one is active
    EXPECT_TRUE(ActiveForm()->ShellClass->Running());
    EXPECT_EQ(processes.killed, 1);
    session.host.clock.Advance(100);
    EXPECT_FALSE(progress);
    StopRunning();
    session.host.clock.Advance(100);
    processes.WillStart({.ends = false});
    CheckForErrors(first);
    EXPECT_TRUE(progress);
    UnloadDocument(ActiveForm());
    MakeActive(nullptr);
    EXPECT_FALSE(progress);
}

struct DefinitionsTest : CommandsTest {
    std::string folder = session.host.Path("Compilers/ZoltoBasic");
    std::string keywords = session.host.Path("Conf/ZoltoBasic.lng");
    std::string good = session.Bytes(keywords);

    void Refresh(const std::string& printed) {
        processes.redirectedOutput = printed;
        dialogs.WillAnswer(MessageAnswer::Ok);
        RefreshDefinitions("ZoltoBasic", folder);
    }
};

TEST_F(DefinitionsTest, AGoodListIsLoaded) {
    session.host.files.Remove(keywords);
    Refresh(good + "Shine x#,[y#]\r\n");
    EXPECT_EQ(processes.redirected, std::vector<std::string>{Quoted(compiler) + " +k"});
    EXPECT_EQ(processes.environment["BLITZPATH"], folder);
    EXPECT_EQ(Message(), "Keyword definitions for this compiler successfully created !");
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Information);
    ASSERT_NE(FindKeyword("SHINE"), nullptr);
    EXPECT_EQ(FindKeyword("SHINE")->VlezNum, 2);
    EXPECT_FALSE(session.host.desktop.waitCursor);
}

TEST_F(DefinitionsTest, AListBelow3000BytesCountsAsFailure) {
    Refresh(std::string(2999, 'x'));
    EXPECT_EQ(Message(), " Error while creating keyword definitions file !\r\n\r\n See " + keywords +
                             ".new for details");
    EXPECT_EQ(session.Bytes(keywords), good);
    EXPECT_EQ(dialogs.messages.back().icon, MessageIcon::Critical);
    EXPECT_NE(FindKeyword("PRINT"), nullptr);
}

TEST_F(DefinitionsTest, WithoutACompilerNoFileIsTouched) {
    session.host.files.Remove(compiler);
    dialogs.WillAnswer(MessageAnswer::Ok);
    RefreshDefinitions("ZoltoBasic", folder);
    EXPECT_EQ(Message(), "Could not find compiler (blitzcc.exe) on specified location: \r" + folder +
                             "\r Make sure you have selected correct Blitz Path and at least v1.78 of Blitz "
                             "installed !");
    EXPECT_EQ(dialogs.messages.back().title, "Error");
    EXPECT_EQ(session.Bytes(keywords), good);
    EXPECT_TRUE(processes.redirected.empty());
}

}
