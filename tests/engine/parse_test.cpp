// What a line declares, rewrites, indents and folds, and that taking it back leaves nothing.
#include "engine/fixture/SourceTest.h"

#include "engine/Mod_Folding.h"
#include "host/qt/system/QtFiles.h"

namespace {

class ParseTest : public SourceTest {
protected:
    // The symbols of a source, without the entry of the main program.
    std::string Declared(const std::vector<std::string>& lines) {
        OpenLines(lines);
        return Symbols();
    }
    // Parses the open source line by line again, as if each line had been typed.
    static void Retype() {
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line) {
            Mod_Parse::UnparseLine(line, false);
            Mod_Parse::Parseline(line, false);
        }
    }
    static std::string Levels() {
        std::string text;
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line) {
            const auto level = Mod_Sci::GetFoldLevel(line);
            text += std::to_string((level & SC_FOLDLEVELNUMBERMASK) - SC_FOLDLEVELBASE);
            if (level & SC_FOLDLEVELHEADERFLAG) text += "+";
        }
        return text;
    }
};

TEST_F(ParseTest, ListsDeclareEachNameWithItsTypeAndBounds) {
    EXPECT_EQ(
        Declared({"Local a, b# = 1.5, c$ = (1, 2), d%", "Local e[3], f.Thing[4] : Local g", "Local h ="}),
        "Local of *Main Program* a @0 tip 1\n"
        "Local of *Main Program* b @0 tip 2\n"
        "Local of *Main Program* c @0 tip 3\n"
        "Local of *Main Program* d @0 tip 1\n"
        "Local of *Main Program* e @1 tip 1 array [3]\n"
        "Local of *Main Program* f @1 tip 5 type Thing array [4]\n"
        "Local of *Main Program* g @1 tip 1\n"
        "Local of *Main Program* h @2 tip 1\n");
    EXPECT_EQ(Declared({"Dim a(10), b$(5, c(1)), d(",
                        "Const x = 1, y# = 2 * (3, 4) : Global g.Thing, h., k[ : Const z",
                        "Const s$ = \"a,b\", t"}),
              "Const s @2 tip 3\nConst t @2 tip 1\n"
              "Const x @1 tip 1\nConst y @1 tip 2\n"
              "Dim a @0 tip 1 (10)\n"
              "Dim b @0 tip 3 (5, c(1))\nDim d @0 tip 1\n"
              "Global g @1 tip 5 type Thing\nGlobal h @1 tip 0\nGlobal k @1 tip 1\n");
}

TEST_F(ParseTest, FunctionsHoldTheirParametersAndLocals) {
    EXPECT_EQ(
        Declared({"Function f#(a, b$ = \"x\", c.Thing, d[2])", "Local n", "End Function", "Local n",
                  "Function g.Thing() ; note", "Local n : End Function : Local m", "Function h", "Function"}),
        "Function f @0 tip 2 (a, b$ = \"x\", c.Thing, d[2]) 4\n"
        "Function g @4 tip 5 type Thing () 0\n"
        "Function h @6 tip 1 () 0\n"
        "Local of *Main Program* m @5 tip 1\n"
        "Local of *Main Program* n @3 tip 1\n"
        "Local of f a @0 tip 1\n"
        "Local of f b @0 tip 3\n"
        "Local of f c @0 tip 5 type Thing\n"
        "Local of f d @0 tip 1 array [2]\n"
        "Local of f n @1 tip 1\n"
        "Local of g n @5 tip 1\n");
    EXPECT_EQ(Declared({"Function open(a, b"}), "Function open @0 tip 1 (a, b) 2\n"
                                                "Local of open a @0 tip 1\nLocal of open b @0 tip 1\n");
}

TEST_F(ParseTest, TypesLabelsAndIncludes) {
    EXPECT_EQ(Declared({"Field early", "Type Rock", "Field x#, link.Rock, list[3]", "End Type", "Field late",
                        ".start : Global x", "x = 1 : .no", " .blank", "Include \"a.bb\" : Include \"\"",
                        "Include file$", "Type", "Field"}),
              "Field of Rock link @2 tip 5 type Rock\n"
              "Field of Rock list @2 tip 1 array [3]\n"
              "Field of Rock x @2 tip 2\n"
              "Global x @5 tip 1\n"
              "Include a.bb @8 tip 1\n"
              "Label blank @7 tip 1\n"
              "Label start @5 tip 1\n"
              "Loose field early @0 tip 1\n"
              "Loose field late @4 tip 1\n"
              "Type Rock @1 tip 1\n");
}

TEST_F(ParseTest, WhatNamesNothingDeclaresNothing) {
    EXPECT_EQ(Declared({"Global", "Local 1", "Dim (3)", "Const = 2", "Field ,", "Function 1", "Type \"x\"",
                        "\"Global a\"", "; Global a", "Globals a", "x\"Global a"}),
              "");
    EXPECT_TRUE(Declared({"Local a, 1, b"}) == "Local of *Main Program* a @0 tip 1\n");
}

TEST_F(ParseTest, TheMarkersSayWhatALineIs) {
    OpenLines({"Print 1", "Function f(a)", "Local a, b", "End Function", "Type T", "Field x", "End Type",
               ";[block] one", ";[end]", "Stop", "Stop : Print", "Stop x", "Print : Stop", "Dim q(1)"});
    EXPECT_EQ(Lines(), "0 m3 m21 level 1024\n"
                       "1 m0 m3 m5 level 1024 header\n"
                       "2 m3 m14 level 1025\n"
                       "3 m0 m3 m7 level 1025\n"
                       "4 m2 m3 m5 m21 level 1024 header\n"
                       "5 m3 m8 m21 level 1025\n"
                       "6 m2 m3 m7 m21 level 1025\n"
                       "7 m3 m5 m21 m22 level 1024 header\n"
                       "8 m3 m7 m21 m22 level 1025\n"
                       "9 m3 m21 m23 level 1024\n"
                       "10 m3 m21 m23 level 1024\n"
                       "11 m3 m21 level 1024\n"
                       "12 m3 m21 m23 level 1024\n"
                       "13 m3 m8 m21 level 1024\n");
}

