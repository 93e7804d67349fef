// The executable as an editor starts it: its lines, exit status and built programs.
// Also the parts of the driver: the command line, the libraries' declarations and bundles.
#include "Programs.h"

#include "commands/CommandTable.h"

#include <sys/wait.h>

namespace blitz::test {
namespace {

class DriverTest : public ProgramTest {
protected:
    /// Runs a shell command; output and status are kept.
    std::string shell(const std::string& command) {
        std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
        std::string text;
        char part[4096];
        for (size_t count; (count = std::fread(part, 1, sizeof part, pipe)) > 0;) text.append(part, count);
        status_ = WEXITSTATUS(pclose(pipe));
        return text;
    }

    std::string compiler(const std::string& arguments) { return shell(BLITZCC_PROGRAM " " + arguments); }

    /// The lines behind the banner of three, each of which must end in CR LF.
    std::string behindBanner(const std::string& text) {
        std::vector<std::string> lines;
        for (size_t from = 0, to; from < text.size(); from = to + 2) {
            to = text.find("\r\n", from);
            if (to == std::string::npos) return "no line end";
            lines.push_back(text.substr(from, to - from));
        }
        if (lines.size() < 3 || lines[0].rfind("BlitzCC", 0) != 0 || lines[1].rfind("(C)", 0) != 0 ||
            lines[2].rfind("Compiling \"", 0) != 0)
            return "no banner";
        std::string rest;
        for (size_t i = 3; i < lines.size(); ++i) rest += lines[i] + "\n";
        return rest;
    }

    int status_ = 0;
};

TEST_F(DriverTest, ChecksRunsAndReports) {
    const std::string path = put("my prog.bb", "Print \"a\"\nWrite \"b:c\"\nEnd\n");
    const std::string running = "Parsing...\nChecking...\nGenerating...\nLinking...\nExecuting...\n";
    EXPECT_EQ(behindBanner(compiler("-c '" + path + "'")), "Parsing...\nChecking...\nNo errors found\n");
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(behindBanner(compiler("'" + path + "'")), running + "a\nb:c\n");
    EXPECT_EQ(status_, 0);
    put("bad.bb", "a=1\n  foo\n");
    EXPECT_EQ(behindBanner(shell("cd " + folder_ + " && " BLITZCC_PROGRAM " -c bad.bb")),
              "Parsing...\n\"" + folder_ + "/bad.bb\":2:3:2:6:Function 'foo' not found\n");
    EXPECT_EQ(status_, 1);
    put("stops.bb", "Write \"x\"\nPrint 1/a\n");
    EXPECT_EQ(behindBanner(compiler(folder_ + "/STOPS.bb")),
              running + "x\nRuntime error in " + folder_ + "/stops.bb line 2. Division by zero\n");
    EXPECT_EQ(status_, 1);
    put("echo.bb", "Print CommandLine$()+\"|\"+Input$(\"? \")+\"|\"+Input$()\nDebugLog \"d\"\n");
    EXPECT_EQ(behindBanner(shell("printf 'in\\r\\n' | " BLITZCC_PROGRAM " -d " + folder_ + "/echo.bb p -q")),
              running + "? p -q|in|\nd\n");
}

TEST_F(DriverTest, RefusesWhatIsNoProgram) {
    EXPECT_NE(compiler("-z x.bb").find("Unknown switch -z\r\n"), std::string::npos);
    EXPECT_EQ(status_, 2);
    compiler("");
    EXPECT_EQ(status_, 2);
    for (const std::string& name : {folder_, folder_ + "/none.bb", std::string("/dev/null")}) {
        const std::string text = behindBanner(compiler("-c " + name));
        EXPECT_EQ(text.find(':'), std::string::npos) << text;
        EXPECT_EQ(text.find("Cannot open the program"), 0u) << text;
        EXPECT_EQ(status_, 1);
    }
    EXPECT_EQ(compiler("+k"), vocabulary());
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(compiler("--version").find("BlitzCC V"), 0u);
    EXPECT_NE(compiler("--help").find("-c"), std::string::npos);
}

TEST_F(DriverTest, BuiltProgramsRunByThemselves) {
    put("inc/part.bb", "Function part$() : Return \"part\" : End Function\n");
    const std::string main =
        put("main.bb", "Include \"INC\\Part.bb\"\nPrint part$()+CommandLine$()\nPrint 1/a\n");
    put("old", "keep");
    const std::string target = folder_ + "/made";
    EXPECT_EQ(behindBanner(compiler("-o " + target + " " + main)),
              "Parsing...\nChecking...\nCreating \"" + target + "\"...\n");
    EXPECT_EQ(status_, 0);
    std::filesystem::remove_all(folder_ + "/inc");
    EXPECT_EQ(shell(target + " a b"),
              "parta b\r\nRuntime error in " + main + " line 3. Division by zero\r\n");
    EXPECT_EQ(status_, 1);
    put("inc/part.bb", "Function part$()\n");
    compiler("-o " + folder_ + "/old " + main);
    EXPECT_EQ(status_, 1);
    EXPECT_EQ(get("old"), "keep");
    put("inc/part.bb", "Function part$() : End Function\n");
    compiler("-o " + folder_ + "/none/x " + main);
    EXPECT_EQ(status_, 1);
}

TEST_F(DriverTest, OutputShowsWhileTheProgramRuns) {
    const std::string path = put("endless.bb", "Print \"shown\"\nRepeat : a=a+1 : Forever\n");
    EXPECT_NE(shell("timeout 1 " BLITZCC_PROGRAM " " + path).find("shown\r\n"), std::string::npos);
    EXPECT_EQ(status_, 124);
}

TEST_F(DriverTest, CommandLinesAreTakenApart) {
    const CommandLine line = parseCommandLine({"-d", "-o", "out", "p.bb", "-x", "y"});
    EXPECT_EQ(line.mode, CommandLine::Mode::Build);
    EXPECT_TRUE(line.debug);
    EXPECT_EQ(line.target + line.file + line.arguments, "outp.bb-x y");
    EXPECT_EQ(parseCommandLine({"-o"}).mode, CommandLine::Mode::Wrong);
    EXPECT_EQ(parseCommandLine({"-c", "p.bb"}).mode, CommandLine::Mode::Check);
}

TEST_F(DriverTest, DamagedBundlesAreRefused) {
    put("main.bb", "Include \"b.bb\"\nInclude \"b.bb\"\n");
    put("b.bb", "Print 1\n");
    Sources sources;
    std::string reason;
    ASSERT_TRUE(sources.loadMain(folder_ + "/main.bb", reason));
    put("libs/a.decls", ".lib \"a\"\nApiOne(x)\n");
    compile(sources, folder_ + "/libs");
    const std::string bytes = sources.pack();
    Sources again;
    ASSERT_TRUE(again.unpack(bytes));
    ASSERT_EQ(again.files().size(), 2u);
    EXPECT_EQ(again.files()[1].text, "Print 1\n");
    EXPECT_EQ(again.libraries(), ".lib \"a\"\nApiOne(x)\n\n");
    EXPECT_EQ(again.include("b.bb", 0, reason), 1);
    EXPECT_EQ(again.include("b.bb", 0, reason), -1);
    for (const size_t length : {size_t{0}, size_t{3}, bytes.size() / 2, bytes.size() - 1})
        EXPECT_FALSE(Sources().unpack(std::string_view(bytes).substr(0, length))) << length;
}

}
}
