// The block of comment lines after a source: what is written, what is read, and what it must never touch.
#include "documents/CompilerRegistry.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/Session.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/OptionsEdit.h"
#include "engine/SymbolLine.h"
#include "sci/Mod_Sci.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* Head = "\r\n;~Zolto Editor Parameters:";
constexpr int Bookmark = 4;
constexpr int BookmarkBit = 16;

struct ParametersTest : testing::Test {
    Session session;

    std::string Functions(int count) {
        std::string source;
        for (int i = 0; i < count; ++i) source += "Function F" + std::to_string(i) + "()\r\nEnd Function\r\n";
        return source;
    }
    std::vector<int> Bookmarks() {
        std::vector<int> lines;
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line)
            if (Mod_Sci::MarkerGet(line) & BookmarkBit) lines.push_back(line);
        return lines;
    }
    std::string Saved(frmDoc& document) {
        EXPECT_TRUE(Mod_File::SaveFile(&document));
        return session.Bytes(document.FullFilename);
    }
};

TEST_F(ParametersTest, TwentyEntriesFillALine) {
    const std::string source = Functions(21);
    frmDoc& document = session.Open("a.bb", source);
    for (int i = 0; i < 21; ++i) Mod_Sci::ToggleFold(2 * i);
    const std::string saved = Saved(document);
    EXPECT_EQ(saved, source + Head +
                         "\r\n;~F#0#2#4#6#8#A#C#E#10#12#14#16#18#1A#1C#1E#20#22#24#26"
                         "\r\n;~F#28\r\n;~C#ZoltoBasic");
    session.Close(document.FullFilename);
    frmDoc& again = session.Reopen(session.host.Path("a.bb"));
    EXPECT_EQ(Mod_Sci::GetText(), source);
    for (int i = 0; i < 21; ++i) EXPECT_EQ(Mod_Sci::GetFoldExpanded(2 * i), 0) << i;
    EXPECT_FALSE(again.Dirty);
    EXPECT_EQ(Saved(again), saved);
}

TEST_F(ParametersTest, AHiddenFoldMarginOpensTheFileUnfolded) {
    OptionsEdit::ShowFoldMargin = 0;
    session.Open("a.bb", Functions(2) + Head + "\r\n;~F#0\r\n;~C#ZoltoBasic");
    EXPECT_EQ(Mod_Sci::GetText(), Functions(2));
    EXPECT_NE(Mod_Sci::GetFoldExpanded(0), 0);
}

TEST_F(ParametersTest, TooManyBookmarksLeaveTheWholeBlockOut) {
    std::string source;
    for (int i = 0; i < 2001; ++i) source += "\r\n";
    frmDoc& document = session.Open("a.bb", source);
    for (int line = 0; line < 2000; ++line) Mod_Sci::MarkerAdd(line, Bookmark);
    const std::string full = Saved(document);
    std::size_t rows = 0;
    for (std::size_t at = 0; (at = full.find("\r\n;~B#", at)) != std::string::npos; ++at) ++rows;
    EXPECT_EQ(rows, 100u);
    Mod_Sci::MarkerAdd(2000, Bookmark);
    EXPECT_EQ(Saved(document), source);
}

TEST_F(ParametersTest, EachKindOfLineHasItsOwnSwitch) {
    const std::string source = TestData("parameters.bb");
    const std::string text = source.substr(0, source.find(Head));
    frmDoc& document = session.Open("a.bb", source);
    EXPECT_EQ(Mod_Sci::GetText(), text);
    EXPECT_EQ(Bookmarks(), (std::vector<int>{5, 9}));
    EXPECT_EQ(Mod_Sci::GetFoldExpanded(1), 0);
    EXPECT_EQ(Mod_Sci::GetFoldExpanded(5), 0);
    EXPECT_EQ(gCurrentProject->CommandLine, "-windowed 800 600");
    EXPECT_EQ(Saved(document), source);
    OptionsEdit::SaveFoldingState = 0;
    EXPECT_EQ(Saved(document), text + Head + "\r\n;~B#5#9\r\n;~L#-windowed 800 600\r\n;~C#ZoltoBasic");
    OptionsEdit::SaveCompilerCommandLine = 0;
    EXPECT_EQ(Saved(document), text + Head + "\r\n;~B#5#9");
    OptionsEdit::SaveBookmarks = 0;
    EXPECT_EQ(Saved(document), text);
}

TEST_F(ParametersTest, BookmarksAreReadWhateverTheSwitchOfTheWriter) {
    SaveNothingExtra();
    session.Open("a.bb", std::string("a=1\r\nb=2") + Head + "\r\n;~B#1");
    EXPECT_EQ(Bookmarks(), std::vector<int>{1});
}

TEST_F(ParametersTest, EntriesThatNoLineAnswersAreLeftOut) {
    session.Open("a.bb", std::string("a=1\r\nb=2") + Head +
                             "\r\n;~B#-1#zz#7FFFFFFF#FFFFFFFFFFFFFFFF##1\r\n;~F#0#1#99\r\n;~X#1\r\n;rest");
    EXPECT_EQ(Bookmarks(), (std::vector<int>{0, 1})); // what is no number reads as 0
    EXPECT_EQ(Mod_Sci::GetText(), "a=1\r\nb=2\r\n;~X#1\r\n;rest");
}

