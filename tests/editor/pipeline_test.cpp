// What single edits do: the states of a line, the order of taking back and parsing, undo steps, folds, and
// the swap of the active document.
#include "engine/fixture/SourceTest.h"

#include "editor/CodePage.h"
#include "editor/FindRun.h"
#include "editor/PositionBrowser.h"
#include "editor/SciOptions.h"

#include <QApplication>

namespace {

using namespace Mod_Parse;

class PipelineTest : public SourceTest {};

TEST_F(PipelineTest, ALineIsParsedWhenTheCaretLeavesIt) {
    frmDoc& document = OpenLines({"x", "Global a", "y"});
    EXPECT_FALSE(document.Dirty);
    GoTo(1, 8);
    Type("bc");
    EXPECT_TRUE(document.Dirty);
    EXPECT_EQ(document.State.UnparsedLine, 1);
    EXPECT_EQ(document.State.UnparsedText, "Global a\r\n");
    EXPECT_FALSE(HasMarker(1, MarkerParsed));
    EXPECT_EQ(Symbols(), "Global a @1 tip 1\n"); // as it was
    Leave(2);
    EXPECT_EQ(document.State.UnparsedLine, -1);
    EXPECT_EQ(Symbols(), "Global abc @1 tip 1\n");
    EXPECT_EQ(Styles(1), "kkkkkk.ggg");
    ExpectAsLoaded();
}

TEST_F(PipelineTest, AnUndoAtALinesEndLeavesTheFoldsClosed) {
    for (const std::string end : {"\n", "\r\n"}) {
        Open("Function f()" + end + "Local b" + end + "End Function" + end + "x" + end + "y" + end);
        Mod_Sci::ToggleFold(0);
        GoTo(3, 1);
        Type("z\b");
        Mod_Sci::Undo();
        Settle();
        EXPECT_FALSE(Mod_Sci::GetFoldExpanded(0));
    }
}

TEST_F(PipelineTest, ParsingAnewLeavesTheIndentationAndSoTheHistory) {
    frmDoc& document = OpenLines({"x", "\ty"});
    const std::string text = Mod_Sci::GetText();
    const Setting indent(OptionsEdit::AutoIndentOnLoad, 1);
    document.m_oSubclass->ParseAnew();
    EXPECT_EQ(Mod_Sci::GetText(), text);
}

// The view forgets all its lines when it shows another code page.
TEST_F(PipelineTest, AnotherCodePageLeavesNothingBehind) {
    frmDoc& document = OpenLines({"Function f()", "Local n", "End Function", "Global g", ";\xE4", "y"});
    document.NewFile = true;
    Mod_Sci::ToggleFold(0);
    Mod_Sci::MarkerAdd(3, MarkerBookmark);
    Mod_SciFun::CheckCBrowser(Mod_Sci::PositionFromLine(3), 3);
    const std::string single = Mod_Sci::GetText();
    const auto expectKept = [&](std::intptr_t page) {
        Leave(4);
        EXPECT_EQ(Mod_Sci::Send(SCI_GETCODEPAGE), page);
        EXPECT_FALSE(Mod_Sci::GetFoldExpanded(0));
        EXPECT_EQ(Mod_Sci::MarkerNext(0, MaskOf(MarkerBookmark)), 3);
        EXPECT_TRUE(HasMarker(3, MarkerPosition));
        ExpectAsLoaded();
    };
    GoTo(5);
    ASSERT_TRUE(TakeBeyondCodePage(document, "\u0416"));
    Mod_Sci::ReplaceSel("\u0416");
    EXPECT_EQ(Text(5), "\u0416y");
    expectKept(SC_CP_UTF8);
    Replace(3, 7, 3, 8, "h");
    Leave(4);
    EXPECT_NE(Symbols().find("Global h @3"), std::string::npos) << Symbols();
    ExpectAsLoaded();
    Mod_SciFun::GotoPreviousPosition();
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 3);
    while (Mod_Sci::Send(SCI_CANUNDO)) Mod_Sci::Undo();
    EXPECT_EQ(Mod_Sci::GetText(), single);
    expectKept(0);
    EXPECT_FALSE(document.Dirty);
    Mod_Sci::Redo();
    EXPECT_EQ(Text(4), ";\u00E4");
    expectKept(SC_CP_UTF8);
    // A replacement makes UTF-8 of it just as typing does, and finds its places again.
    Mod_Sci::Undo();
    FindOptions options;
    options.text = "\u00E4";
    options.fromTop = true;
    EXPECT_EQ(FindRun().ReplaceAll(options, "\u0416\u0416"), 1);
    EXPECT_EQ(Text(4), ";\u0416\u0416");
    expectKept(SC_CP_UTF8);
    Mod_Sci::Undo();
    EXPECT_EQ(Mod_Sci::GetText(), single);
    expectKept(0);
}

