// The look of the line under the caret, and what it is once the caret has left.
#include "engine/fixture/SourceTest.h"

#include <QTest>
#include <QWidget>

namespace {

class CurrentLine : public SourceTest {
protected:
    // Types on an empty last line and returns its styles while the caret is there.
    std::string StylesOf(std::vector<std::string> lines, const std::string& keys) {
        const Setting<int> quiet(OptionsEdit::ACshowAuto, 0);
        lines.emplace_back();
        OpenLines(lines);
        line_ = static_cast<int>(lines.size()) - 1;
        GoTo(line_);
        Settle();
        Type(keys);
        return Styles(line_);
    }

    std::string StylesWhenLeft() {
        Leave(0);
        return Styles(line_);
    }

private:
    int line_ = 0;
};

TEST_F(CurrentLine, AGlobalWinsWhereTheCaretIsAndALocalElsewhere) {
    EXPECT_EQ(StylesOf({"Global x", "Local x"}, "x=1"), "g+9");
    EXPECT_EQ(StylesWhenLeft(), "l+9");
}

TEST_F(CurrentLine, AnUndeclaredNameIsNotBadWhileItIsTyped) {
    const StrictMode strict;
    EXPECT_EQ(StylesOf({""}, "foo$=1"), "....+9");
    EXPECT_EQ(StylesWhenLeft(), "xxxx+9");
}

TEST_F(CurrentLine, KeywordsWithTheirSuffixesAndNames) {
    EXPECT_EQ(StylesOf({}, "Float#(1)"), "kkkkkk,9,");
    EXPECT_EQ(StylesOf({}, "Float%(1)"), "kkkkk.,9,");
    EXPECT_EQ(StylesOf({".start"}, "Goto start"), "kkkk.LLLLL");
    EXPECT_EQ(StylesOf({}, "Goto nolabel"), "kkkk........");
    EXPECT_EQ(StylesOf({"Type Rock", "End Type"}, "New rock"), "kkk.tttt");
    EXPECT_EQ(StylesOf({"Type Rock", "End Type"}, "Object.rock(1)"), "kkkkkk,tttt,9,");
    EXPECT_EQ(StylesOf({}, ".label"), "......");
}

TEST_F(CurrentLine, VariablesWithWhatHangsOnThem) {
    const std::vector<std::string> lines{
        "Type Rock", "Field link.Rock, size", "End Type",    "Global a.Rock, n",
        "Dim d(3)",  "Function work()",       "End Function"};
    EXPECT_EQ(StylesOf(lines, "a\\link\\size"), "ggggggggggg");
    EXPECT_EQ(StylesOf(lines, "a\\none\\size"), "g..........");
    EXPECT_EQ(StylesOf(lines, "n$=1"), "g.+9");
    EXPECT_EQ(StylesOf(lines, "d(n)=d(2)"), "a,g,+a,9,");
    EXPECT_EQ(StylesOf(lines, "work(n)"), "ffff,g,");
}

TEST_F(CurrentLine, Brackets) {
    EXPECT_EQ(StylesOf({}, "(]"), ",?");
    EXPECT_EQ(StylesOf({}, "("), "?");
    EXPECT_EQ(StylesOf({}, ")"), "?");
    EXPECT_EQ(StylesOf({}, "([1])"), ",,9,,");
    StylesOf({}, std::string(250, '('));
    EXPECT_EQ(host.ErrorLog(), "");
}

TEST_F(CurrentLine, NamesTakeTheirSpellingBehindTheCaretAndNotUnderIt) {
    OpenLines({"Global Score", ""});
    GoTo(1);
    Settle();
    Type("score");
    EXPECT_EQ(Text(1), "score");
    Type("=print");
    EXPECT_EQ(Text(1), "Score=print");
    Type(" ");
    EXPECT_EQ(Text(1), "Score=Print ");
    EXPECT_EQ(Mod_Sci::GetCurrentPos(), Mod_Sci::GetLength());
    Mod_Sci::Undo();
    Settle();
    EXPECT_EQ(Text(1), "Score=Print") << "the spelling is no step of its own";
}

TEST_F(CurrentLine, ANewNameKeepsItsSpelling) {
    OpenLines({"Global Score", "", "score=2"});
    GoTo(1);
    Settle();
    Type("Local score, other");
    EXPECT_EQ(Text(1), "Local score, other");
}

TEST_F(CurrentLine, ALineThatWasColouredAsCurrentGetsItsOwnLookBack) {
    const StrictMode strict;
    OpenLines({"Print 1", "what", "ever", "Print 2"});
    GoTo(1);
    Settle();
    EXPECT_EQ(Styles(1), "xxxx");
    // Two lines become one, which is parsed at once and looks as the line under the caret.
    Replace(1, 4, 2, 0, "");
    EXPECT_EQ(Styles(1), "........");
    Leave(0);
    EXPECT_EQ(Styles(1), "xxxxxxxx");
}

TEST_F(CurrentLine, ExpansionOfPlusPlus) {
    const Setting<int> on(OptionsEdit::ReplaceVarPlusPlus, 1);
    for (const int line : {2, 0}) {
        for (const std::string end : {"\r\n", "\n"}) {
            const auto typed = [&](const std::string& keys) {
                const std::string declared = "Global i, d" + end + "Dim a(3)" + end;
                Open(line == 0 ? end + declared : declared + end);
                GoTo(line);
                Settle();
                Type(keys);
                return Text(line);
            };
            EXPECT_EQ(typed("i++"), "i=i+1");
            EXPECT_EQ(typed("i --"), "i=i-1");
            EXPECT_EQ(typed("If d Then i++"), "If d Then i=i+1");
            EXPECT_EQ(typed("a(i)++"), "a(i)=a(i)+1");
            EXPECT_EQ(typed("d=1 : If d Then i=1 Else i++"), "d=1 : If d Then i=1 Else i=i+1");
            for (const char* kept :
                 {"; : i++", ";! : i++", "s$=\"i++", "d=i++", "Print++", "d = i--3", "If i++", "Print i++"})
                EXPECT_EQ(typed(kept), kept);
        }
    }
    Leave(1);
    ExpectAsLoaded();
}

TEST_F(CurrentLine, AnExpansionNeedsNoPaintBeforeIt) {
    const Setting<int> on(OptionsEdit::ReplaceVarPlusPlus, 1);
    OpenLines({"Global i", ""});
    GoTo(1);
    Settle();
    const auto quickly = [](const char* keys) {
        QTest::keyClicks(static_cast<QWidget*>(ActiveForm()->NativeWidget()), keys);
    };
    quickly("i++ : x");
    EXPECT_EQ(Text(1), "i=i+1 : x");
    quickly(" ; i++");
    EXPECT_EQ(Text(1), "i=i+1 : x ; i++");
}

} // namespace
