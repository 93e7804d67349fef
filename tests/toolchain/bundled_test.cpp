// The whole way with the bundled compiler: a real child, its real output, the samples.
#include "documents/Mod_File.h"
#include "host/Host.h"
#include "host/qt/system/QtProcesses.h"
#include "sci/Mod_Sci.h"
#include "toolchain/Driver.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

namespace {

struct BundledTest : Driver {
    QtProcesses real;

    void SetUp() override {
        Driver::SetUp();
        session.host.files.Remove(compiler);
        std::filesystem::create_symlink(BLITZCC_FILE, compiler);
        gHost.processes = &real;
    }
    void TearDown() override {
        gHost.processes = &processes;
        Driver::TearDown();
    }
    frmDoc& Sample(const std::string& name) {
        return session.Open(name, QtFiles().Read(std::string(ZOLTO_SOURCE_ROOT) + "/examples/" + name));
    }
    // Waits until the child has ended, at most for a sensible time.
    void Finish() {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (ActiveForm()->ShellClass->Running()) {
            ASSERT_LT(std::chrono::steady_clock::now(), deadline) << "the child did not end";
            session.host.clock.Advance(50);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
};

TEST_F(BundledTest, ACheckPutsTheCaretOnTheError) {
    frmDoc& document = Sample("faulty.bb");
    dialogs.WillAnswer(MessageAnswer::Ok);
    Mod_Compiler::CheckForErrors(document.FullFilename);
    Finish();
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_NE(session.LastMessage().find("\r\n\r\nLine: 14, Column: "), std::string::npos)
        << session.LastMessage();
    EXPECT_EQ(dialogs.messages[0].title, "ZoltoBasic Compiling Error");
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 13);
    EXPECT_FALSE(progress);
}

TEST_F(BundledTest, ARunDeliversEveryLineThatTheProgramPrints) {
    frmDoc& document = Sample("guess.bb");
    Mod_Compiler::Compile(document.FullFilename, false);
    Finish();
    EXPECT_TRUE(dialogs.messages.empty()) << session.LastMessage();
    const auto has = [&](const std::string& start) {
        return std::count_if(output.begin(), output.end(),
                             [&](const auto& line) { return line.starts_with(start); });
    };
    EXPECT_EQ(has("200 rounds with numbers from 1 to 100"), 1);
    EXPECT_EQ(has("Way of guessing"), 1);
    for (const char* player : {"Any number", "A possible number", "The middle", "Steps"})
        EXPECT_EQ(has(player), 1);
    EXPECT_EQ(has("Rounds by number of tries, the middle"), 1);
    for (int tries = 1; tries <= 7; ++tries) EXPECT_EQ(has("   " + std::to_string(tries) + " *"), 1) << tries;
}

TEST_F(BundledTest, AnUnsavedProgramRunsAndGetsItsArguments) {
    Mod_File::NewFile();
    session.Type("Print CommandLine$()\r\n");
    gCurrentProject->CommandLine = "-level 3";
    Mod_Compiler::Compile("New", false);
    Finish();
    EXPECT_EQ(std::count(output.begin(), output.end(), "-level 3"), 1) << testing::PrintToString(output);
}

TEST_F(BundledTest, TheKeywordListIsMadeAnew) {
    const std::string keywords = session.host.Path("Conf/ZoltoBasic.lng");
    const std::string before = session.Bytes(keywords);
    session.host.files.Remove(keywords);
    dialogs.WillAnswer(MessageAnswer::Ok);
    Mod_Compiler::RefreshDefinitions("ZoltoBasic", session.host.Path("Compilers/ZoltoBasic"));
    EXPECT_EQ(session.LastMessage(), "Keyword definitions for this compiler successfully created !");
    EXPECT_EQ(session.Bytes(keywords), before);
}

}
