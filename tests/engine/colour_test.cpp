// Colours: a source and, below each line, the style of each of its bytes, with the letters of
// SourceTest::Styles; "." is plain text.
#include "engine/fixture/SourceTest.h"

#include "engine/ClsCompiler.h"
#include "engine/LineStyles.h"
#include "host/ErrorLog.h"

namespace {

class ColourTest : public SourceTest {
protected:
    struct Row {
        const char* line;
        const char* styles;
    };
    void Expect(const std::vector<Row>& rows) {
        std::vector<std::string> lines;
        for (const Row& row : rows) lines.emplace_back(row.line);
        OpenLines(lines);
        GoTo(static_cast<int>(rows.size()) - 1);
        ColourAll();
        for (int line = 0; line < static_cast<int>(rows.size()); ++line)
            EXPECT_EQ(Styles(line), rows[static_cast<std::size_t>(line)].styles) << Text(line);
    }
};

TEST_F(ColourTest, EachDeclarationColoursItsName) {
    Expect({
        {"Global g, gs$", "kkkkkk.g,,ggg"},
        {"Local n, m# = n * 1.5", "kkkkk.l,,ll,+,l,+,999"},
        {"Const c = 1", "kkkkk.c.+.9"},
        {"Dim arr(3)", "kkk.aaa,9,"},
        {"Type Rock", "kkkk.tttt"},
        {"Field x#, r.Rock", "kkkkk.tt,,tttttt"},
        {"End Type", "kkk.kkkk"},
        {"Function f$(n, p)", "kkkkkkkk.ff,l,.l,"},
        {"End Function", "kkk.kkkkkkkk"},
        {".start", "LLLLLL"},
        {"Field lost", "kkkkk....."},
        {"", ""},
    });
}

TEST_F(ColourTest, LiteralsCommentsAndBlocksKeepTheParsersStyles) {
    Expect({
        {"x = $1F + %101 ; note", "..+.999.+.9999.;;;;;;"},
        {"x = \"a\" ;! loud", "..+.sss.!!!!!!!"},
        {";[Block] one", "BBBBBBBBBBBB"},
        {";[End] two", "BBBBBBBBBB"},
        {";[Other]", ";;;;;;;;"},
        {"x, y : z", ".,,.,,,."}, // a separator lies under what follows,
        {"Local a = 1 ; behind", "kkkkk.l.+.9.;;;;;;;;"},
        {"", ""},
    });
}

TEST_F(ColourTest, NamesAreLookedUpInOrder) {
    Expect({
        {"Global both, only", "kkkkkk.gggg,,gggg"},
        {"Function f(both)", "kkkkkkkk.f,llll,"},
        {"both = only + f", "llll.+.gggg.+.f"},
        {"End Function", "kkk.kkkkkkkk"},
        {"both = only", "gggg.+.gggg"},
        {"Dim both(2)", "kkk.gggg,9,"}, // globals come before arrays
        {"Goto lab", "kkkk.LLL"},
        {"Goto nolab", "kkkk......"},
        {".lab", "LLLL"},
        {"Type Rock", "kkkk.tttt"},
        {"End Type", "kkk.kkkk"},
        {"x = New Rock", "..+.kkk.tttt"},
        {"x = Each Pebble", "..+.kkkk......."},
        {"Object.Rock", "kkkkkk,tttt"},
        {"Float# Float% Int", "kkkkkk.kkkkk..kkk"},
        {"", ""},
    });
}

TEST_F(ColourTest, AChainOfKnownFieldsIsOneRun) {
    const StrictMode strict;
    Expect({
        {"Type Rock", "kkkk.tttt"},
        {"Field next.Rock, x#, list[3]", "kkkkk.ttttttttt,,tt,,tttt,9,"},
        {"End Type", "kkk.kkkk"},
        {"Global a.Rock, b[4], i", "kkkkkk.gggggg,,g,9,,,g"},
        {"a\\next\\x# = 1", "ggggggggg.+.9"},
        {"a\\no\\x", "gxxxxx"},
        {"a\\next\\no", "ggggggxxx"},
        {"a\\list[i] = 2", "gggggg,g,.+.9"},
        {"b[i] = b[nope]", "g,g,.+.g,xxxx,"},
        {"i$ = 1", "gx.+.9"},
        {"miss$ miss.it", "xxxxx.xxxxxxx"},
        {"", ""},
    });
}

TEST_F(ColourTest, UndeclaredNamesAreBadInStrictModeOnly) {
    Expect({{"miss = 1", ".....+.9"}, {"_x 1e5", "......"}, {"", ""}});
    const StrictMode strict;
    Expect({{"miss = 1", "xxxx.+.9"}, {"_x 1e5", "xx.xxx"}, {"", ""}});
}

TEST_F(ColourTest, BracketsThatDoNotMatch) {
    Expect({
        {"(1)", ",9,"},
        {"(1]", ",9?"},
        {"(", "?"},
        {")", "?"},
        {"([1)]", ",,9??"},
        {"((1)", "?,9,"},
        {"", ""},
    });
    // Deeper than the stack: the oldest are lost, and nothing fails.
    const std::string deep(250, '(');
    OpenLines({deep, deep + std::string(250, ')')});
    ColourAll();
    EXPECT_EQ(Styles(0).size(), 250u);
    EXPECT_EQ(Styles(1).substr(0, 250), std::string(250, ','));
}

TEST_F(ColourTest, AMissingBracketIsShownForLongerWordsWithTheOptionOn) {
    const StrictMode strict;
    Expect({{"Random 5", "kkkkkk.9"}, {"", ""}});
    const Setting on(OptionsEdit::CheckForMissingBracesOnFunctions, 1);
    Expect({
        {"Random 5", "xxxxxx.9"},
        {"Random(5)", "kkkkkk,9,"},
        {"Rnd 5", "kkk.9"}, // short
        {"Abs 5", "kkk.9"}, // its parameter is a required one
        {"Dim a(1)", "kkk.a,9,"},
        {"a(Rnd)", "a,xxx,"}, // inside brackets the length does not matter
        {"", ""},
    });
}

TEST_F(ColourTest, SpellingFollowsTheDeclarationExceptUnderTheCaret) {
    OpenLines({"Global Score", "SCORE = score", "Type Rock", "Field Size", "End Type", "Local r.ROCK",
               "r\\SIZE = 1 : Goto TOP", ".Top"});
    ColourAll();
    EXPECT_EQ(Text(1), "Score = Score");
    EXPECT_EQ(Text(5), "Local r.Rock");
    EXPECT_EQ(Text(6), "r\\Size = 1 : Goto Top");
    EXPECT_FALSE(Mod_Sci::CanUndo());
    EXPECT_FALSE(gActiveDoc->Dirty);
    Mod_Sci::SetModEventMask(0);
    Replace(1, 0, 1, 5, "scORE");
    Mod_Parse::ColorLineLight(1, true); // the caret is at the word's end
    EXPECT_EQ(Text(1), "scORE = Score");
    const Setting off(OptionsEdit::FixVariableCase, 0);
    GoTo(0);
    Mod_Parse::ColorLineLight(1, true);
    EXPECT_EQ(Text(1), "scORE = Score");
}

TEST_F(ColourTest, AFunctionThatTheTableLacksIsAnInternalStop) {
    OpenLines({"x", "Function f()", "End Function"});
    host.ExpectErrorLog();
    gCurrentProject->Funkcii.RemovePoHandle("f", gCurrentProject->Funkcii.ItemHash("f")->Handle);
    Mod_Parse::ColorLineLight(1, true);
    EXPECT_EQ(gLastError.number, 18800);
    Mod_Parse::ColorUnparsedLineLight(1, true, "Function f()");
    EXPECT_EQ(gLastError.number, 11781);
    EXPECT_FALSE(Coloring);
}

TEST_F(ColourTest, AWordThatTheParserTookForANameIsNoFunction) {
    OpenLines({"Local a, Function f()", "Global Function g"});
    ColourAll();
    Mod_Parse::ColorUnparsedLineLight(0, true, "Local a, Function f()");
    EXPECT_EQ(gCurrentProject->Funkcii.Count(), 1);
    EXPECT_EQ(host.ErrorLog(), "");
}

TEST_F(ColourTest, LinesThatAreTooLongAreToldOfOnce) {
    host.ExpectErrorLog();
    std::string data = "Data 1";
    for (int i = 0; i < 1200; ++i) data += ",1";
    OpenLines({data, "x", data});
    const std::string log = host.ErrorLog();
    EXPECT_NE(log, "");
    EXPECT_EQ(log.find("Created"), log.rfind("Created"));
    GoTo(2, 4);
    Type("1");
    Leave(1);
    EXPECT_EQ(host.ErrorLog(), log);
}

TEST_F(SourceTest, BracketsNestAndChainsGoOnBehindThem) {
    OpenLines({"Type P", "Field T.P[3], hp, u.Unknown, b, c", "End Type", "Dim e.P(4)", "Local a.P",
               "e(Rnd(1))\\hp = 1", "a\\T.P[Rnd(1)]\\hp = 1"});
    ColourAll();
    EXPECT_EQ(Styles(1), "kkkkk.ttt,9,,,tt,,tt.......,,t,,t");
    EXPECT_EQ(Styles(5), "a,kkk,9,,aaa.+.9");
    EXPECT_EQ(Styles(6), "lllll,kkk,9,,lll.+.9");
}

// A layer of styles leaves gaps in which the styles below it show.
TEST_F(ColourTest, StylesBehindAGapAreNotShifted) {
    Open("abcdefgh");
    ColourAll();
    const std::string before = Styles(0);
    gLineStyles.Begin(0, 8, false);
    gLineStyles.Set(0, 2, STYLE_Number);
    gLineStyles.Set(5, 2, STYLE_Number);
    gLineStyles.Flush();
    EXPECT_EQ(Styles(0), "99" + before.substr(2, 3) + "99" + before.substr(7));
}

} // namespace
