// The generator of Blitz Basic programs: exact lengths, the same bytes every time, blocks that close, and
// programs that the bundled compiler accepts.
#include "SourceGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::uint64_t fnv1a(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (unsigned char c : text) hash = (hash ^ c) * 0x100000001b3;
    return hash;
}

std::string program(int lines, std::uint64_t seed, bool lf = true, int functions = 0) {
    return generator::generate({lines, seed, lf, functions});
}

struct Line {
    std::size_t indent = 0;
    std::string first, second; // its first two words
    std::string text;
};

// The lines that are neither blank nor comments.
std::vector<Line> codeOf(const std::string& program) {
    std::istringstream input(program);
    std::vector<Line> lines;
    for (std::string text; std::getline(input, text);) {
        Line line{std::min(text.find_first_not_of('\t'), text.size()), "", "", text};
        std::istringstream(text) >> line.first >> line.second;
        if (!line.first.empty() && line.first[0] != ';') lines.push_back(line);
    }
    return lines;
}

// The word that opens the block which the line closes; "" when it closes none.
std::string closedBy(const Line& line) {
    if (line.first == "End") return line.second;
    if (line.first == "Next") return "For";
    if (line.first == "Wend") return "While";
    if (line.first == "Until") return "Repeat";
    return line.first == "EndIf" ? "If" : "";
}

bool opens(const Line& line, const Line& following) {
    static const std::vector<std::string> openers = {"Function", "Type", "For", "While", "Repeat", "Select"};
    // What follows the line of a block If is deeper; what follows a one-line If is not.
    if (line.first == "If") return following.indent > line.indent;
    return std::find(openers.begin(), openers.end(), line.first) != openers.end();
}

TEST(Generator, WritesExactlyTheLinesAskedFor) {
    for (int lines : {generator::leastLines, 81, 97, 150, 333, 1000, 5001})
        for (std::uint64_t seed : {1u, 2u, 3u, 77u}) {
            const std::string text = program(lines, seed);
            EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), lines) << "seed " << seed;
        }
    const std::string tiny = program(1, 1);
    EXPECT_EQ(std::count(tiny.begin(), tiny.end(), '\n'), generator::leastLines);
}

TEST(Generator, DependsOnNothingButItsOptions) {
    EXPECT_EQ(program(2000, 5), program(2000, 5));
    EXPECT_NE(program(2000, 5), program(2000, 6));
    // Measurements name a program by its options: a change of these bytes makes old numbers incomparable.
    EXPECT_EQ(fnv1a(program(2000, 5)), 10417548022633915275u);
}

TEST(Generator, EndsLinesAsAsked) {
    std::string crlf = program(300, 9, false);
    EXPECT_EQ(std::count(crlf.begin(), crlf.end(), '\r'), 300);
    crlf.erase(std::remove(crlf.begin(), crlf.end(), '\r'), crlf.end());
    EXPECT_EQ(crlf, program(300, 9, true));
}

TEST(Generator, HasTheSizeAndTheNumberOfFunctionsOfALargeSource) {
    auto functionsIn = [](const std::string& text) {
        const auto lines = codeOf(text);
        return std::count_if(lines.begin(), lines.end(), [](const Line& l) { return l.first == "Function"; });
    };
    const std::string large = program(52000, 1, false);
    EXPECT_GT(large.size(), 1'300'000u);
    EXPECT_LT(large.size(), 1'650'000u);
    EXPECT_NEAR(static_cast<double>(functionsIn(large)), 2080, 200);
    EXPECT_NEAR(static_cast<double>(functionsIn(program(20000, 1, true, 300))), 300, 60);
}

TEST(Generator, ClosesEveryBlockInOrder) {
    const std::vector<Line> lines = codeOf(program(20000, 11));
    std::vector<std::string> open;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const std::string closed = closedBy(lines[i]);
        if (!closed.empty()) {
            ASSERT_FALSE(open.empty()) << lines[i].text;
            ASSERT_EQ(open.back(), closed) << lines[i].text;
            open.pop_back();
        } else if (opens(lines[i], lines[i + 1]))
            open.push_back(lines[i].first);
    }
    EXPECT_EQ(open, std::vector<std::string>{"Function"}); // the last line was not looked at
    EXPECT_EQ(lines.back().text, "End Function");
}

#ifdef BLITZCC_FILE
TEST(Generator, WritesProgramsThatTheCompilerAccepts) {
    const std::string path = testing::TempDir() + "zolto_generated.bb";
    const std::string command = std::string("\"") + BLITZCC_FILE + "\" -c \"" + path + "\" > /dev/null";
    for (std::uint64_t seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
        std::ofstream(path, std::ios::binary)
            << program(static_cast<int>(seed * seed * 400), seed, seed % 2 == 0);
        EXPECT_EQ(std::system(command.c_str()), 0) << "seed " << seed;
    }
}
#endif

}
