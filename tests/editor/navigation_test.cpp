// Going to declarations, through the places that were worked in, between bookmarks and functions.
#include "engine/fixture/SourceTest.h"

#include "editor/Mod_SciFun_bookmarks.h"
#include "editor/Mod_SciFun_goto.h"
#include "editor/Mod_SciFun_navigation.h"
#include "editor/PositionBrowser.h"

#include <QAbstractScrollArea>
#include <QTest>

namespace {

using namespace Mod_Parse;
using namespace Mod_SciFun;

class NavigationTest : public SourceTest {
protected:
    static int Line() { return Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()); }
    static int Column() {
        return static_cast<int>(Mod_Sci::GetCurrentPos() - Mod_Sci::PositionFromLine(Line()));
    }
    // The lines that carry a marker.
    static std::vector<int> Marked(int marker) {
        std::vector<int> lines;
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line)
            if (HasMarker(line, marker)) lines.push_back(line);
        return lines;
    }
    frmDoc& OpenLong(int lines) {
        return OpenLines(std::vector<std::string>(static_cast<std::size_t>(lines), "x"));
    }
    // Types one letter at the end of a line, as a user who works there.
    static void Work(int line, const std::string& keys = "y") {
        GoTo(line, 1);
        Settle();
        Type(keys);
    }
    // Goes to the declaration of the word at a place; returns the caret's line afterwards.
    static int DeclarationOf(int line, int column) {
        GoTo(line, column);
        GotoDeclaration();
        return Line();
    }
};

TEST_F(NavigationTest, EachKindOfNameLeadsToItsDeclaration) {
    OpenLines({"a = 1", "Global g", "Const k = 1", "Dim d(5)", ".lab", "Type T", "Field m", "End Type",
               "Function f(p)", "Local v", "v = p + g * k : d(1) = f(2) ; f g", "End Function", "Goto lab",
               "Local w.T"});
    ColourAll();
    const std::string text = Text(10);
    const auto at = [&](const char* part) { return static_cast<int>(text.find(part)); };
    EXPECT_EQ(DeclarationOf(10, at("v =")), 9);
    EXPECT_EQ(DeclarationOf(10, at("p +")), 8);     // a parameter is on its function's line
    EXPECT_EQ(DeclarationOf(10, at("g *") + 1), 1); // the caret after the word
    EXPECT_EQ(DeclarationOf(10, at("k :")), 2);
    EXPECT_EQ(DeclarationOf(10, at("d(1)")), 3);
    EXPECT_EQ(DeclarationOf(10, at("f(2)")), 8);
    EXPECT_EQ(DeclarationOf(12, 6), 4);
    // Nothing: a comment, a type, an undeclared name, a place without a word.
    EXPECT_EQ(DeclarationOf(10, at("; f") + 2), 10);
    EXPECT_EQ(DeclarationOf(13, 8), 13);
    EXPECT_EQ(DeclarationOf(0, 0), 0);
    EXPECT_EQ(DeclarationOf(10, at("= f(2)") + 1), 10);
}

TEST_F(NavigationTest, AMainProgramsLocalIsThatOfItsOwnFile) {
    OpenLines({"Local here", "", "here = 1"});
    ColourAll();
    EXPECT_EQ(DeclarationOf(2, 1), 0);
}

TEST_F(NavigationTest, GoingToADeclarationIsRememberedAtBothEnds) {
    std::vector<std::string> lines(100, "x");
    lines[0] = "Global g";
    lines[90] = "g = 1";
    OpenLines(lines);
    ColourAll();
    EXPECT_EQ(DeclarationOf(90, 1), 0);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 90);
    EXPECT_EQ(Column(), 1);
    GotoNextPosition();
    EXPECT_EQ(Line(), 0);
    const Setting off(OptionsEdit::CBrowserRememberOnGotoDefinition, 0);
    DeclarationOf(90, 1);
    EXPECT_EQ(Marked(MarkerPosition), (std::vector<int>{0, 90}));
}

TEST_F(NavigationTest, WorkNearAPlaceMovesItAndWorkFarAwayMakesAnother) {
    OpenLong(200);
    Work(50);
    Work(80); // 30 lines on
    EXPECT_EQ(Marked(MarkerPosition), std::vector<int>{50});
    GoTo(0);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 80);
    EXPECT_EQ(Column(), 2);
    Work(111); // 31 lines on
    EXPECT_EQ(Marked(MarkerPosition), (std::vector<int>{50, 111}));
}

