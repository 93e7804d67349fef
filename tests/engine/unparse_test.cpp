// Unparsing a line is the exact inverse of its parse, and symbols move between scopes.
#include "engine/fixture/SourceTest.h"

#include "engine/ParserState.h"
#include "host/qt/system/QtFiles.h"

namespace {

class UnparseTest : public SourceTest {
protected:
    static std::string Marked() {
        std::string text;
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line)
            if (const auto markers = Mod_Sci::MarkerGet(line))
                text += std::to_string(line) + ": " + std::to_string(markers) + "\n";
        return text;
    }
    // Takes a line back, checks what the tables hold without it, and parses it again.
    void Without(int line, const std::string& expected) {
        const std::string before = Symbols();
        Mod_Parse::UnparseLine(line, false);
        EXPECT_EQ(Symbols(), expected) << "without line " << line;
        Mod_Parse::Parseline(line, false);
        EXPECT_EQ(Symbols(), before) << "with line " << line;
    }
};

TEST_F(UnparseTest, NothingIsLeftOfAFile) {
    for (const char* name : {"lf.bb", "crlf.bb", "mixed.bb", "broken.bb", "windows1252.bb", "tabs.bb",
                             "nul.bb", "no_final_eol.bb", "utf8.bb"}) {
        Open(QtFiles().Read(std::string(ZOLTO_SOURCE_ROOT) + "/tests/data/" + name));
        EXPECT_NE(Marked(), "") << name;
        // Whatever scope the last pass left.
        SetFunction("RockSize");
        SetType("Rock");
        int refilled = 0;
        gEngineCalls.PuniLista = [&] { ++refilled; };
        Mod_Parse::UnParseFile();
        gEngineCalls.PuniLista = nullptr;
        EXPECT_EQ(Symbols(), "") << name;
        EXPECT_EQ(Marked(), "") << name;
        EXPECT_EQ(gCurrentProject->Funkcii.Count(), 1) << name; // the main program's
        EXPECT_EQ(refilled, 1);
        EXPECT_EQ(host.ErrorLog(), "") << name;
    }
}

TEST_F(UnparseTest, EveryLineOfAFileComesBackAsItWas) {
    Open(QtFiles().Read(std::string(ZOLTO_SOURCE_ROOT) + "/tests/data/crlf.bb"));
    const std::string symbols = Symbols(), lines = Lines();
    for (const int step : {1, 7, 17}) // in file order, and in jumps
        for (int i = 0, count = Mod_Sci::GetLineCount(); i < count; ++i) {
            const int line = i * step % count;
            Mod_Parse::UnparseLine(line, false);
            Mod_Parse::Parseline(line, false);
            ASSERT_EQ(Symbols(), symbols) << line;
            ASSERT_EQ(Lines(), lines) << line;
        }
}

TEST_F(UnparseTest, NamesakesStayAndTheOldTextIsWhatCounts) {
    OpenLines({"Global a", "Global a, b", "Local c"});
    Without(0, "Global a @1 tip 1\nGlobal b @1 tip 1\nLocal of *Main Program* c @2 tip 1\n");
    Without(1, "Global a @0 tip 1\nLocal of *Main Program* c @2 tip 1\n");
    Mod_Sci::SetModEventMask(0);
    Mod_Sci::ReplaceRange(0, 8, "Const zz");
    Mod_Parse::UnparseLineText(0, "Global a\r\n");
    EXPECT_EQ(Symbols(), "Global a @1 tip 1\nGlobal b @1 tip 1\nLocal of *Main Program* c @2 tip 1\n");
}

TEST_F(UnparseTest, AFunctionLineTakesAndGivesTheLocalsBelowIt) {
    OpenLines({"Local a", "Function f(p)", "Local b", "End Function", "Local c"});
    const std::string outside = "Local of *Main Program* a @0 tip 1\n";
    const std::string last = "Local of *Main Program* c @4 tip 1\n";
    Without(1, outside + "Local of *Main Program* b @2 tip 1\n" + last);
    const std::string f = "Function f @1 tip 1 (p) 1\n";
    Without(3, f + outside + "Local of f b @2 tip 1\nLocal of f c @4 tip 1\nLocal of f p @1 tip 1\n");
    // Inside another function, whose end is still below, and without any end.
    OpenLines({"Function f()", "Local a", "Function g()", "Local b", "End Function", "Local c"});
    Without(2, "Function f @0 tip 1 () 0\nLocal of *Main Program* c @5 tip 1\n"
               "Local of f a @1 tip 1\nLocal of f b @3 tip 1\n");
    Without(4, "Function f @0 tip 1 () 0\nFunction g @2 tip 1 () 0\n"
               "Local of f a @1 tip 1\nLocal of g b @3 tip 1\nLocal of g c @5 tip 1\n");
    Without(0, "Function g @2 tip 1 () 0\nLocal of *Main Program* a @1 tip 1\n"
               "Local of *Main Program* c @5 tip 1\nLocal of g b @3 tip 1\n");
}

