// The compiler's output: progress, recognised errors, and where the caret goes.
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"
#include "toolchain/Driver.h"

namespace {

using namespace Mod_Compiler;

struct OutputTest : Driver {
    std::string path = session.host.Put("a.bb", "first = 1\r\nsecond = 2\r\nthird = 3\r\n");
    void Open() { session.Reopen(path); }
    // The selection while the message is up.
    struct Selection {
        std::intptr_t start = 0, end = 0;
    };
    std::string Error(const std::string& places, const std::string& message = "Expecting expression") {
        return Quoted(path) + ":" + places + ":" + message;
    }
};

TEST_F(OutputTest, LinesThatAreNoBannerCountTwentyOne) {
    Open();
    std::vector<std::string> lines{"BlitzCC V1", "(C) us", "Compiling a.bb", "Creating b", "",     "Parsing",
                                   "one",        "two",    "three",          "four",       "after"};
    Check({lines.begin(), lines.end()});
    EXPECT_EQ(bars, (std::vector<int>{0, 21, 42, 63, 84}));
    lines.erase(lines.begin() + 4); // an empty line is nothing
    EXPECT_EQ(output, lines);
    EXPECT_FALSE(progress);
    EXPECT_GT(scrolled, 0);
}

TEST_F(OutputTest, AnErrorIsOneOnlyWhileTheCompilerIsAtWorkAndNoOtherLineIsSwallowed) {
    Open();
    const std::string error = Error("1:1:1:1");
    Check({error}); // nothing was printed before it
    EXPECT_EQ(output, std::vector<std::string>{error});
    const std::vector<std::string> lines{"1",     "score: 5", "BlitzCC: x", "2", "3", "4",  error,
                                         "a: 84", "5",        "b: closed",  "6", "7", error};
    Check({lines.begin(), lines.end()});
    EXPECT_EQ(output, lines);
    Check({"one", "Compiling: a.bb", "Creating: b"});
    EXPECT_EQ(output.size(), 3u);
    // The user may put the window away: the error is one all the same.
    gToolchainCalls.ShowCompiling = nullptr;
    dialogs.WillAnswer(MessageAnswer::Ok);
    Check({"one", error});
    EXPECT_EQ(output.back(), "Compile Error In Line: 1, Column: 1 -->  Expecting expression");
}

TEST_F(OutputTest, AnErrorSelectsItsPlaceAndTellsIt) {
    Open();
    Selection shown;
    struct Watching : FakeDialogs {
        Selection* shown = nullptr;
        MessageAnswer Show(const Message& message) override {
            *shown = {Mod_Sci::GetSelectionStart(), Mod_Sci::GetSelectionEnd()};
            return FakeDialogs::Show(message);
        }
    } watching;
    watching.shown = &shown;
    gHost.dialogs = &watching;
    const auto line = Mod_Sci::PositionFromLine(1);
    const struct {
        const char* places;
        std::intptr_t end, caret;
    } cases[] = {{"2:8:2:9", line + 7, line + 7},
                 {"2:2:2:2", line + 1, line + 1},
                 {"2:1:2:1", line + 12, line}, // column 1: the whole line with its end
                 {"2:0:2:1", line + 12, line - 1}};
    for (const auto& error : cases) {
        watching.WillAnswer(MessageAnswer::Ok);
        Check({"Parsing", Error(error.places), "behind it"});
        EXPECT_EQ(shown.start, line) << error.places;
        EXPECT_EQ(shown.end, error.end) << error.places;
        EXPECT_EQ(Mod_Sci::GetCurrentPos(), error.caret) << error.places;
        EXPECT_EQ(Mod_Sci::GetSelectionStart(), Mod_Sci::GetSelectionEnd());
    }
    gHost.dialogs = &dialogs;
    ASSERT_EQ(watching.messages.size(), 4u);
    EXPECT_EQ(watching.messages[0].text,
              "Expecting expression\r\n\r\nFile: \r\n\r\nLine: 2, Column: 8 "); // a single file is not named
    EXPECT_EQ(watching.messages[0].title, "ZoltoBasic Compiling Error");
    EXPECT_EQ(watching.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(output[1], "Compile Error In Line: 2, Column: 0 -->  Expecting expression");
    EXPECT_EQ(output[2], "behind it");
}

TEST_F(OutputTest, AnErrorInAClosedFoldIsVisible) {
    session.Open("a.bb", "Function f()\r\n  x = \r\nEnd Function\r\n");
    ActiveForm()->m_oSubclass->DeactivateCheck();
    Mod_Sci::ToggleFold(0);
    ASSERT_FALSE(Mod_Sci::GetLineVisible(1));
    dialogs.WillAnswer(MessageAnswer::Ok);
    Check({"Parsing", Error("2:6:2:7")});
    EXPECT_TRUE(Mod_Sci::GetLineVisible(1));
}

TEST_F(OutputTest, AMessageIsCutAtItsFirstColon) {
    Open();
    dialogs.WillAnswer(MessageAnswer::Ok);
    Check({"Parsing", Error("1:3:1:4", "Bad label: x")});
    EXPECT_EQ(session.LastMessage(), "Bad label\r\n\r\nFile: \r\n\r\nLine: 1, Column: 3 ");
}

TEST_F(OutputTest, WhatIsNoErrorLineEndsWithoutAWord) {
    Open();
    const auto caret = Mod_Sci::GetCurrentPos();
    for (const char* line : {":", "\":", "a:b", "\"file\"", "\"file\":", "\"file\":x:1:1:1:m",
                             "\"file\":1:y:1:1:m", "\"file\":99999999999:1:1:1:m", "\"\"::::::::"})
        ParseError(line);
    ParseError("");
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_TRUE(output.empty());
    EXPECT_EQ(Mod_Sci::GetCurrentPos(), caret);
}

TEST_F(OutputTest, PlacesBeyondTheTextAreHeldInIt) {
    Open();
    for (const char* places : {"2000000000:5:1:1", "-7:5:1:1", "0:0:0:0", "1:2000000000:1:1", "3:-9:1:1"}) {
        dialogs.WillAnswer(MessageAnswer::Ok);
        ParseError(Error(places));
        EXPECT_LE(Mod_Sci::GetCurrentPos(), Mod_Sci::GetLength()) << places;
        EXPECT_GE(Mod_Sci::GetCurrentPos(), 0) << places;
    }
}

TEST_F(OutputTest, AnErrorInAnotherOpenFileActivatesIt) {
    Open();
    session.Open("b.bb", "b = 1\r\n");
    dialogs.WillAnswer(MessageAnswer::Ok);
    Check({"Parsing", Error("3:1:3:1")});
    EXPECT_EQ(ActiveForm()->FullFilename, path);
    // A closed file is opened, a missing file is asked for, and Cancel selects nothing.
    const std::string part = session.host.Put("sub/part.bb", "p = 1\r\np = 2\r\n");
    for (const std::string& name : {part, std::string("SUB\\part.bb")}) {
        Mod_File::OpenFile(path); // to the front
        dialogs.WillAnswer(MessageAnswer::Ok);
        Check({"Parsing", Quoted(name) + ":2:3:2:3:Oops"});
        EXPECT_EQ(ActiveForm()->FullFilename, part);
        EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 1);
        EXPECT_EQ(session.LastMessage(), "Oops\r\n\r\nFile: " + part + "\r\n\r\nLine: 2, Column: 3 ");
    }
    dialogs.WillOpen({});
    dialogs.WillAnswer(MessageAnswer::Ok);
    const auto caret = Mod_Sci::GetCurrentPos();
    ParseError("\"/no/such.bb\":1:1:1:1:Oops");
    EXPECT_EQ(dialogs.questions.back().title, "Open File");
    EXPECT_EQ(Mod_Sci::GetCurrentPos(), caret);
}

TEST_F(OutputTest, AProjectsErrorNamesItsFile) {
    const std::string lib = session.host.Put("Lib.bb", "lib = 1\r\nlib = 2\r\n");
    session.host.Put("Game.zpf",
                     "[Zolto Project file]\r\n<Settings>\r\n MainFile=\"a.bb\"\r\n</Settings>\r\n<Files>\r\n"
                     " AbsPath=\"a.bb\"\r\n AbsPath=\"Lib.bb\"\r\n</Files>\r\n");
    ASSERT_TRUE(Mod_Project::LoadProject(session.host.Path("Game.zpf")));
    session.host.dock.FindDocumentWindow(path)->Activate();
    dialogs.WillAnswer(MessageAnswer::Ok);
    Check({"Parsing", Quoted(lib) + ":2:4:2:4:Oops"});
    EXPECT_EQ(ActiveForm()->FullFilename, lib);
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 1);
    EXPECT_EQ(session.LastMessage(), "Oops\r\n\r\nFile: " + lib + "\r\n\r\nLine: 2, Column: 4 ");
}

TEST_F(OutputTest, TheErrorStreamIsDropped) {
    Open();
    processes.WillStart({.output = {"out\r\n"}, .errors = {"noise: here\r\n"}});
    CheckForErrors(path);
    session.host.clock.Advance(500);
    EXPECT_EQ(output, std::vector<std::string>{"out"});
}

}
