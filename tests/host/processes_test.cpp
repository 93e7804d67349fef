// Real children of this host, with real pipes.
#include "host/qt/system/CommandText.h"
#include "host/qt/system/QtProcesses.h"
#include "support/FakeHost.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct ProcessesTest : testing::Test {
    FakeHost host;
    QtProcesses processes;
    bool pipeFailed = false;
    SystemError error;

    std::string Script(const std::string& text) {
        const std::string path = host.Put("my script.sh", "#!/bin/sh\n" + text);
        chmod(path.c_str(), 0755);
        return '"' + path + '"';
    }
    static std::string Drain(ChildProcess& child, ChildPipe pipe) {
        std::string all;
        for (int round = 0; round < 2000; ++round) {
            int count = 0;
            std::string bytes;
            child.BytesWaiting(pipe, count);
            if (count > 0) child.Read(pipe, count, bytes);
            all += bytes;
            if (count == 0 && child.HasEnded()) break;
            usleep(2000);
        }
        return all;
    }
};

TEST_F(ProcessesTest, OutputComesWithWindowsLineEndsWhateverTheChildWrote) {
    const auto child = processes.Start(
        {Script("printf 'a\\nb\\r\\nc\\r'; sleep 0.1; printf '\\nlast'; printf 'oops\\n' >&2; pwd; nice"),
         "/"},
        pipeFailed, error);
    ASSERT_TRUE(child) << error.text;
    EXPECT_EQ(Drain(*child, ChildPipe::Output), "a\r\nb\r\nc\r\nlast/\r\n10\r\n");
    EXPECT_EQ(Drain(*child, ChildPipe::Error), "oops\r\n");
    EXPECT_FALSE(child->Close());
}

TEST_F(ProcessesTest, AChildHasNotEndedBeforeItsOutputIsRead) {
    const std::string pid = host.Path("pid");
    const auto child =
        processes.Start({Script("echo last words; echo $$ > '" + pid + "'"), ""}, pipeFailed, error);
    ASSERT_TRUE(child) << error.text;
    const auto runs = [&] {
        if (host.files.Kind(pid) != PathKind::File || host.files.Read(pid).empty()) return true;
        return kill(std::stoi(host.files.Read(pid)), 0) == 0;
    };
    bool ended = false;
    for (int round = 0; round < 500 && runs() && !ended; ++round, usleep(10000)) ended = child->HasEnded();
    EXPECT_FALSE(ended || child->HasEnded());
    EXPECT_EQ(Drain(*child, ChildPipe::Output), "last words\r\n");
    EXPECT_TRUE(child->HasEnded());
}

TEST_F(ProcessesTest, AFloodComesInBoundedPortionsAndWhole) {
    const auto child = processes.Start({Script("head -c 3000000 /dev/zero"), ""}, pipeFailed, error);
    ASSERT_TRUE(child) << error.text;
    EXPECT_EQ(Drain(*child, ChildPipe::Output).size(), 3000000u);
}

TEST_F(ProcessesTest, AChildThatDoesNotReadNeverBlocksTheWriter) {
    const auto child = processes.Start({Script("sleep 60"), ""}, pipeFailed, error);
    ASSERT_TRUE(child) << error.text;
    const std::string text(1 << 20, 'x');
    int written = -1, total = 0;
    do {
        ASSERT_FALSE(child->Write(text, written));
        total += written;
    } while (written > 0);
    EXPECT_GT(total, 0);
    EXPECT_LT(total, 1 << 20);
}

TEST_F(ProcessesTest, AKillTakesEverythingThatTheChildStarted) {
    const std::string pids = host.Path("pids");
    const auto child =
        processes.Start({Script("echo nobody reads this; for i in 1 2 3; do (sleep 300 & echo $! >> '" +
                                pids + "'; sleep 300) & done; wait"),
                         ""},
                        pipeFailed, error);
    ASSERT_TRUE(child) << error.text;
    std::vector<pid_t> started;
    for (int round = 0; round < 500 && started.size() < 3; ++round, usleep(10000)) {
        started.clear();
        if (host.files.Kind(pids) != PathKind::File) continue;
        std::istringstream lines(host.files.Read(pids));
        for (pid_t pid = 0; lines >> pid;) started.push_back(pid);
    }
    ASSERT_EQ(started.size(), 3u);
    EXPECT_FALSE(child->Kill());
    for (int round = 0; round < 500 && !child->HasEnded(); ++round) usleep(10000);
    EXPECT_TRUE(child->HasEnded());
    // Each is gone, or a dead entry that no one has collected yet; on a busy machine it takes them a while to
    // die.
    const auto state = [&](pid_t pid) {
        try {
            const std::string line = host.files.Read("/proc/" + std::to_string(pid) + "/stat");
            return line.substr(line.rfind(')') + 2, 1);
        } catch (...) {
            return std::string("Z");
        }
    };
    for (const pid_t pid : started) {
        for (int round = 0; round < 500 && state(pid) != "Z"; ++round) usleep(10000);
        EXPECT_EQ(state(pid), "Z") << pid;
    }
}