TEST_F(PipelineTest, DrainingParsesWithoutACaretMove) {
    frmDoc& document = OpenLines({"x", "y"});
    GoTo(1, 1);
    Type(" : Local z");
    document.m_oSubclass->DeactivateCheck();
    EXPECT_EQ(Symbols(), "Local of *Main Program* z @1 tip 1\n");
    EXPECT_TRUE(HasMarker(1, MarkerParsed));
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 1);
}

TEST_F(PipelineTest, LinesInsertedInFrontOfADeclarationLeaveItOneEntry) {
    OpenLines({"Global a", "Function f()", "Local b", "End Function", "Type T", "Field c", "End Type", ".l"});
    for (int line = 14; line >= 0; line -= 2) InsertLine(line / 2, "Const k" + std::to_string(line));
    ExpectAsLoaded();
    GoTo(1);
    Type("\n");
    Leave(0);
    ExpectAsLoaded();
}

TEST_F(PipelineTest, ADeletionAcrossLinesKeepsTheRest) {
    OpenLines({"Global a", "Function f()", "Local b", "End Function", "Global c", "Global d"});
    Replace(0, 8, 3, 12, " : Global e");
    EXPECT_EQ(Text(0), "Global a : Global e");
    EXPECT_EQ(Symbols(), "Global a @0 tip 1\nGlobal c @1 tip 1\nGlobal d @2 tip 1\nGlobal e @0 tip 1\n");
    ExpectAsLoaded();
    Mod_Sci::Undo();
    Mod_Sci::Undo();
    Settle();
    EXPECT_EQ(Mod_Sci::GetLineCount(), 6);
    ExpectAsLoaded();
}

TEST_F(PipelineTest, WhatWaitsBelowADeletionIsParsedToo) {
    for (const int from : {0, 1}) {
        OpenLines({"a", "b", "c", "d", "e", "f", "g", "h"});
        Settle();
        Replace(6, 0, 6, 0, "Global late\r\nFunction f()\r\n");
        DeleteLines(from, 4);
        Settle();
        EXPECT_NE(gCurrentProject->Globals.ItemHash("late"), nullptr);
        ExpectAsLoaded();
    }
}

TEST_F(PipelineTest, TheEditedLineInsideADeletedRangeIsGone) {
    frmDoc& document = OpenLines({"x", "Global a", "Global b", "Global c", "y"});
    GoTo(2, 8);
    Type("q");
    Replace(1, 0, 4, 0, "");
    EXPECT_EQ(Symbols(), "");
    EXPECT_TRUE(document.State.ParseNeeded.empty());
    EXPECT_EQ(document.State.UnparsedLine, -1);
    ExpectAsLoaded();
}

TEST_F(PipelineTest, AnEmptiedDocumentIsParsedAndGoesOn) {
    OpenLines({"Global a"});
    GoTo(0, 8);
    Type("b");
    Replace(0, 0, 0, 9, "");
    EXPECT_EQ(Symbols(), "");
    ExpectAsLoaded();
    Type("Global c");
    ActiveForm()->m_oSubclass->DeactivateCheck();
    EXPECT_EQ(Symbols(), "Global c @0 tip 1\n");
}

