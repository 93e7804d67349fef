// Completion lists: when they open, what they contain, and when they close. Keys are typed into a real view.
#include "engine/fixture/SourceTest.h"

#include "editor/Mod_SciFun_complete.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QTest>

namespace {

using namespace OptionsEdit;

// What the open list holds, with a blank between; "-" for no list.
std::string Listed() {
    if (!Mod_Sci::AutoCActive()) return "-";
    std::string names;
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* list = qobject_cast<QListWidget*>(widget);
        if (!list || !list->isVisible() || list->parent() != ActiveForm()->NativeWidget()) continue;
        for (int row = 0; row < list->count(); ++row)
            names += (names.empty() ? "" : " ") + list->item(row)->text().toStdString();
    }
    return names;
}

class CompletionTest : public SourceTest {
protected:
    // Types on an empty line below the declarations and returns the list.
    std::string ListFor(const std::string& keys) {
        const int line = Mod_Sci::GetLineCount() - 1;
        GoTo(line);
        Settle();
        Type(keys);
        return Listed();
    }

    void Declare(std::vector<std::string> lines) {
        lines.emplace_back();
        OpenLines(lines);
        Settle();
    }
};

TEST_F(CompletionTest, NamesOfEveryKindInScopeAreOfferedInOrder) {
    Declare({"Global printer, primal$", "Const PrimeMost = 3", "Dim prices(4)", "Local prior",
             "Function Prize()", "Local private_one", "End Function"});
    EXPECT_EQ(ListFor("pri"), "prices primal PrimeMost Print printer prior Prize");
    Type("n");
    EXPECT_EQ(Listed(), "Print printer");
    Type("z");
    EXPECT_EQ(Listed(), "Print printer") << "no match leaves the list to the view";
    Type(" ");
    EXPECT_EQ(Listed(), "-");
}

TEST_F(CompletionTest, AFunctionSeesItsOwnLocals) {
    Declare({"Local outside", "Function work(outer)", "Local output", "", "End Function"});
    GoTo(3);
    Settle();
    Type("out");
    EXPECT_EQ(Listed(), "outer output");
}

TEST_F(CompletionTest, ShortNamesAndWordsThatAreNoNamesOpenNothing) {
    Declare({"Global four, fives"});
    EXPECT_EQ(ListFor("f"), "Field First fives Float Forever Function") << "four has four letters";
    Declare({"Global _under, number9"});
    EXPECT_EQ(ListFor("_u"), "-");
    Declare({"Global number9"});
    EXPECT_EQ(ListFor("9"), "-");
    Declare({"Global numbers"});
    EXPECT_EQ(ListFor("; numb"), "-");
    Declare({"Global numbers"});
    EXPECT_EQ(ListFor("\"numb"), "-");
}

TEST_F(CompletionTest, ADeclaredNameIsNotCompleted) {
    Declare({"Global numbers"});
    EXPECT_EQ(ListFor("Local numb"), "-");
}

TEST_F(CompletionTest, ALongListOpensOnlyOnTheUsersWish) {
    std::vector<std::string> lines;
    for (char letter = 'a'; letter < 'l'; ++letter) lines.push_back(std::string("Global score") + letter);
    Declare(lines);
    EXPECT_EQ(ListFor("scor"), "-") << "eleven match";
    Mod_SciFun::ShowAutocomplete();
    const std::string all = "scorea scoreb scorec scored scoree scoref scoreg scoreh scorei scorej scorek";
    EXPECT_EQ(Listed(), all);
    Type("e");
    EXPECT_EQ(Listed(), all);
    Type("k");
    EXPECT_EQ(Listed(), "-") << "a name that is whole closes the list";
    Type("\b");
    Type("\b");
    Type("e");
    EXPECT_EQ(Listed(), "-") << "the wish has gone with the list";
}

TEST_F(CompletionTest, TheOnlyMatchIsTakenAtOnceWhenAskedFor) {
    const Setting<int> only(ACcompleteOnlyOne, 1);
    Declare({"Global numbers"});
    EXPECT_EQ(ListFor("numb"), "numbers") << "opened by typing";
    Mod_Sci::AutoCCancel();
    Mod_SciFun::ShowAutocomplete();
    EXPECT_EQ(Text(1), "numbers");
    EXPECT_EQ(Listed(), "-");
}

TEST_F(CompletionTest, AnArrayNamedLikeAGlobalStandsOnceAConstantTwice) {
    Declare({"Global shared", "Dim shared(3)"});
    EXPECT_EQ(ListFor("sha"), "shared");
    Declare({"Global shared", "Const shared = 3"});
    EXPECT_EQ(ListFor("sha"), "shared shared");
}