TEST_F(ProcessesTest, AStartThatFailsSaysWhy) {
    EXPECT_FALSE(processes.Start({"/no/such/program -x", ""}, pipeFailed, error));
    EXPECT_FALSE(pipeFailed);
    EXPECT_EQ(error.number, ENOENT);
    EXPECT_EQ(error.text, "/no/such/program: No such file or directory");
    EXPECT_FALSE(processes.Start({Script("exit 0"), "/no/such/folder"}, pipeFailed, error));
    EXPECT_EQ(error.number, ENOENT);
    EXPECT_EQ(processes.StartDetached("").number, EINVAL);
    EXPECT_FALSE(processes.RunIntoFile("/no/such/program", host.Path("out"), 1000));
}

TEST_F(ProcessesTest, AWindowsProgramWithoutItsRunnerIsExplained) {
    const std::string path = host.Put("tool.exe", "MZ rest");
    chmod(path.c_str(), 0755);
    const std::string oldPath = getenv("PATH");
    setenv("PATH", "/nowhere", 1);
    EXPECT_FALSE(processes.Start({path, ""}, pipeFailed, error));
    setenv("PATH", oldPath.c_str(), 1);
    EXPECT_NE(error.text.find("is a Windows program"), std::string::npos) << error.text;
}

TEST_F(ProcessesTest, OutputGoesToAFileAndALongRunIsLeftAlone) {
    const std::string out = host.Put("out.txt", "the longer output of a run before");
    EXPECT_TRUE(processes.RunIntoFile(Script("echo keywords"), out, 5000));
    EXPECT_EQ(host.files.Read(out), "keywords\n");
    EXPECT_FALSE(processes.RunIntoFile(Script("sleep 1"), out, 50));
}

TEST_F(ProcessesTest, AProgramRunsInTheTerminalThatIsThere) {
    const std::string seen = host.Path("seen");
    const std::string program = Script("echo ran \"$1\" in $PWD >> '" + seen + "'");
    const std::string folder = host.Path("bin"); // this machine's own terminals are not in it
    host.files.MakeFolders(folder);
    const auto terminal = [&](const std::string& name, const std::string& option) {
        const std::string path =
            host.Put("bin/" + name, "#!/bin/sh\necho " + name + " >> '" + seen + "'\n" +
                                        (option.empty() ? "" : "[ \"$1\" = " + option + " ] && shift\n") +
                                        "\"$@\" </dev/null >/dev/null\n");
        chmod(path.c_str(), 0755);
    };
    const std::string oldPath = getenv("PATH");
    setenv("PATH", folder.c_str(), 1);
    unsetenv("TERMINAL");
    EXPECT_FALSE(processes.HasTerminal());
    ASSERT_EQ(symlink("/bin/sh", (folder + "/sh").c_str()), 0);
    for (const auto& [name, option] :
         {std::pair{"xdg-terminal-exec", ""}, {"x-terminal-emulator", "-e"}, {"gnome-terminal", "--"}}) {
        terminal(name, option);
        if (option == std::string("--")) setenv("TERMINAL", name, 1);
        host.files.Write(seen, "");
        ASSERT_TRUE(processes.HasTerminal());
        ASSERT_FALSE(processes.StartInTerminal({program + " \"a b\"", "/"}));
        const std::string wanted = std::string(name) + "\nran a b in /\n";
        for (int round = 0; round < 500 && host.files.Read(seen) != wanted; ++round) usleep(10000);
        EXPECT_EQ(host.files.Read(seen), wanted);
    }
    unsetenv("TERMINAL");
    setenv("PATH", oldPath.c_str(), 1);
}

TEST(CommandTextTest, DoubleQuotesHoldArgumentsTogether) {
    using Arguments = std::vector<std::string>;
    EXPECT_EQ(SplitCommand("\"/a b/c\" -o  \"x y\"z \"\""), (Arguments{"/a b/c", "-o", "x yz", ""}));
    EXPECT_EQ(SplitCommand("  "), Arguments{});
    EXPECT_EQ(SplitCommand("\"open end"), Arguments{"open end"});
}

}