TEST_F(UnparseTest, ATypeLineTakesAndGivesTheFieldsBelowIt) {
    OpenLines({"Type A", "Field a", "Type B", "Field b", "End Type", "Field c", "Type C", "End Type"});
    const std::string c = "Loose field c @5 tip 1\n";
    Without(0, "Field of B b @3 tip 1\nLoose field a @1 tip 1\n" + c + "Type B @2 tip 1\nType C @6 tip 1\n");
    Without(2, "Field of A a @1 tip 1\nField of A b @3 tip 1\n" + c + "Type A @0 tip 1\nType C @6 tip 1\n");
    Without(4, "Field of A a @1 tip 1\nField of B b @3 tip 1\nField of B c @5 tip 1\n"
               "Type A @0 tip 1\nType B @2 tip 1\nType C @6 tip 1\n");
    Without(1, "Field of B b @3 tip 1\n" + c + "Type A @0 tip 1\nType B @2 tip 1\nType C @6 tip 1\n");
    Without(5, "Field of A a @1 tip 1\nField of B b @3 tip 1\n"
               "Type A @0 tip 1\nType B @2 tip 1\nType C @6 tip 1\n");
}

TEST_F(UnparseTest, LinesAboveMoveASymbolWithoutTouchingIt) {
    OpenLines({"x", "Global a", "x"});
    const SymbolPointer record = gCurrentProject->Globals.ItemHash("a");
    Replace(0, 0, 0, 0, "1\r\n2\r\n3\r\n");
    EXPECT_EQ(gCurrentProject->Globals.ItemHash("a"), record);
    EXPECT_EQ(gCurrentProject->Globals.ItemHandle("A", 4, SciWndData), record);
    EXPECT_EQ(gCurrentProject->Globals.ItemHandle("A", 1, SciWndData), nullptr);
    EXPECT_EQ(gCurrentProject->Globals.ItemHandle("A", 4, SciWndData + 1), nullptr);
}

// No text is a failure, and whatever a line declares, it can be taken back and parsed again.
TEST_F(UnparseTest, WhatNobodyMeansToWriteIsTakenBackToo) {
    for (const char* line :
         {"Global a, Function f() : End Function", "Local a,", "Local Function",
          "Function f() : End Function", "End Function Function g()", "Local a : Function h() : Local b",
          "Field a : End type : Field b", "Function k() Function K()", "Type T : Field q : end TYPE",
          "Dim g(Rnd(1, 2), 3), h(1)", "Dim g(",
          "Include \"m\xF6\xE4\xFC ~~~~~~~~~~~~~~~~~~~~~~~~~~~~\" : Const c", "Print \"a\tFunction z\""}) {
        OpenLines({"Function outer()", "Type Outer", "Field f", line, "Local below", "Field under",
                   "End Type", "End Function", "Local last"});
        ColourAll();
        const std::string before = Symbols(), lines = Lines();
        Mod_Parse::UnparseLine(3, false);
        EXPECT_EQ(Symbols().find("@3"), std::string::npos) << line << Symbols();
        Mod_Parse::Parseline(3, false);
        EXPECT_EQ(Symbols(), before) << line;
        EXPECT_EQ(Lines(), lines) << line;
        EXPECT_EQ(host.ErrorLog(), "") << line;
    }
}

TEST_F(UnparseTest, ALooseFieldGoesUnderAnotherSpelling) {
    OpenLines({"Const y, LINK", "x = 1"});
    InsertLine(1, "Field x#, link#");
    ColourAll(); // gives the field the spelling of the constant
    EXPECT_EQ(Text(1), "Field x#, LINK#");
    ExpectAsLoaded();
    DeleteLines(1, 1);
    EXPECT_EQ(Symbols(), "Const LINK @0 tip 1\nConst y @0 tip 1\n");
}

TEST_F(UnparseTest, WhatTheTablesTellFollowsTheSpellingOfTheLine) {
    OpenLines({"Function f(a = rnd(1), b[abs(2)])", "End Function", "Const most = 1", "Function MOST()"});
    ColourAll();
    EXPECT_EQ(Text(2), "Const MOST = 1");
    EXPECT_EQ(Symbols(), "Const MOST @2 tip 1\nFunction f @0 tip 1 (a = Rnd(1), b[Abs(2)]) 2\n"
                         "Function MOST @3 tip 1 () 0\nLocal of f a @0 tip 1\n"
                         "Local of f b @0 tip 1 array [Abs(2)]\n");
}

TEST_F(UnparseTest, AFunctionNamedLikeAKeywordDoesNotHideDeclarations) {
    OpenLines({"Function local()", "End Function", "Local a", "Global b"});
    ColourAll(); // gives "Local" the spelling of the function
    Mod_Parse::UnParseFile();
    EXPECT_EQ(Symbols(), "");
}

TEST_F(UnparseTest, ARenamedFileIsFollowedInTheTablesOfItsProject) {
    OpenLines({"Global a", "Type T", "End Type", "Dim d(1)", ".l", "Const c = 1", "Include \"x.bb\"",
               "Function f()"});
    UpdateVarFileNames(gActiveDoc->Filename, "new.bb");
    const ClsProject& project = *gCurrentProject;
    for (const clsHash* table : {&project.Globals, &project.Types, &project.Arrays, &project.Labels,
                                 &project.Constants, &project.Includes}) {
        ASSERT_EQ(table->Count(), 1);
        EXPECT_EQ(table->Items()[0]->File, "new.bb");
    }
    UpdateVarFileNames("other.bb", "wrong.bb");
    EXPECT_EQ(project.Globals.Items()[0]->File, "new.bb");
}

} // namespace
