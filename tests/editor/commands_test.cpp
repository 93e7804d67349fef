// The editing commands: the lines they change, the text they write, one undo step each, and tables equal to a
// fresh load afterwards.
#include "engine/fixture/SourceTest.h"

#include "editor/Mod_SciFun_edit.h"
#include "host/Text.h"

namespace {

using namespace Mod_Parse;
using namespace Mod_SciFun;
using Lines_ = std::vector<std::string>;

// Every command is checked in both kinds of files.
class EditCommandsTest : public SourceTest, public testing::WithParamInterface<const char*> {
protected:
    frmDoc& OpenSource(const Lines_& lines) {
        std::string text;
        for (const std::string& line : lines) text += (&line == &lines.front() ? "" : GetParam()) + line;
        frmDoc& document = Open(text);
        before_ = Mod_Sci::GetText();
        return document;
    }
    static void SelectLines(int first, int last, int lastColumn) {
        Mod_Sci::SetSel(Mod_Sci::PositionFromLine(first), Mod_Sci::PositionFromLine(last) + lastColumn);
    }
    // Runs a command; its text, its state, and that one undo takes it back and one redo brings it again.
    void Expect(void (*command)(), const Lines_& lines) {
        command();
        Settle();
        EXPECT_TRUE(ActiveForm()->Dirty);
        std::string wanted;
        for (const std::string& line : lines) wanted += (&line == &lines.front() ? "" : GetParam()) + line;
        EXPECT_EQ(Mod_Sci::GetText(), wanted);
        ActiveForm()->m_oSubclass->DeactivateCheck();
        ExpectAsLoaded();
        const std::string after = Mod_Sci::GetText();
        Mod_Sci::Undo();
        Settle();
        EXPECT_EQ(Mod_Sci::GetText(), before_);
        EXPECT_FALSE(Mod_Sci::CanUndo());
        ActiveForm()->m_oSubclass->DeactivateCheck();
        ExpectAsLoaded();
        Mod_Sci::Redo();
        Settle();
        EXPECT_EQ(Mod_Sci::GetText(), after);
        ActiveForm()->m_oSubclass->DeactivateCheck();
        ExpectAsLoaded();
    }

private:
    std::string before_;
};

INSTANTIATE_TEST_SUITE_P(LineEnds, EditCommandsTest, testing::Values("\r\n", "\n"),
                         [](const auto& run) { return *run.param == '\r' ? "CrLf" : "Lf"; });

TEST_P(EditCommandsTest, CommentingTakesWholeLinesAndLeavesOneThatIsOnlyTouched) {
    OpenSource({"Global a", "  Global b", "", "Global c"});
    SelectLines(0, 3, 0);
    Expect(CommentSelection, {";Global a", ";  Global b", ";", "Global c"});
    EXPECT_EQ(Symbols(), "Global c @3 tip 1\n");
}

TEST_P(EditCommandsTest, TheLastLineIsTakenWithoutALineEnd) {
    OpenSource({"Global a", "Global b"});
    SelectLines(1, 1, 3);
    Expect(CommentSelection, {"Global a", ";Global b"});
}

TEST_P(EditCommandsTest, UncommentingTakesOneSignBehindTheBlanks) {
    const Setting noIndent(OptionsEdit::AutoIndentType, 0);
    OpenSource({"  ;x", ";;y", "z ; no", "\t;"});
    SelectLines(0, 3, 2);
    Expect(UnCommentSelection, {"  x", ";y", "z ; no", "\t"});
}

TEST_P(EditCommandsTest, AFoldAtTheSelectionsEndGoesAlong) {
    OpenSource({"Global a", "Function f()", "\tLocal b", "End Function", "Global c"});
    Mod_Sci::ToggleFold(1);
    SelectLines(0, 1, 4);
    Expect(CommentSelection, {";Global a", ";Function f()", ";\tLocal b", ";End Function", "Global c"});
    for (int line = 0; line < 5; ++line) EXPECT_TRUE(Mod_Sci::GetLineVisible(line)) << line;
}

TEST_P(EditCommandsTest, ABlockStandsOnLinesOfItsOwnAndFolds) {
    OpenSource({"a = 1", "Global b", "Global c"});
    SelectLines(1, 2, 0);
    const auto command = [] {
        BlockFromSelection();
        EXPECT_EQ(Mod_Sci::GetCurrentPos(), Mod_Sci::PositionFromLine(4));
    };
    Expect(command, {"a = 1", ";[Block]", "Global b", ";[End Block]", "Global c"});
    EXPECT_TRUE(Mod_Sci::GetFoldLevel(1) & SC_FOLDLEVELHEADERFLAG);
    EXPECT_EQ(Mod_Sci::GetFoldParent(3), 1);
}

TEST_P(EditCommandsTest, ABlockRoundTheWholeText) {
    OpenSource({"Global b", "Global c"});
    Mod_Sci::SelectAll();
    Expect(BlockFromSelection, {";[Block]", "Global b", "Global c", ";[End Block]"});
}

TEST_P(EditCommandsTest, LinesMoveWithTheCaretAndStopAtTheEnds) {
    const Setting noIndent(OptionsEdit::AutoIndentType, 0);
    OpenSource({"Global a", "Function f()", "Local b", "End Function", "tail"});
    GoTo(0, 3);
    Expect(MoveCurrentLineDown, {"Function f()", "Global a", "Local b", "End Function", "tail"});
    GoTo(4, 2);
    Settle();
    const std::string text = Mod_Sci::GetText();
    MoveCurrentLineDown();
    EXPECT_EQ(host.desktop.beeps, 1);
    EXPECT_EQ(Mod_Sci::GetText(), text);
    MoveCurrentLineUp();
    Settle();
    EXPECT_EQ(Text(3), "tail");
    EXPECT_EQ(Mod_Sci::GetCurrentPos(), Mod_Sci::PositionFromLine(3) + 2);
    GoTo(0);
    MoveCurrentLineUp();
    EXPECT_EQ(host.desktop.beeps, 2);
}

TEST_P(EditCommandsTest, IndentingChangesTheIndentationAlone) {
    const Setting tab(OptionsEdit::TabValue, 4);
    const Setting spaces(OptionsEdit::InsertSpacesForTabs, 1);
    OpenSource({"Global a", "  Global b", "Global c"});
    Mod_Sci::SetUseTabs(0);
    SelectLines(0, 2, 0);
    Expect(IndentSelection, {"    Global a", "      Global b", "Global c"});
    SelectLines(0, 1, 3);
    UnIndentSelection();
    UnIndentSelection(); // and no further than the margin
    EXPECT_EQ(Text(0), "Global a");
    EXPECT_EQ(Text(1), "Global b");
    EXPECT_EQ(Mod_Sci::GetSelText(), std::string("Global a") + GetParam() + "Global b");
}

TEST_P(EditCommandsTest, AutoIndentFollowsTheScopes) {
    const Setting tab(OptionsEdit::TabValue, 2);
    const Setting spaces(OptionsEdit::InsertSpacesForTabs, 1);
    const Lines_ wanted{"Function f(n)",    "  If n Then Print \"one line\"",
                        "  For i = 1 To 3", "    Select n",
                        "      Case 1",     "        If n Then ; comment",
                        "          x = 1",  "        Else If n Then",
                        "          x = 2",  "        Else",
                        "          x = 3",  "        End If",
                        "      Default",    "        End",
                        "    End Select",   "  Next",
                        "End Function",     "Type T",
                        "  Field a",        "End Type",
                        "Repeat",           "  x = 1",
                        "Forever"};
    Lines_ flat;
    for (const std::string& line : wanted) flat.push_back(line.substr(line.find_first_not_of(' ')));
    flat[10] = "     x = 3";
    OpenSource(flat);
    Mod_Sci::SetUseTabs(0);
    Mod_Sci::SelectAll();
    Expect(AutoIndentSelection, wanted);
}

TEST_P(EditCommandsTest, AutoIndentOfAFunctionLeavesCommentsLabelsAndTheCaretsPlace) {
    const Setting tab(OptionsEdit::TabValue, 2);
    OpenSource({"    x", "Function f()", "; note", ".again", "y = 1", "End Function", "   z"});
    Mod_Sci::SetUseTabs(0);
    GoTo(4, 1);
    Expect(AutoindentCurrentFunction,
           {"    x", "Function f()", "; note", ".again", "  y = 1", "End Function", "   z"});
}

TEST_P(EditCommandsTest, AutoIndentOutsideOfFunctionsReachesFromTheTopToTheNextOne) {
    const Setting tab(OptionsEdit::TabValue, 2);
    const Lines_ lines{"    x",        "Function f()", "y",   "End Function", "   z",
                       "Function g()", "End Function", "   z"};
    const Lines_ wanted{"x", "Function f()", "  y",          "End Function",
                        "z", "Function g()", "End Function", "   z"};
    OpenSource(lines);
    Mod_Sci::SetUseTabs(0);
    GoTo(4, 3);
    Expect(AutoindentCurrentFunction, wanted);
    OpenSource(lines);
    Mod_Sci::SetUseTabs(0);
    GoTo(7, 3);
    Lines_ all = wanted;
    all.back() = "z";
    Expect(AutoindentCurrentFunction, all);
}

TEST_P(EditCommandsTest, AutoIndentOfAFunctionOfOneLineTakesThatLineAlone) {
    OpenSource({"    x", "Function a()", "End Function", "    Function b() : End Function"});
    GoTo(3, 6);
    Expect(AutoindentCurrentFunction,
           {"    x", "Function a()", "End Function", "Function b() : End Function"});
}

TEST_P(EditCommandsTest, ABreakpointComesAndGoes) {
    OpenSource({"x = 1", "", "Stopper = 2 : Stop", "  "});
    GoTo(0, 2);
    Expect([] { ToggleBreakPoint(); }, {"Stop :x = 1", "", "Stopper = 2 : Stop", "  "});
    EXPECT_TRUE(HasMarker(0, MarkerBreakpoint));
    ToggleBreakPoint(0);
    ToggleBreakPoint(1);
    ToggleBreakPoint(2); // its "Stop" is the user's own
    Settle();
    EXPECT_EQ(Text(0), "x = 1");
    EXPECT_EQ(Text(1), "");
    EXPECT_EQ(Text(2), "Stopper = 2 : Stop");
    EXPECT_FALSE(HasMarker(0, MarkerBreakpoint));
    ToggleBreakPoint(3);
    EXPECT_EQ(TrimBlanks(Text(3)), "Stop");
    Leave(0);
    ExpectAsLoaded();
}

TEST_P(EditCommandsTest, CompletingAScopeIsOneStep) {
    const Setting tab(OptionsEdit::TabValue, 2);
    const Setting type(OptionsEdit::AutoIndentType, 2);
    OpenSource({"For i = 1 To 2", "x = 1"});
    Mod_Sci::SetUseTabs(0);
    GoTo(0, 14);
    Expect(CompleteScope, {"For i = 1 To 2", "  ", "Next", "x = 1"});
    GoTo(3, 5);
    CompleteScope(); // opens nothing: a new line alone
    Settle();
    EXPECT_EQ(Mod_Sci::GetLineCount(), 5);
    for (const char* line : {"If a Then b", "For i = 1 To 2 : Next", "Function f() : End Function"}) {
        OpenSource({line});
        GoTo(0, static_cast<int>(std::string(line).size()));
        CompleteScope(); // the scope ends on its line
        EXPECT_EQ(Mod_Sci::GetLineCount(), 2) << line;
    }
    // The text after the caret goes into the scope; a keyword in it does not open the caret's scope.
    OpenSource({"For i = 1 To 2 : x = 1", "y"});
    Mod_Sci::SetUseTabs(0);
    GoTo(0, 14);
    Expect(CompleteScope, {"For i = 1 To 2", "  : x = 1", "Next", "y"});
    OpenSource({"For i=1 To 3", "Next"});
    GoTo(0);
    Expect(CompleteScope, {"", "For i=1 To 3", "Next"});
    OpenSource({"x=1 : While a", "Wend"});
    GoTo(0, 3);
    Expect(CompleteScope, {"x=1", ": While a", "Wend"});
    EXPECT_FALSE(RememberScopeKeyword);
}

// An empty line between a lone CR and an LF would be none.
TEST_F(SourceTest, NoCommandMakesOneLineEndOfTwo) {
    Open("a\r;\nb\r\n\r\nc");
    GoTo(1);
    UnCommentSelection();
    EXPECT_EQ(Mod_Sci::GetText(), "a\r;\nb\r\n\r\nc");
    const Setting noIndent(OptionsEdit::AutoIndentType, 0);
    Open("a\rb\n\r\nc");
    GoTo(2);
    MoveCurrentLineUp();
    EXPECT_EQ(Mod_Sci::GetText(), "a\rb\n\r\nc");
    EXPECT_EQ(host.desktop.beeps, 1);
}

TEST_F(SourceTest, FoldsOfAKindCloseAndOpenAndTheCaretStaysInSight) {
    OpenLines({"Function f()", "x = 1", "End Function", "Type T", "Field a", "End Type", ";[Block]", "y = 1",
               ";[End Block]"});
    frmDoc& document = *ActiveForm();
    GoTo(1, 2);
    FoldEverything(MaskOf(MarkerFunction));
    EXPECT_FALSE(Mod_Sci::GetLineVisible(1));
    EXPECT_TRUE(Mod_Sci::GetLineVisible(4));
    EXPECT_EQ(Mod_Sci::GetCurrentPos(), 0);
    EXPECT_TRUE(document.Dirty);
    FoldEverything(AnyFold);
    EXPECT_FALSE(Mod_Sci::GetLineVisible(4));
    EXPECT_FALSE(Mod_Sci::GetLineVisible(7));
    UnFoldEverything(MaskOf(MarkerType));
    EXPECT_TRUE(Mod_Sci::GetLineVisible(4));
    EXPECT_FALSE(Mod_Sci::GetLineVisible(7));
    UnFoldEverything(AnyFold);
    for (int line = 0; line < 9; ++line) EXPECT_TRUE(Mod_Sci::GetLineVisible(line)) << line;
    const Setting noMargin(OptionsEdit::ShowFoldMargin, 0);
    FoldEverything(AnyFold);
    EXPECT_TRUE(Mod_Sci::GetLineVisible(1));
}

TEST_F(SourceTest, AFoldedHeaderThatIsDeletedShowsItsLines) {
    OpenLines({"Type T", "Field a", "End Type", "x = 1"});
    Mod_Sci::ToggleFold(0);
    GoTo(0);
    Mod_Sci::LineDelete();
    Settle();
    for (int line = 0; line < 3; ++line) EXPECT_TRUE(Mod_Sci::GetLineVisible(line)) << line;
    ExpectAsLoaded();
}

TEST_F(SourceTest, AFilePathIsInsertedAsSeenFromTheDocument) {
    Open("x = ");
    const std::string picture = host.Put("media/sky.png", "");
    Mod_Sci::GotoPos(4);
    host.dialogs.WillOpen({picture});
    InsertFilePath();
    EXPECT_EQ(Text(0), "x = \"media/sky.png\"");
    host.dialogs.WillOpen({});
    InsertFilePath();
    EXPECT_EQ(Text(0), "x = \"media/sky.png\"");
}

} // namespace
