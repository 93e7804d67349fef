// The checker: programs that must pass, and faults with the file and line they are reported at.
#include "Programs.h"

#include <random>

namespace blitz::test {
namespace {

class CheckTest : public ProgramTest {
protected:
    /// Expects an error whose line and message's beginning are given.
    void faulty(const std::string& text, int line, const std::string& message) const {
        const std::string expected = "main.bb:" + std::to_string(line) + ": " + message;
        EXPECT_EQ(check(text).substr(0, expected.size()), expected) << text;
        EXPECT_EQ(last_.message.find(':'), std::string::npos);
        EXPECT_GT(last_.pos.endColumn, 0u);
    }
};

// One program with most of what real ones are written with.
const char* const sound = R"(
; a comment
Const W=640,H=W*3/4, Title$="x"
Global score, lives=3, name$="me", speed#=.9
Dim map(10,10,2,2), names$(20), all.Enemy(5)
Type Enemy
    Field x#,y#,z#,vx#,vy#,vz#,life,kind,name$,next_one.Enemy,slots[5],tags$[2],a,b,c,d,e,f,g,h
    Field weapon.Gun

End Type
Type Gun : Field power% : End Type
Global target.Enemy = Null
a=1:b=2:c$="three" : If a=1 b=2 Else b=3
IF a = 1 THEN
    Print "yes"
ELSEIF b=2 : Print "two"
Else If c$="x"
    print "no"
EndIf
For e.Enemy = Each Enemy
    e\x = e\x + e\vx * speed
    e\next_one = After e
    e\next_one\weapon\power% = 5
    e\slots[2] = Rnd(1,5)
    If e\name$ = "" Then Delete e : score = score + 1
Next
Select b
    Case 1, 2, W
        Print "low"
    Case a+1 : Print
    Default
        Select c Case "x" Print "nested" End Select
End Select
While Not KeyHit(1)
    Cls : Text 10,10,"Hello",1 : Flip False
    If KeyDown(200) Then Exit
Wend
Repeat Until a=1
For i=10 To 1 Step -1 : Next
Gosub subroutine
Goto finish
.subroutine
Restore items
Read item$, n, f#
Return
.items
Data "a;b", 1, -2.5, $FF, %101, Title, W+1
.finish
map(1,2,0,1)=5 : names(3)="x" : all(1)=New Enemy : all(1)\x=1
PositionEntity CreateCube(),1,2,3
cam=CreateCamera() : MoveEntity cam,0,0,-5 : PointEntity cam,cam
img=LoadImage("x.png") : DrawImage img,0,0
snd=LoadSound("x.wav") : If snd Then chn=PlaySound(snd)
win=CreateWindow("t",0,0,100,100) : ev=WaitEvent()
Print "a"+b : Print (a)+b : Print(a+b) : result=later(1) : later 1,2 : later(1,2)
Color=5 : Line$="names of commands may be variables"
e2.Enemy=Object.Enemy(Handle(e)) : Insert e Before First Enemy : Delete Each Gun
If e<>Null And e2=Last Enemy Then x#=Abs(Int(5.5)) Mod 3 ^ 2 Shl 1
If (a=1) And (b=2 Or Not c="x") Then a=~b Else If a>2 Then a=Sgn(-1) Else a=Float(1)
Local buffer[10], word$[2] : buffer[1]=5 : word[0]="w"
End
Function later(p,q=3,r$="d"+"e",s#=-1.5,t.Enemy=Null)
    Local k=p*q, l$=Str$(k)
    If p=1 Then Return k
    .again
    k=k-1 : If k>0 Then Goto again
    target=New Enemy
End Function
Function make.Enemy(list[5]) : Return New Enemy : End Function
)";

TEST_F(CheckTest, RealProgramsPass) {
    EXPECT_EQ(check(sound), "");
    std::string withReturns;
    for (const char* c = sound; *c; ++c) withReturns += *c == '\n' ? std::string("\r\n") : std::string(1, *c);
    EXPECT_EQ(check(withReturns), "");
    EXPECT_EQ(check(""), "");
    EXPECT_EQ(check("\xEF\xF0" + std::string()).find("main.bb:1: Unexpected character"), 0u);
}

TEST_F(CheckTest, UnbalancedBlocks) {
    faulty("If a\nb=1\n", 3, "Expecting 'EndIf' for the If of line 1");
    faulty("While a\nNext\n", 2, "Expecting 'Wend' for the While of line 1");
    faulty("For i=1 To 2\nWend", 2, "Expecting 'Next'");
    faulty("Repeat\n", 2, "Expecting 'Until' or 'Forever'");
    faulty("Select a\nPrint 1\nEnd Select", 2, "Expecting 'End Select'");
    faulty("Next", 1, "'Next' without its opener");
    faulty("a=1\nEndIf", 2, "'EndIf' without its opener");
    faulty("Function f()\n", 2, "Expecting 'End Function'");
    faulty("Function f()\nFunction g()\nEnd Function\nEnd Function", 2, "'Function' can only appear");
    faulty("If a\nType T\nEnd Type\nEndIf", 2, "'Type' can only appear");
    faulty("Function f()\nGlobal a\nEnd Function", 2, "'Global' can only appear");
    faulty("Exit", 1, "'Exit' must appear inside a loop");
    faulty("Repeat : f() : Forever\nFunction f()\nExit\nEnd Function", 3, "'Exit' must appear");
}

TEST_F(CheckTest, MalformedStatements) {
    faulty("a=\n", 1, "Expecting expression but found end of line");
    faulty("a=1+*2", 1, "Expecting expression");
    faulty("Print \"abc\nPrint 1", 1, "Unterminated string");
    faulty("a=(1+2", 1, "Expecting ')'");
    faulty("For =1 To 2", 1, "Expecting variable name");
    faulty("Print 1\n\na=1 ]", 3, "']' is unexpected here");
    faulty("Text (1,2\n", 1, "Mismatched brackets");
    faulty("Local 5", 1, "Expecting variable name");
    faulty("a\\b", 1, "Expecting '='");
    faulty("Type T\nPrint\nEnd Type", 2, "Expecting 'End Type'");
    faulty("a=b!c", 1, "Unexpected character '!'");
    EXPECT_EQ(last_.pos.column, 4u);
    EXPECT_EQ(last_.pos.endColumn, 5u);
}

TEST_F(CheckTest, UndeclaredNames) {
    faulty("Foo 1", 1, "Function 'Foo' not found");
    faulty("a=1\nb=bar(1)", 2, "Function 'bar' not found");
    faulty("a.T=Null", 1, "Type 'T' not found");
    faulty("Type T\nField a\nEnd Type\nx.T=New T\nx\\b=1", 5, "Type 'T' has no field 'b'");
    faulty("Goto away", 1, "Label 'away' not found");
    faulty("Restore away", 1, "Label 'away' not found");
    faulty("f()\n.l\nFunction f()\nGoto l\nEnd Function", 4, "Label 'l' not found");
    faulty("x(1)=5", 1, "Function 'x' not found");
    faulty("Const A=b", 1, "The expression must be constant");
}

TEST_F(CheckTest, Duplicates) {
    faulty("Function f()\nEnd Function\nFunction F()\nEnd Function", 3, "Duplicate function");
    faulty("Type T\nEnd Type\nType t\nEnd Type", 3, "Duplicate type");
    faulty("Global a\nGlobal A", 2, "Duplicate declaration of 'a'");
    faulty("Local a\nGlobal a", 2, "Duplicate declaration");
    faulty("a=1\nLocal a", 2, "Duplicate declaration");
    faulty("Const a=1\nConst a=2", 2, "Duplicate declaration");
    faulty(".l\n.l", 2, "Duplicate label");
    faulty("Type T\nField a,a$\nEnd Type", 2, "Duplicate field");
    faulty("Function f(a,a)\nEnd Function", 1, "Duplicate declaration");
    EXPECT_EQ(check("Global a : f(1)\nFunction f(a) : Local b : End Function\nFunction g(b) : Local a : End "
                    "Function"),
              "");
}

TEST_F(CheckTest, Arguments) {
    faulty("Print 1,2", 1, "Too many parameters for 'Print'");
    faulty("Text 1,2", 1, "Not enough parameters for 'Text'");
    faulty("a=Left$(\"x\")", 1, "Not enough parameters for 'Left'");
    faulty("f(1,2)\nFunction f(a)\nEnd Function", 1, "Too many parameters for function 'f'");
    faulty("f()\nFunction f(a)\nEnd Function", 1, "Not enough parameters for function 'f'");
    faulty("Function f(a=1,b)\nEnd Function", 1, "A parameter without a default");
    faulty("a=Cls()", 1, "'Cls' has no result");
    faulty("Dim a(1,2)\nPrint a(1)", 2, "The array 'a' has 2 dimensions");
    faulty("Dim a(1)\nDim a(1,2)", 2, "The array was declared with another number");
}

TEST_F(CheckTest, Types) {
    const std::string types = "Type T\nField x\nEnd Type\nType U\nEnd Type\n";
    faulty(types + "a.T=New U", 6, "Type mismatch");
    faulty(types + "a.T=5", 6, "Type mismatch");
    faulty(types + "a.T=New T\nb=a", 7, "Type mismatch");
    faulty(types + "a.T=New T\nPrint a+1", 7, "The operator cannot be applied to objects");
    faulty(types + "a.T=New T : b.U=New U\nIf a=b Then End", 7, "Type mismatch");
    faulty(types + "For i=Each T\nNext", 6, "The variable of the loop is not of type 'T'");
    faulty("a$=\"x\"\na#=1", 2, "Type mismatch, 'a' is a string");
    faulty("a=\"x\"*2", 1, "The operator cannot be applied to strings");
    faulty("Const A=1\nA=2", 2, "A constant cannot be assigned to");
    faulty("a=1\na\\x=1", 2, "The variable must be an object");
    faulty("For i$=1 To 2\nNext", 1, "The variable of a loop must be a number");
    faulty("For i=1 To 9 Step n\nNext", 1, "The expression must be constant");
    faulty("Return 5", 1, "The main program cannot return a value");
    faulty(types + "Function f.T()\nReturn 1\nEnd Function", 7, "Type mismatch");
    faulty("Local a[3]\na=1", 2, "An array cannot be assigned to");
    faulty("a=1\na[0]=1", 2, "The variable is not an array");
}

TEST_F(CheckTest, IncludesAreFoundInAnyCase) {
    put("Lib/Tools.BB", "Include \"more\\Deep.bb\"\nFunction tool()\nEnd Function\n");
    put("Lib/More/deep.bb", "Include \"..\\tools.bb\" : Include \"main.bb\"\nGlobal deep=1\n");
    put("shared.bb", "Function share() : End Function\n");
    EXPECT_EQ(check("Include \"lib\\tools.bb\"\nInclude \"LIB/TOOLS.BB\"\nInclude \"Shared.bb\"\ntool : "
                    "share : deep=2"),
              "");
    faulty("Print 1\nInclude \"none.bb\"", 2, "Unable to include \"none.bb\". File not found");
    faulty("Include \"lib\"", 1, "Unable to include");
    put("bad.bb", "a=1\r\nb=\r\n");
    EXPECT_EQ(check("Include \"BAD.bb\"").substr(0, 30), "bad.bb:2: Expecting expression");
    put("wrong.bb", "\n\nnope 1\n");
    EXPECT_EQ(check("Include \"wrong.bb\""), "wrong.bb:3: Function 'nope' not found");
}

TEST_F(CheckTest, LibrariesAddFunctions) {
    put("userlibs/Win.DECLS",
        "; windows\r\n.lib \"user32.dll\"\r\nApiBeep%(freq%,len%):\"Beep\"\r\nApiText$ ( a$, b* )\r\n"
        "ApiClose(handle)\r\nbroken line\r\n");
    EXPECT_EQ(check("a=ApiBeep(1,2) : b$=ApiText$(\"x\",a) : ApiClose a : ApiClose(a)"), "");
    faulty("ApiBeep 1", 1, "Not enough parameters for 'ApiBeep'");
    EXPECT_EQ(run("Print 1\nApiClose 5"), "1\nline 2: The library function ApiClose cannot be called here");
}

TEST_F(CheckTest, HostileSourcesEndInAMessage) {
    const std::string many(100'000, '(');
    EXPECT_NE(check("a=" + many), "");
    EXPECT_NE(check("a=" + std::string(100'000, '-') + "1"), "");
    std::string chain = "a=1";
    std::string blocks;
    std::string path = "a=b";
    for (int i = 0; i < 50'000; ++i) {
        chain += "+1";
        blocks += "If a\n";
        path += "\\c";
    }
    EXPECT_NE(check(chain), "");
    EXPECT_NE(check(blocks), "");
    EXPECT_NE(check(path), "");
    EXPECT_NE(check(std::string("a=1\0b", 5)), "");
    EXPECT_NE(check("Local a[99999999999]\nLocal b[2000000000]"), "");
}

// Damages a sound program at random places: the checker must come back with a place inside it.
TEST_F(CheckTest, DamagedSourcesGiveAPlaceInsideThem) {
    std::mt19937 random(12345);
    const std::string_view spare = "()[]\\\"$%#.,:;=<>\n\0\xFF"
                                   "End Function If Next \x01";
    const std::string original = sound;
    int faults = 0;
    for (int round = 0; round < 400; ++round) {
        std::string text = original;
        const auto changes = 1 + random() % 6;
        for (unsigned i = 0; i < changes; ++i) {
            const size_t at = random() % text.size();
            switch (random() % 4) {
            case 0: text.erase(at, 1 + random() % 12); break;
            case 1: text.insert(at, 1, spare[random() % spare.size()]); break;
            case 2: text[at] = static_cast<char>(random()); break;
            default: text.insert(at, text.substr(random() % text.size(), random() % 40));
            }
        }
        const std::string result = check(text);
        if (result.empty()) continue;
        ++faults;
        const auto lines = static_cast<uint32_t>(std::count(text.begin(), text.end(), '\n')) + 1;
        ASSERT_EQ(last_.pos.file, 0u) << result;
        ASSERT_GE(last_.pos.line, 1u) << result;
        ASSERT_LE(last_.pos.line, lines) << result;
        ASSERT_GE(last_.pos.column, 1u) << result;
        ASSERT_GE(last_.pos.endColumn, last_.pos.column) << result;
        ASSERT_FALSE(last_.message.empty());
    }
    EXPECT_GT(faults, 200);
}

}
}
