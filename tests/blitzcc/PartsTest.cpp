// The smaller parts: numbers as text, the search for files, declarations of libraries, the output.
#include "Programs.h"
#include "generate/Decls.h"
#include "machine/Output.h"
#include "parse/Numbers.h"

#include <limits>
#include <random>
#include <unistd.h>

namespace blitz::test {
namespace {

TEST(NumbersTest, FloatsAreWrittenWithSixDigits) {
    EXPECT_EQ(floatToText(0), "0.0");
    EXPECT_EQ(floatToText(0.1f), "0.1");
    EXPECT_EQ(floatToText(99999.99f), "100000.0");
    EXPECT_EQ(floatToText(1234.5678f), "1234.57");
    EXPECT_EQ(floatToText(-0.0001f), "-0.0001");
    EXPECT_EQ(floatToText(0.00012345f), "0.00012345");
    EXPECT_EQ(floatToText(99999992.0f), "1e+008");
    EXPECT_EQ(floatToText(std::numeric_limits<float>::max()), "3.40282e+038");
    EXPECT_EQ(floatToText(std::numeric_limits<float>::quiet_NaN()), "NaN");
}

TEST(NumbersTest, TextsOfFloatsReadBackNearly) {
    std::mt19937 random(7);
    for (int i = 0; i < 20'000; ++i) {
        const float value = std::ldexp(static_cast<float>(random()) / 4294967296.0f - 0.5f,
                                       static_cast<int>(random() % 60) - 30);
        ASSERT_NEAR(textToFloat(floatToText(value)), value, std::fabs(value) * 1e-5f) << floatToText(value);
    }
}

TEST(NumbersTest, TextsAreReadAsFarAsTheyAreNumbers) {
    EXPECT_EQ(textToInt(" 12x"), 12);
    EXPECT_EQ(textToInt("-7.9"), -7);
    EXPECT_EQ(textToInt("+-3"), 0);
    EXPECT_EQ(textToInt(""), 0);
    EXPECT_FLOAT_EQ(textToFloat(" -1.5e2z"), -150.0f);
    EXPECT_FLOAT_EQ(textToFloat("inf"), 0.0f);
    EXPECT_FLOAT_EQ(textToFloat("0x10"), 0.0f);
}

TEST(NumbersTest, FloatsRoundToEvenAndSaturate) {
    EXPECT_EQ(floatToInt(0.5f), 0);
    EXPECT_EQ(floatToInt(1.5f), 2);
    EXPECT_EQ(floatToInt(-2.5f), -2);
    EXPECT_EQ(floatToInt(3e9f), INT32_MIN);
    EXPECT_EQ(floatToInt(std::numeric_limits<float>::quiet_NaN()), INT32_MIN);
}

class SourcesTest : public ProgramTest {};

TEST_F(SourcesTest, FilesAreFoundWithoutRegardToCase) {
    put("Media/Levels/One.bb", "x");
    const std::string wanted = folder_ + "/Media/Levels/One.bb";
    EXPECT_EQ(findFile(wanted), wanted);
    EXPECT_EQ(findFile(folder_ + "/MEDIA\\levels/one.BB"), wanted);
    EXPECT_EQ(findFile(folder_ + "\\media\\..\\media\\levels\\one.bb"),
              folder_ + "/Media/../Media/Levels/One.bb");
    EXPECT_EQ(findFile(folder_ + "/media/two.bb"), "");
    EXPECT_EQ(targetPath(folder_ + "/media/new.txt"), folder_ + "/Media/new.txt");
    EXPECT_EQ(targetPath(folder_ + "/none/new.txt"), folder_ + "/none/new.txt");
    put("Media/one.bb", "lower");
    put("Media/ONE.bb", "upper");
    EXPECT_EQ(findFile(folder_ + "/Media/one.bb"), folder_ + "/Media/one.bb") << "the exact name goes first";
    EXPECT_EQ(findFile(folder_ + "/Media/One.bb"), folder_ + "/Media/ONE.bb") << "else always the same one";
}

TEST_F(SourcesTest, LinksToOneFileAreOneFile) {
    put("main.bb", "");
    put("a.bb", "Global a");
    std::filesystem::create_symlink(folder_ + "/a.bb", folder_ + "/b.bb");
    EXPECT_EQ(check("Include \"a.bb\" : Include \"b.bb\" : Include \"./a.bb\""), "");
}

TEST_F(SourcesTest, IncludesPreferTheFolderOfTheIncludingFile) {
    put("lib/one.bb", "Include \"two.bb\" : Include \"three.bb\"");
    put("lib/two.bb", "Const WHO=1");
    put("two.bb", "Const WHO=2");
    put("three.bb", "Const OTHER=3");
    EXPECT_EQ(run("Include \"lib/one.bb\" : Print WHO+OTHER"), "4\n");
}

TEST(DeclsTest, LinesAreTakenApart) {
    Decls decls;
    decls.readText("; comment\n.lib \"one.dll\"\nA%(x%,y#,z$,p*):\"_A@16\"\nB#()\r\n.lib \"two.dll\"\nC$ ( "
                   "s$ ) : \"c\"\nD(\n(x)\n");
    const LibraryFunction* const a = decls.find("a");
    ASSERT_TRUE(a);
    EXPECT_EQ(a->library, "one.dll");
    EXPECT_EQ(a->command.parameters,
              (std::vector<ValueKind>{ValueKind::Int, ValueKind::Float, ValueKind::String, ValueKind::Int}));
    ASSERT_TRUE(decls.find("b"));
    EXPECT_EQ(decls.find("b")->command.result, ValueKind::Float);
    EXPECT_EQ(decls.find("b")->command.required, 0u);
    ASSERT_TRUE(decls.find("c"));
    EXPECT_EQ(decls.find("c")->library, "two.dll");
    EXPECT_EQ(decls.find("c")->command.parameters.size(), 1u);
    EXPECT_FALSE(decls.find("d"));
}

TEST(OutputTest, ManyBytesPassThroughAPipeInOrder) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    std::string received;
    std::thread reader([&] {
        char part[1000];
        for (ssize_t count; (count = read(ends[0], part, sizeof part)) > 0;)
            received.append(part, static_cast<size_t>(count));
    });
    std::string expected;
    {
        Output output(ends[1]);
        for (int i = 0; i < 60'000; ++i) {
            output.line(std::to_string(i));
            expected += std::to_string(i) + "\r\n";
            if (i % 7000 == 0) output.flush();
        }
        output.write("last");
        expected += "last\r\n";
    }
    close(ends[1]);
    reader.join();
    close(ends[0]);
    EXPECT_EQ(received, expected);
}

}
}