TEST_F(NavigationTest, PlacesMoveWithTheTextAboveThem) {
    OpenLong(200);
    Work(50);
    Work(150);
    InsertLine(0, "a\r\nb"); // a place of its own
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 152);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 52);
    Work(51); // near the place that has moved
    EXPECT_EQ(Marked(MarkerPosition), (std::vector<int>{2, 52, 152}));
}

TEST_F(NavigationTest, WorkAfterGoingBackForgetsWhatLayForward) {
    OpenLong(400);
    for (const int line : {10, 110, 210}) Work(line);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 110);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 10);
    GotoPreviousPosition(); // the first one
    EXPECT_EQ(Line(), 10);
    Work(310);
    EXPECT_EQ(Marked(MarkerPosition), (std::vector<int>{10, 310}));
    GotoNextPosition();
    EXPECT_EQ(Line(), 310);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 10);
    GotoNextPosition();
    EXPECT_EQ(Line(), 310);
}

TEST_F(NavigationTest, TheTwentyFirstPlaceTakesTheFirstOnesSlot) {
    OpenLong(1200);
    for (int place = 0; place < 21; ++place) Work(place * 50);
    const std::vector<int> marked = Marked(MarkerPosition);
    EXPECT_EQ(marked.size(), 20u);
    EXPECT_EQ(marked.front(), 50);
    for (int step = 0; step < 30; ++step) GotoPreviousPosition();
    EXPECT_EQ(Line(), 50);
    for (int step = 0; step < 30; ++step) GotoNextPosition();
    EXPECT_EQ(Line(), 1000);
}

TEST_F(NavigationTest, APlaceOfAClosedDocumentIsPassedOverAndItsMarkersAreNobodyElses) {
    frmDoc& gone = OpenLong(100);
    const std::string path = gone.FullFilename;
    Work(10);
    Close(gone);
    OpenLong(200);
    Work(20);
    Work(120);
    frmDoc& back = Open("Function f()\r\nEnd Function\r\n");
    Close(back);
    MakeActive(&FormOf(*gProjects.Item(0)->Sources.Item(0)));
    for (int step = 0; step < 3; ++step) GotoPreviousPosition();
    EXPECT_EQ(Line(), 20);
    GotoNextPosition();
    EXPECT_EQ(Line(), 120);
}

TEST_F(NavigationTest, APlaceGoesWithTheWholeText) {
    OpenLong(100);
    Work(50);
    Mod_Sci::SetText("x\r\ny\r\nz\r\n");
    Settle(); // which is work at the start
    GoTo(2);
    GotoPreviousPosition();
    EXPECT_EQ(Line(), 0);
    GoTo(2);
    GotoNextPosition();
    EXPECT_EQ(Line(), 2);
    GoTo(0);
    GotoPreviousPosition(); // where the text that has gone was
    EXPECT_EQ(Line(), 0);
    EXPECT_EQ(Marked(MarkerPosition), std::vector<int>{0});
}

TEST_F(NavigationTest, TypingLeavesTablesAndStylesAsALoadDoes) {
    OpenLines({"Global a", "Function f()", "Local b", "End Function"});
    Work(0, "b : Global c");
    Leave(2);
    ExpectAsLoaded();
}

TEST_F(NavigationTest, FunctionsAreGoneToWithoutTheirEnds) {
    OpenLines({"x", "Function f()", "a", "End Function", "y", "Function g() : End Function", "Function h()",
               "End Function : Function i()", "End Function"});
    std::vector<int> lines;
    for (int step = 0; step < 5; ++step) GotoNextFunction(), lines.push_back(Line());
    EXPECT_EQ(lines, (std::vector<int>{1, 5, 6, 7, 7})); // no wrap
    GoTo(8);
    lines.clear();
    for (int step = 0; step < 5; ++step) GotoPreviousFunction(), lines.push_back(Line());
    EXPECT_EQ(lines, (std::vector<int>{7, 6, 5, 1, 1}));
}