TEST_F(CompletionTest, TypesLabelsAndFieldsWhereTheGrammarExpectsThem) {
    const std::vector<std::string> lines{"Type Id",           "Field x#, name$", "End Type",
                                         "Type Item",         "Field link.Id",   "End Type",
                                         "Global thing.Item", ".start",          ".stage"};
    Declare(lines);
    EXPECT_EQ(ListFor("n.Item = New "), "Id Item");
    Type("it");
    EXPECT_EQ(Listed(), "Item");
    Declare(lines);
    EXPECT_EQ(ListFor("Local i."), "Id Item");
    for (const char* jump : {"Goto", "Gosub", "Restore"}) {
        Declare(lines);
        EXPECT_EQ(ListFor(jump + std::string(" st")), "stage start") << jump;
    }
    Declare(lines);
    EXPECT_EQ(ListFor(".i"), "-"); // a label's name is a new one
    std::vector<std::string> many;
    for (int i = 100; i < 350; ++i) many.push_back(".mark" + std::to_string(i));
    Declare(many);
    EXPECT_TRUE(ListFor("Goto ma").ends_with("mark299")); // the first 200, and no report
    Declare(lines);
    EXPECT_EQ(ListFor("thing\\"), "link");
    Type("link\\");
    EXPECT_EQ(Listed(), "name x");
    Type("n");
    EXPECT_EQ(Listed(), "name");
}

TEST_F(CompletionTest, BehindTheFirstFieldListOnlyASpaceClosesAList) {
    Declare({"Type Id", "Field x#", "End Type", "Global thing.Id, numbers"});
    EXPECT_EQ(ListFor("thing\\"), "x");
    Type("x = numb");
    ASSERT_EQ(Listed(), "numbers");
    QKeyEvent stop(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral(";"));
    QApplication::sendEvent(static_cast<QWidget*>(ActiveForm()->NativeWidget()), &stop);
    EXPECT_TRUE(Mod_Sci::AutoCActive()) << "until the line is coloured again";
}

TEST_F(CompletionTest, OptionsLeaveKindsOut) {
    const std::vector<std::string> lines{"Global primary", "Const PrimeMost = 3", "Function Prize()",
                                         "End Function"};
    const auto without = [&](int& option) {
        const Setting<int> off(option, 0);
        Declare(lines);
        return ListFor("pri");
    };
    EXPECT_EQ(without(ACIncVars), "PrimeMost Print Prize");
    EXPECT_EQ(without(ACIncConstants), "primary Print Prize");
    EXPECT_EQ(without(ACIncFunctions), "primary PrimeMost Print");
    EXPECT_EQ(without(ACIncKeywords), "primary PrimeMost Prize");
    EXPECT_EQ(without(ACshowAuto), "-");
}

TEST_F(CompletionTest, OfMoreCandidatesThanTheListHoldsTheFirstAreShown) {
    std::string text;
    for (int i = 0; i < 1200; ++i) text += "Global number" + std::to_string(i) + "\r\n";
    Open(text);
    Settle();
    EXPECT_EQ(ListFor("numb"), "-");
    EXPECT_EQ(host.ErrorLog(), "");
    Mod_SciFun::ShowAutocomplete();
    EXPECT_TRUE(Listed().starts_with("number0 number1 number10 "));
}

TEST_F(CompletionTest, BeyondTheScreensEdgeNothingOpens) {
    Declare({"Global numbers"});
    auto* view = static_cast<QWidget*>(ActiveForm()->NativeWidget());
    view->move(-5000, -5000);
    EXPECT_EQ(ListFor("numb"), "-");
    view->move(0, 0);
    Type("e");
    EXPECT_EQ(Listed(), "numbers");
}

TEST_F(CompletionTest, TheChosenNameIsPutInAndTheLineStaysTrue) {
    Declare({"Global numbers"});
    EXPECT_EQ(ListFor("numb"), "numbers");
    Mod_Sci::AutoCComplete();
    Settle();
    Type(" = 3");
    EXPECT_EQ(Text(1), "numbers = 3");
    Leave(0);
    ExpectAsLoaded();
}

TEST_F(CompletionTest, EnterTakesAnEntryThatWasMovedToWhereTheUserWantsThat) {
    const auto enter = [&](int accepts, const std::vector<Qt::Key>& keys) {
        const Setting<int> setting(ACEnterAccepts, accepts);
        Declare({"Global printer, primal$", "Const PrimeMost = 3"});
        const auto line = Mod_Sci::GetLineCount() - 1;
        EXPECT_NE(ListFor("pri"), "-");
        for (const Qt::Key key : keys)
            QTest::keyClick(static_cast<QWidget*>(ActiveForm()->NativeWidget()), key);
        Type("\n");
        return Text(line);
    };
    EXPECT_EQ(enter(1, {Qt::Key_Down, Qt::Key_Down}), "Print");
    EXPECT_EQ(enter(1, {Qt::Key_Down, Qt::Key_Shift}), "PrimeMost");
    EXPECT_EQ(enter(1, {}), "pri");
    EXPECT_EQ(enter(0, {Qt::Key_Down}), "pri");
}

} // namespace
