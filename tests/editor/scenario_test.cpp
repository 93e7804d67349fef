// A program typed from nothing, the way people type: in the wrong case, with words chosen from the list, ends
// that come late, a function header put above lines that stand, and steps taken back.
#include "engine/fixture/SourceTest.h"

#include <QTest>
#include <QWidget>

namespace {

class Scenario : public SourceTest {
protected:
    static void Press(Qt::Key key) {
        QTest::keyClick(static_cast<QWidget*>(ActiveForm()->NativeWidget()), key);
        Settle();
    }
    // Types a line; a "|" takes what the list offers.
    static void Line(const std::string& keys) {
        std::size_t from = 0;
        for (auto at = keys.find('|'); at != std::string::npos; at = keys.find('|', from)) {
            Type(keys.substr(from, at - from));
            EXPECT_TRUE(Mod_Sci::AutoCActive()) << keys;
            Press(Qt::Key_Tab);
            from = at + 1;
        }
        Type(keys.substr(from) + "\n");
    }
    static std::string All() {
        std::string text = Mod_Sci::GetText();
        for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) text.erase(at, 1);
        return text;
    }
};

// What is typed; a "|" takes what the list offers.
const std::vector<std::string> Keys{
    "; a rock falls",
    "const GroundLine = 20",
    "global score, Player.rock",
    "dim heights(10)",
    "",
    "type Rock",
    "field posx#, posy#",
    "field speed#",
    "field next_one.rock",
    "end type",
    "",
    "function fall(one.rock, by#)",
    "one\\posy = one\\posy + by",
    "if one\\posy > ground|",
    "one\\posy = ground|",
    "one\\spee| = 0",
    "score = score + 1",
    "endif",
    "end function",
    "",
    "function highest()",
    "local best = 0, i",
    "for i = 0 to 9",
    "if heights(i) > best then best = height|(i)",
    "next",
    "return best",
    "end function",
    "",
    "player = new ro|",
    "player\\spee| = 1.5",
    ".again",
    "for i = 1 to 3",
    "fall(player, player\\spe|)",
    "while score < 3",
    "score = score + 1",
    "wend",
    "next",
    "select score",
    "case 1",
    "print \"one\"",
    "case 2",
    "print \"two\"",
    "default",
    "print \"more\"",
    "end select",
    "repeat",
    "score = score - 1",
    "until score < 0",
    "if high|() < 5 then goto aga|",
    "",
    "local total = 0, name$",
    "for i = 0 to 9",
    "heights(i) = i * 2",
    "total = total + height|(i)",
    "next",
    "name = \"Total \" + total",
    "print name",
    "for player = each rock",
    "print player\\pos|",
    "next",
    "print high|()",
};

const std::string Typed = R"(; a rock falls
Const GroundLine = 20
Global score, Player.Rock
Dim heights(10)

Type Rock
	Field posx#, posy#
	Field speed#
	Field next_one.Rock
End Type

Function fall(one.Rock, by#)
	one\posy = one\posy + by
	If one\posy > GroundLine
		one\posy = GroundLine
		one\speed = 0
		score = score + 1
	EndIf
End Function

Function highest()
	Local best = 0, i
	For i = 0 To 9
		If heights(i) > best Then best = heights(i)
	Next
	Return best
End Function

Player = New Rock
Player\speed = 1.5
.again
For i = 1 To 3
	fall(Player, Player\speed)
	While score < 3
		score = score + 1
	Wend
Next
Select score
	Case 1
		Print "one"
	Case 2
		Print "two"
	Default
		Print "more"
End Select
Repeat
	score = score - 1
Until score < 0
If highest() < 5 Then Goto again

Local total = 0, name$
For i = 0 To 9
	heights(i) = i * 2
	total = total + heights(i)
Next
name = "Total " + total
Print name
For Player = Each Rock
	Print Player\posx
Next
Print highest()
)";
constexpr int LocalsLine = 50;
constexpr int LastOfReport = 56;

TEST_F(Scenario, AProgramIsTypedFromNothing) {
    Open("");
    for (const std::string& keys : Keys) Line(keys);
    ASSERT_EQ(All(), Typed);
    ExpectAsLoaded();
    const std::string symbols = Symbols();
    EXPECT_NE(symbols.find("Local of *Main Program* total @50"), std::string::npos) << symbols;

    // The lines that stand become a function: first its header, then, later, its end.
    GoTo(LocalsLine);
    Settle();
    Line("function report()");
    EXPECT_NE(Symbols().find("Local of report total @51"), std::string::npos);
    GoTo(LastOfReport + 1, static_cast<int>(Text(LastOfReport + 1).size()));
    Settle();
    Type("\nend function");
    Leave(0);
    EXPECT_EQ(Text(LastOfReport + 2), "End Function");
    ExpectAsLoaded();

    while (Mod_Sci::CanUndo()) {
        Mod_Sci::Undo();
        Settle();
        if (All() == Typed) break;
    }
    Leave(0);
    EXPECT_EQ(Symbols(), symbols);
    ExpectAsLoaded();
    while (Mod_Sci::CanUndo()) {
        Mod_Sci::Undo();
        Settle();
    }
    EXPECT_EQ(All(), "");
    EXPECT_EQ(Symbols(), "");
}

} // namespace