TEST_F(NavigationTest, ALineIsShownAndWithTheOptionAtTheTop) {
    std::vector<std::string> lines(1000, "x");
    lines[498] = "Function f()";
    lines[502] = "End Function";
    OpenLines(lines);
    Mod_Sci::ToggleFold(498);
    Settle();
    GotoLine(500);
    EXPECT_TRUE(Mod_Sci::GetLineVisible(500));
    EXPECT_EQ(Line(), 500);
    const Setting top(OptionsEdit::GotoPositionsAtTop, 1);
    GoTo(0);
    Settle();
    GotoLine(700);
    EXPECT_LE(700 - Mod_Sci::GetFirstVisibleLine(), OptionsEdit::Vmargin);
    MakeActive(nullptr);
    GotoLine(3); // there is nowhere to go
}

TEST_F(NavigationTest, BookmarksAreToggledAndMakeTheFileDirty) {
    frmDoc& document = OpenLong(10);
    {
        const Setting clean(OptionsEdit::FileDirtyOnBookmarks, 0);
        ToggleBookmark(Mod_Sci::PositionFromLine(3) + 1);
        EXPECT_FALSE(document.Dirty);
    }
    GoTo(5);
    ToggleBookmark(-1);
    EXPECT_EQ(Marked(MarkerBookmark), (std::vector<int>{3, 5}));
    EXPECT_TRUE(document.Dirty);
    ToggleBookmark(-1);
    EXPECT_EQ(Marked(MarkerBookmark), std::vector<int>{3});
}

TEST_F(NavigationTest, BookmarksWrapUnlessTheyAreKeptToOneFile) {
    OpenLong(50);
    for (const int line : {10, 20}) ToggleBookmark(Mod_Sci::PositionFromLine(line));
    std::vector<int> lines;
    for (int step = 0; step < 3; ++step) GotoNextBookmark(), lines.push_back(Line());
    EXPECT_EQ(lines, (std::vector<int>{10, 20, 10}));
    GotoPrevBookmark();
    EXPECT_EQ(Line(), 20);
    EXPECT_EQ(host.desktop.locks, 0);
    const Setting single(OptionsEdit::BookMarksSingleFileBased, 1);
    GotoNextBookmark();
    EXPECT_EQ(Line(), 20);
    GoTo(10);
    GotoPrevBookmark();
    EXPECT_EQ(Line(), 10);
}

TEST_F(NavigationTest, ClearingReachesTheOtherFilesUnlessBookmarksAreKeptToOne) {
    frmDoc& first = OpenLong(5);
    ToggleBookmark(0);
    frmDoc& none = OpenLong(5);
    none.SetDirty(false);
    frmDoc& second = OpenLong(5);
    ToggleBookmark(0);
    second.SetDirty(false);
    const auto bookmark = [](const frmDoc& document) {
        return Mod_Sci::SendTo(document.SciEdi_WndData, SCI_MARKERNEXT, 0, MaskOf(MarkerBookmark));
    };
    {
        const Setting single(OptionsEdit::BookMarksSingleFileBased, 1);
        ClearAllBookmarks();
    }
    EXPECT_EQ(bookmark(second), -1);
    EXPECT_TRUE(second.Dirty);
    EXPECT_EQ(bookmark(first), 0);
    ClearAllBookmarks();
    EXPECT_EQ(bookmark(first), -1);
    EXPECT_FALSE(none.Dirty) << "it had no bookmark";
}

TEST_F(NavigationTest, ClicksInTheMarginSetBookmarksAndBreakpoints) {
    OpenLong(10);
    Settle();
    auto* view = static_cast<QAbstractScrollArea*>(static_cast<QWidget*>(ActiveForm()->NativeWidget()));
    const auto y = static_cast<int>(Mod_Sci::PointYFromPosition(Mod_Sci::PositionFromLine(2))) + 2;
    const QPoint margin(static_cast<int>(Mod_Sci::GetMarginWidthN(0)) + 4, y);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, margin);
    EXPECT_TRUE(Marked(MarkerBookmark).empty());
    host.desktop.shift = true;
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, margin);
    EXPECT_EQ(Marked(MarkerBookmark), std::vector<int>{2});
    EXPECT_TRUE(Marked(MarkerBreakpoint).empty());
    host.desktop.shift = false;
    host.desktop.control = true;
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, margin);
    EXPECT_EQ(Marked(MarkerBreakpoint), std::vector<int>{2});
    EXPECT_EQ(Marked(MarkerBookmark), std::vector<int>{2});
}

} // namespace