TEST_F(PipelineTest, APastedFunctionIsParsedFoldedAndUndoneInOneStep) {
    const std::string behind = "; a comment line that is longer than all that is pasted above it, and by far";
    OpenLines({"Local a", "Local b", behind});
    const std::string text = Mod_Sci::GetText();
    const std::string before = Symbols() + Lines();
    Replace(1, 0, 1, 0, "Function f(p)\r\nIf p\r\nLocal c\r\nEndIf\r\nEnd Function\r\n");
    EXPECT_EQ(Text(3), "\t\tLocal c");
    EXPECT_EQ(Mod_Sci::GetFoldLevel(1), SC_FOLDLEVELBASE | SC_FOLDLEVELHEADERFLAG);
    ExpectAsLoaded();
    Mod_Sci::Undo();
    Settle();
    EXPECT_EQ(Mod_Sci::GetText(), text);
    EXPECT_EQ(Symbols() + Lines(), before);
    Mod_Sci::Redo();
    Settle();
    EXPECT_EQ(Text(3), "\t\tLocal c");
    ExpectAsLoaded();
}

TEST_F(PipelineTest, TypingEndFunctionMovesTheLocalsBelow) {
    OpenLines({"Function f()", "Local a", "", "Local b", "Function g()"});
    GoTo(2);
    Type("end function");
    Leave(0);
    EXPECT_EQ(Text(2), "End Function");
    EXPECT_NE(Symbols().find("Local of *Main Program* b @3"), std::string::npos);
    ExpectAsLoaded();
    DeleteLines(2, 2);
    EXPECT_NE(Symbols().find("Local of f b @2"), std::string::npos);
    ExpectAsLoaded();
}

TEST_F(PipelineTest, BackspaceBeforeAnIndentedLineTakesTheIndentationToo) {
    for (const std::string end : {"\r\n", "\n"}) {
        const std::string text = "If a" + end + "\t\tx = 1" + end + "\ty" + end + " z";
        Open(text);
        GoTo(1);
        Type("\b");
        EXPECT_EQ(Text(0), "If ax = 1");
        Mod_Sci::Undo();
        Settle();
        EXPECT_EQ(Mod_Sci::GetText(), text);
        // One column of indentation is not enough.
        GoTo(3);
        Type("\b");
        EXPECT_EQ(Text(2).substr(Text(2).size() - 3), "y z");
    }
}

TEST_F(PipelineTest, TypingIsUndoneInTheSameStepsWhateverTheLineEnds) {
    std::vector<std::string> steps[2];
    for (const bool lf : {false, true}) {
        const std::string end = lf ? "\n" : "\r\n";
        Open("x" + end + "y" + end);
        GoTo(1, 1);
        Type("abc  def+gh");
        for (std::string last; Text(1) != "y" && Text(1) != last && steps[lf].size() < 20;) {
            last = Text(1);
            steps[lf].push_back(last);
            Mod_Sci::Undo();
            Settle();
        }
    }
    EXPECT_EQ(steps[0], (std::vector<std::string>{"yabc  def+gh", "yabc  def", "yabc"}));
    EXPECT_EQ(steps[1], steps[0]);
}

TEST_F(PipelineTest, AnEditOpensTheFoldItHappensIn) {
    OpenLines({"Function f()", "Local a", "Local b", "End Function", "x"});
    Mod_Sci::ToggleFold(0);
    ASSERT_FALSE(Mod_Sci::GetLineVisible(1));
    Mod_Sci::InsertText(Mod_Sci::PositionFromLine(2), "Local q\r\nLocal r\r\n");
    Settle();
    EXPECT_TRUE(Mod_Sci::GetLineVisible(2));
    EXPECT_TRUE(Mod_Sci::GetLineVisible(3));
    Leave(5);
    ExpectAsLoaded();
}

