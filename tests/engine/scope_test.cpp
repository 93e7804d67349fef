// Scope and indentation, read off the markers and the line above.
#include "engine/fixture/SourceTest.h"

namespace {

using namespace Mod_Parse;

class ScopeTest : public SourceTest {};

TEST_F(ScopeTest, AFunctionReachesToItsEnd) {
    OpenLines({"x", "Function f()", "Local a", "End Function", "y", "Function g$()", "Local b",
               "End Function : Function h()", "End Function", "Function i() : End Function"});
    const char* names[] = {MainProgram, "f", "f", MainProgram, MainProgram,
                           "g",         "g", "h", MainProgram, MainProgram};
    const char* shown[] = {MainProgram, "f", "f", "f", MainProgram, "g", "g", "h", "h", "i"};
    for (int line = 0; line < 10; ++line) {
        EXPECT_EQ(CurrentFunction(line), names[line]) << line;
        EXPECT_EQ(CurrentLocals == gCurrentProject->MainFunLocals, names[line] == std::string(MainProgram));
        EXPECT_EQ(CurrentLocals->ExistsHash("a"), names[line] == std::string("f")) << line;
        SetLocals(nullptr);
        EXPECT_EQ(CurrentFunctionForDisplay(line), shown[line]) << line;
        EXPECT_EQ(CurrentLocals, nullptr);
    }
    EXPECT_EQ(CurrentFunction(-1), MainProgram);
    EXPECT_EQ(CurrentFunctionForDisplay(-1), MainProgram);
}

TEST_F(ScopeTest, ATypeReachesToItsEndAndOutsideTheFieldsStay) {
    OpenLines({"x", "Type A", "Field f", "End Type", "Type B", "Field g"});
    const char* names[] = {"", "A", "A", "", "B", "B"};
    for (int line = 0; line < 6; ++line) EXPECT_EQ(CurrentType(line), names[line]) << line;
    EXPECT_TRUE(CurrentFields->ExistsHash("g"));
    EXPECT_EQ(CurrentType(3), "");
    EXPECT_TRUE(CurrentFields->ExistsHash("g"));
}

TEST_F(ScopeTest, TheEditedLineCountsAsItWasParsed) {
    OpenLines({"x", "Function f()", "Local a", "End Function"});
    GoTo(1, 9);
    Type("new");
    EXPECT_EQ(gActiveDoc->State.UnparsedLine, 1);
    EXPECT_EQ(Text(1), "Function newf()");
    EXPECT_EQ(CurrentFunction(2), "f");
    EXPECT_EQ(CurrentFunctionForDisplay(2), "f");
    Leave(0);
    EXPECT_EQ(CurrentFunction(2), "newf");
    EXPECT_TRUE(CurrentLocals->ExistsHash("a"));
}

TEST_F(ScopeTest, AScopeThatIsKeptComesBackWhole) {
    const auto locals = std::make_shared<clsHash>(), fields = std::make_shared<clsHash>();
    SetFunction("f", locals);
    SetType("t", fields);
    {
        const ScopeKept kept;
        ForgetScope();
        SetLocals(nullptr);
        SetFields(nullptr);
    }
    { const CurrentLineScope line; }
    EXPECT_FALSE(ColoringCurrentLine);
    EXPECT_EQ(CurrentFunctionName + CurrentTypeName, "ft");
    EXPECT_EQ(CurrentLocals, locals);
    EXPECT_EQ(CurrentFields, fields);
}

TEST_F(ScopeTest, NamesakesAreToldApartByTheirLine) {
    OpenLines({"Function f()", "Local a", "End Function", "Function f()", "Local b", "End Function"});
    EXPECT_EQ(CurrentFunction(1), "f");
    EXPECT_TRUE(CurrentLocals->ExistsHash("a") && !CurrentLocals->ExistsHash("b"));
    EXPECT_EQ(CurrentFunction(4), "f");
    EXPECT_TRUE(CurrentLocals->ExistsHash("b") && !CurrentLocals->ExistsHash("a"));
}

TEST_F(ScopeTest, ScopeQueriesLeaveTheTokensOfARunningPass) {
    OpenLines({"Function f()", "Print a"});
    std::string line = "one two three";
    const int count = Mod_Lexer::Tokenize(line, Mod_Lexer::FillLineBuffer(line));
    CurrentFunction(1);
    GetNextIndent(1);
    ASSERT_EQ(count, 3);
    EXPECT_EQ(Tokens[1].Text + Tokens[2].Text + Tokens[3].Text, "onetwothree");
}

TEST_F(ScopeTest, TheLevelBelowALine) {
    const struct {
        const char* line;
        int below; // the level of the line below, from 1
    } rows[] = {
        {"If a Then", 2},
        {"If a Then b", 1},
        {"If a", 2},
        {"Select x", 3},
        {"\tCase 1", 3},
        {"\tDefault", 3},
        {"For i = 1 To 2", 2},
        {"For i = 1 To 2 : Next", 1},
        {"\tNext", 2},
        {"Function f()", 2},
        {"End Function", 1},
        {"\tEnd If", 2},
        {"\tEnd Select", 2},
        {"End Type", 1},
        {"Else", 2},
        {"\tElseIf b", 3},
        {"      two and a half", 2},
        {"       three", 3},
        {"\"If\" ; If", 1},
        {"\t\t", 3},
    };
    const Setting off(OptionsEdit::AutoIndentType, 0);
    for (const auto& row : rows) {
        OpenLines({row.line, "x"});
        EXPECT_EQ(GetNextIndent(0), row.line == std::string("\t\t") ? 1 : row.below) << row.line;
    }
    EXPECT_EQ(GetNextIndent(-1), 1);
}

TEST_F(ScopeTest, BlankAndCommentLinesAskTheLineAbove) {
    OpenLines({"While a", "", "\t\t\t; comment", "\t\t  ", "x"});
    EXPECT_EQ(GetNextIndent(3), 2);
    OpenLines({"", "; only", "x"});
    EXPECT_EQ(GetNextIndent(1), 1);
}

TEST_F(ScopeTest, ALineThatIsNotParsedLosesItsClosingLevels) {
    OpenLines({"\t\tNext", "x"});
    EXPECT_EQ(GetNextIndent(0), 3);
    UnparseLine(0, false);
    EXPECT_EQ(GetNextIndent(0), 2);
}

} // namespace