TEST_F(ParseTest, KeywordsGetTheirSpellingAndNamesKeepTheirs) {
    OpenLines({"fUNCTION eND(iF)", "end FUNCTION : END TYPE", "if X THEN y ELSE z", "end IF : end SELECT",
               ";[bLOCK] a", ";[END] b", "\"if\" ; if", "local Local2 = int(3)"});
    const char* expected[] = {"Function eND(iF)",   "End Function : End Type",
                              "If X Then y Else z", "End If : End Select",
                              ";[Block] a",         ";[End] b",
                              "\"if\" ; if",        "Local Local2 = Int(3)"};
    for (int line = 0; line < 8; ++line) EXPECT_EQ(Text(line), expected[line]);
}

TEST_F(ParseTest, BlocksIndentWhatStandsInThem) {
    const std::vector<std::string> indented{"If a Then",
                                            "\tIf a Then b",
                                            "\tSelect x",
                                            "\t\tCase 1",
                                            "\t\t\tFor i = 1 To 3 : Next",
                                            "\t\t\tFor i = 1 To 3",
                                            "\t\t\t\tx = 1",
                                            "\t\t\tNext",
                                            "\t\tDefault",
                                            "\t\t\tWhile b",
                                            "\t\t\tWend",
                                            "\tEnd Select",
                                            "Else ; note",
                                            "\tRepeat",
                                            "\tUntil c",
                                            "ElseIf d",
                                            "\tx = 2",
                                            "Else If e",
                                            "\tx = 3",
                                            "End If",
                                            "x = 4",
                                            "Type T",
                                            "\tField f",
                                            "End Type",
                                            "If z",
                                            "Function g()",
                                            "\tx = 5",
                                            "\tIf y",
                                            "End Function",
                                            "x = 6"};
    std::vector<std::string> flat;
    for (const std::string& line : indented) flat.push_back(line.substr(line.find_first_not_of('\t')));
    OpenLines(flat);
    EXPECT_EQ(Text(1), "If a Then b"); // loading leaves the text as it is
    Retype();
    for (int line = 0; line < static_cast<int>(indented.size()); ++line)
        EXPECT_EQ(Text(line), indented[static_cast<std::size_t>(line)]) << "line " << line;
    const Setting off(OptionsEdit::AutoIndentType, 0);
    Replace(4, 0, 4, 3, "");
    Mod_Parse::UnparseLine(4, false);
    Mod_Parse::Parseline(4, false);
    EXPECT_EQ(Text(4), "For i = 1 To 3 : Next");
}

TEST_F(ParseTest, ACommentThatBeginsALineStaysWhereItIs) {
    OpenLines({"If a", "; here", "\t\t;[Block", "b ; there", "EndIf"});
    Retype();
    EXPECT_EQ(Text(1), "; here");
    EXPECT_EQ(Text(3), "\tb ; there");
}

TEST_F(ParseTest, LevelsFollowThreeConstructsAndFunctionsStartAnew) {
    OpenLines({";[Block", "Type T", "Field a", "End Type", "Function f()", ";[Block", "x", ";[End", ";[End",
               "End Function", "x", ";[End", "x", "Type A", "Type B"});
    EXPECT_EQ(Levels(), "0+1+220+1+22110000+1+");
    Retype();
    EXPECT_EQ(Levels(), "0+1+220+1+22110000+1+");
}

TEST_F(ParseTest, AFoldIsRepairedDownToTheNextFunctionOnly) {
    OpenLines({"x", "a", "Type T", "End Type", "Function f()", "End Function", "b"});
    InsertLine(1, "Function g()");
    EXPECT_EQ(Levels(), "00+11+20+10");
    ExpectAsLoaded();
    DeleteLines(1, 1);
    EXPECT_EQ(Levels(), "000+10+10");
    ExpectAsLoaded();
}

TEST_F(ParseTest, TogglingAFoldTakesTheCaretOutOfIt) {
    int changed = 0;
    gEngineCalls.DocumentChanged = [&] { ++changed; };
    OpenLines({"x", "Function f()", "a", "b", "End Function"});
    GoTo(3);
    Mod_Folding::ToggleFold(1);
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 1);
    EXPECT_FALSE(Mod_Sci::GetLineVisible(3));
    EXPECT_EQ(changed, 1);
    const Setting off(OptionsEdit::FileDirtyOnBookmarks, 0);
    Mod_Folding::ToggleFold(1);
    EXPECT_TRUE(Mod_Sci::GetLineVisible(3));
    EXPECT_EQ(changed, 1);
}

TEST_F(ParseTest, LineEndsMakeNoDifference) {
    const std::string data = std::string(ZOLTO_SOURCE_ROOT) + "/tests/data/";
    std::string told[2];
    for (int i = 0; i < 2; ++i) {
        Open(QtFiles().Read(data + (i == 0 ? "lf.bb" : "crlf.bb")));
        ColourAll();
        told[i] = Symbols() + Lines();
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line) told[i] += Styles(line) + "\n";
    }
    EXPECT_EQ(told[0], told[1]);
    EXPECT_NE(told[0].find("Function RockSize"), std::string::npos);
}

} // namespace