TEST_F(PipelineTest, AClickInTheFoldMarginFolds) {
    frmDoc& document = OpenLines({"Function f()", "x", "End Function"});
    document.m_oSubclass->OnNotify({.code = SCN_MARGINCLICK, .position = 0, .margin = 1});
    EXPECT_TRUE(Mod_Sci::GetLineVisible(1));
    document.m_oSubclass->OnNotify({.code = SCN_MARGINCLICK, .position = 0, .margin = 2});
    EXPECT_FALSE(Mod_Sci::GetLineVisible(1));
}

TEST_F(PipelineTest, TheStatusTextsFollowTheCaret) {
    std::string position, function;
    gEditorCalls.SetPositionText = [&](const std::string& text) { position = text; };
    gEditorCalls.SetFunctionText = [&](const std::string& text) { function = text; };
    OpenLines({"x", "Function f()", "abc", "End Function"});
    GoTo(2, 3);
    Settle();
    EXPECT_EQ(position, "L: 3 C: 4");
    EXPECT_EQ(function, "f");
    Leave(0);
    EXPECT_EQ(position, "L: 1 C: 1");
    EXPECT_EQ(function, MainProgram);
    gEditorCalls = {};
}

TEST_F(PipelineTest, ABackgroundViewLeavesTheActiveDocumentAsItWas) {
    frmDoc& back = OpenLines({"x", "Global a"});
    frmDoc& front = OpenLines({"Global b"});
    const auto project = gCurrentProject;
    Mod_Sci::SendTo(back.SciEdi_WndData, SCI_INSERTTEXT, 0, Mod_Sci::Address("Global c\r\n"));
    std::vector<std::string> told;
    gEditorCalls.SetPositionText =
        gEditorCalls.SetFunctionText = [&](const std::string& text) { told.push_back(text); };
    gEditorCalls.SetTipText = [&](const TipText& tip) { told.push_back(tip.left); };
    back.m_oSubclass->OnNotify({.code = SCN_UPDATEUI});
    back.m_oSubclass->OnNotify({.code = SCN_PAINTED});
    EXPECT_EQ(told, std::vector<std::string>{}) << "the status bar is about the active document";
    front.m_oSubclass->OnNotify({.code = SCN_PAINTED});
    EXPECT_EQ(told, std::vector<std::string>{"L: 1 C: 1"});
    EXPECT_EQ(gActiveDoc, &front);
    EXPECT_EQ(SciWndData, front.SciEdi_WndData);
    EXPECT_EQ(gCurrentProject, project);
    EXPECT_FALSE(front.Dirty);
    EXPECT_TRUE(back.Dirty);
    EXPECT_EQ(Symbols(), "Global b @0 tip 1\n");
    MakeActive(&back);
    EXPECT_EQ(Symbols(), "Global a @2 tip 1\nGlobal c @0 tip 1\n");
    MakeActive(nullptr);
    front.m_oSubclass->OnNotify({.code = SCN_UPDATEUI});
    EXPECT_EQ(gActiveDoc, nullptr);
    EXPECT_EQ(gCurrentProject, nullptr);
}

TEST_F(PipelineTest, ALongChangeShowsTheWaitCursorUntilItIsParsed) {
    OpenLines({"x"});
    std::string many;
    for (int i = 0; i < 12; ++i) many += "Global g" + std::to_string(i) + "\r\n";
    Mod_Sci::InsertText(0, many.c_str());
    EXPECT_TRUE(host.desktop.waitCursor);
    Settle();
    EXPECT_FALSE(host.desktop.waitCursor);
    EXPECT_EQ(gCurrentProject->Globals.Count(), 12);
}

TEST_F(PipelineTest, TheNumberMarginFitsTheLines) {
    OpenLines({"x"});
    const auto few = Mod_Sci::GetMarginWidthN(0);
    Mod_Sci::InsertText(0, std::string(20000, '\n').c_str());
    UpdateLineNumberMargin();
    EXPECT_GT(Mod_Sci::GetMarginWidthN(0), few);
    const Setting off(OptionsEdit::ShowLineNumbers, 0);
    UpdateLineNumberMargin();
    EXPECT_EQ(Mod_Sci::GetMarginWidthN(0), 1);
    Settle();
}

} // namespace
