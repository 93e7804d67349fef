// The generator of Blitz Basic programs: exact lengths, the same bytes every time, and programs
// that the bundled compiler accepts, so that each block closes.
#include "SourceGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

std::uint64_t fnv1a(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (unsigned char c : text) hash = (hash ^ c) * 0x100000001b3;
    return hash;
}

std::string program(int lines, std::uint64_t seed, bool lf = true, int functions = 0) {
    return generator::generate({lines, seed, lf, functions});
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
    const auto functionsIn = [](const std::string& text) {
        int count = 0;
        for (auto at = text.find("\nFunction "); at != text.npos; at = text.find("\nFunction ", at + 1))
            ++count;
        return count;
    };
    const std::string large = program(52000, 1, false);
    EXPECT_GT(large.size(), 1'300'000u);
    EXPECT_LT(large.size(), 1'650'000u);
    EXPECT_NEAR(functionsIn(large), 2080, 200);
    EXPECT_NEAR(functionsIn(program(20000, 1, true, 300)), 300, 60);
}

#ifdef BLITZCC_FILE
TEST(Generator, WritesProgramsThatTheCompilerAccepts) {
    const std::string path = testing::TempDir() + "zolto_generated_" + std::to_string(getpid()) + ".bb";
    const std::string command = std::string("\"") + BLITZCC_FILE + "\" -c \"" + path + "\" > /dev/null";
    for (std::uint64_t seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
        std::ofstream(path, std::ios::binary)
            << program(static_cast<int>(seed * seed * 400), seed, seed % 2 == 0);
        EXPECT_EQ(std::system(command.c_str()), 0) << "seed " << seed;
    }
}
#endif

}