TEST_F(ParametersTest, AHeaderInsideTheTextBeginsTheBlockThere) {
    session.Open("a.bb", "a=1\r\nb=2\r\n;~Zolto Editor Parameters:\r\n;~B#0\r\nc=3\r\n");
    EXPECT_EQ(Mod_Sci::GetText(), "a=1\r\nb=2\r\nc=3\r\n");
    EXPECT_EQ(Bookmarks(), std::vector<int>{0});
    session.Open("b.bb", ";~Zolto Editor Parameters:\r\n;~B#0\r\nc=3"); // nothing precedes it
    EXPECT_EQ(Mod_Sci::GetText(), "\r\nc=3");
    session.Open("d.bb",
                 std::string("Global a") + Head + "\r\n;~C#x\r\nGlobal b\r\nFunction f()\r\nEnd Function");
    EXPECT_EQ(LineOf(*gCurrentProject->Globals.ItemHash("b")), 1); // which has moved unheard
    EXPECT_EQ(LineOf(*gCurrentProject->Funkcii.ItemHash("f")), 2);
    session.Open("e.bb", std::string("Type T") + Head + "\r\n;~C#x");
    EXPECT_TRUE(Mod_Sci::GetFoldLevel(0) & SC_FOLDLEVELHEADERFLAG);
    const std::string quoted = "Print \"x;~Zolto Editor Parameters:\"\r\n;~B#0\r\n"; // no line begins with it
    session.Open("c.bb", quoted);
    EXPECT_EQ(Mod_Sci::GetText(), quoted);
}

// Another program or a merge puts a line end or a second block after the block.
TEST_F(ParametersTest, TheLastOfSeveralBlocksCountsAndNoRoundTripAddsALine) {
    const std::string block = std::string(Head) + "\r\n;~B#1\r\n;~C#ZoltoBasic";
    const std::string first = std::string(Head) + "\r\n;~B#0\r\n;~L#old";
    const std::string lone = std::string(Head) + "\r\n;text";
    const struct {
        std::string bytes;
        std::string source;
    } rows[] = {{"a=1\r\nb=2" + first + block, "a=1\r\nb=2"},
                {"a=1\r\nb=2" + first + "\r\nc=3" + block + "\r\n", "a=1\r\nb=2\r\nc=3"},
                {"a=1\nb=2" + block + "\n", "a=1\nb=2"},
                {"a=1\r\nb=2" + lone + block, "a=1\r\nb=2" + lone}};
    for (const auto& row : rows) {
        std::string saved, bytes = row.bytes;
        for (const char* behind : {"\n", "", ""}) {
            const frmDoc& document = session.Open("a.bb", bytes);
            EXPECT_EQ(Mod_Sci::GetText(), row.source);
            EXPECT_EQ(Bookmarks(), std::vector<int>{1});
            EXPECT_EQ(gCurrentProject->CommandLine, "");
            bytes = Saved(*ActiveForm());
            EXPECT_TRUE(saved.empty() || saved == bytes) << bytes;
            saved = bytes;
            bytes += behind;
            session.Close(std::string(document.FullFilename));
        }
    }
}

TEST_F(ParametersTest, TheCompilerIsTakenFromTheLastLineAlone) {
    session.host.Put(
        "Conf/compilers.dat",
        "1\r\n2\r\n\"ZoltoBasic\"\r\n\"a\"\r\n\"\"\r\n#FALSE#\r\n\"Other\"\r\n\"b\"\r\n\"\"\r\n#FALSE#\r\n");
    session.host.Put("Conf/Other.lng", session.Bytes(session.host.Path("Conf/ZoltoBasic.lng")));
    gCompilers.RemoveAll();
    Mod_Main::LoadCompilers();
    const auto compiler = [&](const std::string& bytes) {
        const std::string path = session.Open("a.bb", bytes).FullFilename;
        const std::string name = gCurrentProject->Compiler;
        session.Close(path);
        return name;
    };
    EXPECT_EQ(compiler(std::string("a=1") + Head + "\r\n;~C#other"), "Other");
    EXPECT_EQ(compiler(std::string("a=1") + Head + "\r\n;~C#Other\r\n"), "Other");
    EXPECT_EQ(compiler(std::string("a=1") + Head + "\r\n;~C#Other\r\nb=2"), "ZoltoBasic");
    EXPECT_EQ(compiler(std::string("a=1") + Head + "\r\n;~C#Unknown"), "ZoltoBasic");
    EXPECT_EQ(compiler("a=1"), "ZoltoBasic");
}

TEST_F(ParametersTest, ASnippetGetsNoBlock) {
    const std::string path = session.host.Put("s.bb", "a=1\r\n");
    ASSERT_TRUE(Mod_File::OpenFile(path, false, true));
    EXPECT_EQ(Saved(*ActiveForm()), "a=1\r\n");
}

}
