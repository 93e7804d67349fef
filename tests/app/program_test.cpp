// The options that need no display.
#include "RunProgram.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

TEST(ProgramTest, TheVersionIsTheProjects) {
    const Outcome run = RunProgram(ZOLTO_FILE, {"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "Zolto " ZOLTO_VERSION "\n");
    EXPECT_EQ(run.errors, "");
}

TEST(ProgramTest, TheHelpNamesWhatItTakes) {
    const Outcome run = RunProgram(ZOLTO_FILE, {"a.bb", "--help"});
    EXPECT_EQ(run.status, 0);
    for (const char* word : {"/L:line", ".bb", ".zpf", "--help", "--version"})
        EXPECT_NE(run.output.find(word), std::string::npos) << word;
    EXPECT_EQ(run.errors, "");
}

// The end of a session sends a signal and waits for no answer.
TEST(ProgramTest, ATerminatedProgramEndsInOrder) {
    const QTemporaryDir home;
    const std::filesystem::path folder = home.path().toStdString();
    for (const char* below : {"Conf", "Styles", "Layout.mp"})
        std::filesystem::copy(std::filesystem::path(ZOLTO_FILE).parent_path() / below, folder / below,
                              std::filesystem::copy_options::recursive);
    const std::string source = folder / "a.bb", workspace = folder / "Conf/LastWorkspace.zws";
    std::ofstream(source) << "Print 1\n";
    std::filesystem::remove(workspace);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"ZOLTO_HOME", "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(name, home.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(ZOLTO_FILE, {QString::fromStdString(source)});
    const std::filesystem::path recent = folder / "zolto/Zolto.conf";
    const auto opened = [&] {
        std::ostringstream text;
        text << std::ifstream(recent).rdbuf();
        return text.str().find("a.bb") != std::string::npos;
    };
    for (int tries = 0; tries < 200 && !opened(); ++tries) process.waitForFinished(50);
    process.terminate();
    ASSERT_TRUE(process.waitForFinished(20000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    std::ostringstream text;
    text << std::ifstream(workspace).rdbuf();
    EXPECT_NE(text.str().find(source), std::string::npos);
}

}
