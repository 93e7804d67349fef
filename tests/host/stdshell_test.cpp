// The runner of one child: how its output becomes lines, and what happens round its end.
#include "host/StdShell.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace {

struct StdShellTest : testing::Test {
    FakeHost host;
    std::unique_ptr<StdShell> shell = std::make_unique<StdShell>();
    std::vector<std::string> events;

    void SetUp() override {
        shell->ConsoleOutput = [this](const std::string& line) { events.push_back("out:" + line); };
        shell->ConsoleError = [this](const std::string& line) { events.push_back("err:" + line); };
        shell->ProcessComplete = [this](int code) { events.push_back("end:" + std::to_string(code)); };
        shell->ProcessStarted = [this] { events.push_back("start"); };
        shell->Error = [this](const std::string& text, int number) {
            events.push_back("error:" + std::to_string(number) + ":" + text);
        };
    }
    void Run(ChildScript script) {
        host.processes.WillStart(std::move(script));
        ASSERT_TRUE(shell->ExecuteNoCheck("program", ""));
        for (int poll = 0; poll < 100 && shell->Running(); ++poll) host.clock.Advance(50);
    }
    using Events = std::vector<std::string>;
};

TEST_F(StdShellTest, LinesAreCutAtCrLfAndWhatIsLeftAtTheEndIsALine) {
    Run({.output = {"one\r\ntwo\r\nth", "ree\r\n", "rest"}, .errors = {"oops\r\nno end"}});
    EXPECT_EQ(events, (Events{"start", "out:one", "out:two", "err:oops", "out:three", "out:", "out:rest",
                              "err:no end", "end:0"}));
    EXPECT_FALSE(shell->Running());
    EXPECT_EQ(host.clock.Timers(), 0u);
    // What was left of the last run doesn't begin the next one's first line.
    events.clear();
    Run({.output = {"new\r\n"}});
    EXPECT_EQ(events, (Events{"start", "out:new", "out:", "end:0"}));
}

TEST_F(StdShellTest, ALineEndThatIsSplitBetweenChunksIsNoLineEnd) {
    Run({.output = {"a\r", "\nb\r\n"}});
    EXPECT_EQ(events, (Events{"start", "out:a\r\nb", "out:", "end:0"}));
}

TEST_F(StdShellTest, ALineWithoutEndComesInPieces) {
    Run({.output = {std::string(StdShell::LongestLine, 'x'), "tail", "\r\n"}});
    ASSERT_EQ(events.size(), 5u);
    EXPECT_EQ(events[1].size(), 4 + StdShell::LongestLine);
    EXPECT_EQ(events[2], "out:tail");
}

TEST_F(StdShellTest, ASecondStartIsRefusedAndTheFirstGoesOn) {
    host.processes.WillStart({.output = {"x\r\n"}, .ends = false});
    ASSERT_TRUE(shell->Execute("first", "window", "/tmp"));
    EXPECT_FALSE(shell->Execute("second", "", ""));
    EXPECT_EQ(events.back(),
              "error:" + std::to_string(StdShell::ErrorAlreadyRunning) + ":Process already running.");
    EXPECT_EQ(host.processes.started, Events{"first"});
    EXPECT_TRUE(shell->Running());
    EXPECT_TRUE(shell->Terminate());
    EXPECT_TRUE(shell->Running()); // until the next poll
    host.clock.Advance(50);
    EXPECT_FALSE(shell->Running());
    EXPECT_EQ(events.back(), "end:0");
    EXPECT_FALSE(shell->Terminate());
    EXPECT_EQ(events.back(),
              "error:" + std::to_string(StdShell::ErrorNotRunning) + ":No process to terminate.");
}

TEST_F(StdShellTest, FailedStartsAreToldByEventAlone) {
    host.processes.WillStart({.pipeFails = true});
    EXPECT_FALSE(shell->Execute("a", "", ""));
    EXPECT_EQ(events.back(), "error:0:Cannot create pipe : Error 1213");
    host.processes.WillStart({.pipeFails = true});
    EXPECT_FALSE(shell->ExecuteNoCheck("a", ""));
    EXPECT_EQ(events.back(), "error:0:Cannot create pipe : Error 1214");
    host.processes.WillStart({.startError = {2, "No such file"}});
    EXPECT_FALSE(shell->ExecuteNoCheck("a", ""));
    EXPECT_EQ(events.back(), "error:2:No such file");
    EXPECT_FALSE(shell->Running());
}

TEST_F(StdShellTest, InputWaitsForRoomAndIsDroppedOnFailure) {
    host.processes.WillStart({.output = {"x", "y"}, .inputRoom = 3});
    ASSERT_TRUE(shell->ExecuteNoCheck("a", ""));
    shell->WriteConsole("hello");
    host.clock.Advance(50); // returns although the child takes only three bytes
    EXPECT_EQ(host.processes.input, "hel");
    host.clock.Advance(200);
    host.processes.WillStart({.output = {"x", "y"}, .writeError = {32, "Broken pipe"}, .inputRoom = 0});
    ASSERT_TRUE(shell->ExecuteNoCheck("b", ""));
    shell->WriteConsole("lost");
    events.clear();
    host.clock.Advance(100);
    EXPECT_EQ(events, (Events{"error:32:Broken pipe", "out:xy", "end:0"})); // reported once
}

TEST_F(StdShellTest, AHandlerMayEndTheShell) {
    host.processes.WillStart({.output = {"one\r\ntwo\r\n"}, .errors = {"oops\r\n"}});
    ASSERT_TRUE(shell->ExecuteNoCheck("a", ""));
    int calls = 0;
    shell->ConsoleOutput = [&](const std::string&) {
        ++calls;
        shell.reset();
    };
    host.clock.Advance(200);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(host.clock.Timers(), 0u);
}

}
