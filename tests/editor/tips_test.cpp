// The tip box and the call tip: which call and parameter the caret is in, and which line opened a scope.
#include "engine/fixture/SourceTest.h"

#include "editor/Mod_SciFun_tips.h"

#include <QTest>
#include <QWidget>

namespace {

class TipsTest : public SourceTest {
protected:
    TipsTest() {
        gEditorCalls.SetTipText = [this](const TipText& tip) { box_ = tip; };
    }

    // Opens a source with the caret where "|" is; returns the tip box with the marked part between "<" and
    // ">".
    std::string TipAt(std::string text) {
        const std::size_t caret = text.find('|');
        text.erase(caret, 1);
        Open(text);
        Settle();
        Mod_Sci::GotoPos(static_cast<std::intptr_t>(caret));
        Settle();
        return Tip();
    }

    std::string Tip() const {
        return box_.hot.empty() ? box_.left + box_.right : box_.left + "<" + box_.hot + ">" + box_.right;
    }
    int Colour() const { return box_.colour; }

private:
    TipText box_;
};

const std::string Declared = "Function foo#(x)\r\nEnd Function\r\n"
                             "Function Bar(a, b$=1)\r\nEnd Function\r\nDim d(3)\r\n";

TEST_F(TipsTest, TheInnermostOpenCallAndItsParameter) {
    EXPECT_EQ(TipAt(Declared + "Bar( |"), "Bar (<a>,[ b$=1]) ");
    EXPECT_EQ(Colour(), 0x0000FF);
    EXPECT_EQ(TipAt(Declared + "Bar( foo(a), |"), "Bar (a,<[ b$=1]>) ");
    EXPECT_EQ(TipAt(Declared + "Bar( foo(|"), "foo# (<x>) ");
    EXPECT_EQ(TipAt(Declared + "Bar( d(1, 2|), 3"), "Bar (<a>,[ b$=1]) ");
    EXPECT_EQ(TipAt(Declared + "Ba|r(1, 2)"), "Bar (a,[ b$=1]) ");
    EXPECT_EQ(TipAt(Declared + "Bar(1,2,3,4 |"), "") << "more than it takes, and nothing round it";
    EXPECT_EQ(TipAt(Declared + "Bar(1, 2) : n = |"), "");
    EXPECT_EQ(TipAt(Declared + "n = d(|"), "");
}

TEST_F(TipsTest, Keywords) {
    EXPECT_EQ(TipAt("Print |"), "Print <string$> ");
    EXPECT_EQ(TipAt("Command100 (1, |"), "Command100 (first,<second$>,[third#]) ");
    EXPECT_EQ(TipAt("Com|mand100"), "Command100 (first,second$,[third#]) ");
    EXPECT_EQ(TipAt("x = Float(|"), "Float# (<value>) ");
    EXPECT_EQ(TipAt("Stop |"), "");
}

TEST_F(TipsTest, AClosingWordShowsWhatItCloses) {
    EXPECT_EQ(TipAt("Function work()\r\n\tFor i = 1 To 3\r\n\t\tStop\r\n\tNex|t\r\nEnd Function\r\n"),
              " <SCOPE:> For i = 1 To 3");
    EXPECT_EQ(Colour(), 0xFF0000);
    EXPECT_EQ(TipAt("If a\r\n\tStop\r\nElse\r\n\tStop\r\n;note\r\nEndI|f\r\n"), " <SCOPE:> If a");
    EXPECT_EQ(TipAt("\tIf a\r\n\t\tStop\r\n\r\n  \r\n\tEndI|f\r\n"), " <SCOPE:> If a");
    EXPECT_EQ(TipAt("If a\n\tStop\nEndI|f\n"), " <SCOPE:> If a");
    EXPECT_EQ(TipAt("    If a\n        Stop\n    Else\n        Stop\n    EndI|f\n"), " <SCOPE:>     If a");
    EXPECT_EQ(TipAt("Select a\r\n\tCas|e 1\r\n"), "");
    EXPECT_EQ(TipAt("EndI|f\r\n"), "");
    const std::string opener = "If " + std::string(90, 'x');
    EXPECT_EQ(TipAt(opener + "\r\n\tStop\r\nEndI|f\r\n"), " <SCOPE:> " + opener.substr(0, 80) + "...");
}

TEST_F(TipsTest, TheCallTipOpensForATypedSignAndFollowsTheCaret) {
    Open(Declared + "\r\n");
    Leave(5);
    Type("Bar");
    EXPECT_FALSE(Mod_Sci::CallTipActive());
    Type("(");
    EXPECT_TRUE(Mod_Sci::CallTipActive());
    Type("1,");
    EXPECT_TRUE(Mod_Sci::CallTipActive());
    EXPECT_EQ(Tip(), "Bar (a,<[ b$=1]>) ");
    Type("\b");
    Mod_Sci::CallTipCancel();
    Type(",");
    EXPECT_TRUE(Mod_Sci::CallTipActive()) << "the comma asks for it again";
    QTest::keyClick(static_cast<QWidget*>(ActiveForm()->NativeWidget()), Qt::Key_Left);
    Settle();
    EXPECT_EQ(Tip(), "Bar (<a>,[ b$=1]) ");
    EXPECT_TRUE(Mod_Sci::CallTipActive());
    GoTo(0);
    Settle();
    EXPECT_FALSE(Mod_Sci::CallTipActive());
    EXPECT_EQ(Tip(), "");
}

TEST_F(TipsTest, WithoutPopUpsOnlyTheBoxTells) {
    const Setting<int> off(OptionsEdit::PopupCallTips, 0);
    Open(Declared + "\r\n");
    Leave(5);
    Type("Bar(");
    EXPECT_EQ(Tip(), "Bar (<a>,[ b$=1]) ");
    EXPECT_FALSE(Mod_Sci::CallTipActive());
}

TEST_F(TipsTest, TheCommandOpensTheTipOfTheCallUnderTheCaret) {
    TipAt(Declared + "Bar(1|)");
    EXPECT_FALSE(Mod_Sci::CallTipActive());
    Mod_SciFun::ShowCalltip();
    EXPECT_TRUE(Mod_Sci::CallTipActive());
}

TEST_F(TipsTest, AWordWithoutAHelpPageBeeps) {
    std::string asked;
    int opened = 0;
    gEditorCalls.OpenBrowser = [&] { ++opened; };
    gEditorCalls.ShowBrowserHelp = [&](const std::string& word) {
        asked = word;
        return word == "Print";
    };
    TipAt("Pri|nt 1");
    Mod_SciFun::KeywordHelp();
    EXPECT_EQ(asked, "Print");
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(gLastDocumentID, ActiveForm()->m_strDocumentWindowID) << "the way back";
    EXPECT_EQ(host.desktop.beeps, 0);
    Leave(0);
    Mod_Sci::GotoPos(Mod_Sci::GetLength());
    Mod_SciFun::KeywordHelp();
    EXPECT_EQ(host.desktop.beeps, 1);
}

} // namespace
