// The options that need no display.
#include "RunProgram.h"

#include <gtest/gtest.h>

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

}
