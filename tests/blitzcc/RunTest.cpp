// Whole programs: the text of each goes in, what it prints comes out.
#include "Programs.h"

namespace blitz::test {
namespace {

class RunTest : public ProgramTest {};

TEST_F(RunTest, NumbersPrintAsUsersKnowThem) {
    EXPECT_EQ(
        run("Print 1.0 : Print .5 : Print 5. : Print 1.0/3 : Print -2.25 : Print 1000000.0\n"
            "Print 12345678.0 : Print 123456789.0 : Print 0.001 : Print 0.00001 : Print $FF : Print %101\n"
            "Print 1/0.0 : Print -1/0.0 : Print Pi : Print -0.0\n"),
        "1.0\n0.5\n5.0\n0.333333\n-2.25\n1000000.0\n12345700.0\n1.23457e+008\n0.001\n1e-005\n255\n5\n"
        "Infinity\n-Infinity\n3.14159\n0.0\n");
}

TEST_F(RunTest, IntegersWrapAround) {
    EXPECT_EQ(
        run("a=2147483647 : a=a+1 : Print a : Print a-1 : Print $FFFFFFFF : Print -7/2 : Print -7 Mod 3\n"
            "Print 65536*65536 : Print a/-1 : Print a Mod -1 : Print Abs(a) : Print -8 Sar 1 : Print -8 Shr "
            "28\n"
            "Print 1 Shl 33 : Print ~0 : Print 6 And 3 : Print 6 Or 3 : Print 6 Xor 3\n"),
        "-2147483648\n2147483647\n-1\n-3\n-1\n0\n-2147483648\n0\n-2147483648\n-4\n15\n2\n-1\n2\n7\n5\n");
}

TEST_F(RunTest, ConversionsRoundAndReadTexts) {
    EXPECT_EQ(run("a=2.5 : Print a : a=3.5 : Print a : a=-1.7 : Print a : Print Int(\"12abc\") : Print "
                  "Float(\"1.5x\")\n"
                  "Print Str(5)+1 : b$=7 : Print b+\"!\" : Print \"x\"+1.5+2 : Print 1+2+\"x\"\n"),
              "2\n4\n-2\n12\n1.5\n51\n7!\nx1.52\n3x\n");
}

TEST_F(RunTest, OperatorsBindAsTheLanguageHasIt) {
    EXPECT_EQ(
        run("Print 1+2*3 : Print (1+2)*3 : Print 2^3*2 : Print -2^2 : Print 1+1 Shl 2 : Print 10-2-3\n"
            "Print Not 1=2 : Print 1<2=1 : Print 7 Mod 4*2 : a=0 : Print Not a And 0 : Print 1 And Not 0\n"
            "Print \"abc\"<\"abd\" : Print \"b\">\"abc\" : Print 10=\"10\" : Print Sgn -3 : Print Abs "
            "-2.5\n"),
        "7\n9\n16.0\n4.0\n5\n5\n1\n1\n6\n1\n1\n1\n1\n1\n-1\n2.5\n");
}

TEST_F(RunTest, IfTakesAllItsForms) {
    EXPECT_EQ(run("For a=1 To 4\n"
                  "If a=1 b=2 Else b=3\n"
                  "If a=1 Then Write \"one \" : Write \"uno \"\n"
                  "If a=2\nWrite \"two \"\nElseIf a=3\nWrite \"three \"\nElse If a=4\nWrite \"four \"\nElse\n"
                  "Write \"else \"\nEnd If\n"
                  "If a>2 If a>3 Write \"big \" Else Write \"mid \"\n"
                  "If a=1 Then\nWrite \"then \"\nEndIf\n"
                  "Print b\nNext\n"),
              "one uno else then 2\ntwo 3\nthree mid 3\nfour big 3\n");
}

TEST_F(RunTest, LoopsRunTheRightNumberOfTimes) {
    EXPECT_EQ(
        run("For i=1 To 3 : Write i : Next : Print \"|\"+i\n"
            "For i=5 To 1 Step -2 : Write i : Next : Print \"|\"+i\n"
            "For i=1 To 0 : Write i : Next : Print \"none\"\n"
            "For f#=0 To 1 Step .25 : Write f+\" \" : Next : Print \"\"\n"
            "n=3 : For i=1 To n : n=2 : Write i : Next : Print \"\"\n"
            "While k<3 : k=k+1 : If k=2 Exit\nWend : Print k\n"
            "Repeat : k=k+1 : Until k>5 : Print k\n"
            "Repeat : For j=1 To 9 : If j=2 Exit\nNext : k=k+1 : If k=10 Exit\nForever : Print k+\" \"+j\n"),
        "123|4\n531|-1\nnone\n0.0 0.25 0.5 0.75 1.0 \n12\n2\n6\n10 2\n");
}

TEST_F(RunTest, SelectComparesInTheSelectorsTerms) {
    EXPECT_EQ(
        run("For i=1 To 5\nSelect i*2\nCase 2,4\nWrite \"low \"\nCase 6\nWrite \"six \"\nDefault\nWrite "
            "\"high \"\n"
            "End Select\nNext\nSelect \"b\"\nCase \"a\" Print \"A\"\nCase \"b\" Print \"B\"\nEnd Select\n"),
        "low low six high high B\n");
}

TEST_F(RunTest, FunctionsRecurseAndHaveDefaults) {
    EXPECT_EQ(run("Print fib(20) : Print twice(\"ab\") : Print twice$(\"c\",\"-\") : show 1,2 : show(3)\n"
                  "Print (1)+2 : Print nothing$()+nothing2() : Print half(3)\n"
                  "Function fib(n) : If n<2 Return n\nReturn fib(n-1)+fib(n-2) : End Function\n"
                  "Function twice$(t$,by$=\"/\") : Return t+by+t : End Function\n"
                  "Function show(a,b=9) : Print a+\",\"+b : End Function\n"
                  "Function nothing$() : End Function\nFunction nothing2() : Return : End Function\n"
                  "Function half#(x#) : Return x/2 : End Function\n"),
              "6765\nab/ab\nc-c\n1,2\n3,9\n3\n0\n1.5\n");
}

TEST_F(RunTest, VariablesHaveTheirScope) {
    EXPECT_EQ(run("Global g=1 : m=5 : a=1 : f(2) : Print g+\" \"+m+\" \"+a+\" \"+K\nConst K=4,L=K*2\n"
                  "Function f(a) : Local b=L : g=g+a+b : m=99 : a=7 : Print m : End Function\n"),
              "99\n11 5 1 4\n");
}

TEST_F(RunTest, GosubAndGotoWorkInMainAndFunctions) {
    EXPECT_EQ(run("Gosub one : Gosub one : f() : Goto fin\n.one\nn=n+1 : Print \"one \"+n : "
                  "Return\n.fin\nPrint \"end\" : End\n"
                  "Function f() : Gosub one : Print \"back\" : Goto out\n.one\nPrint \"inner\" : "
                  "Return\n.out\nEnd Function\n"),
              "one 1\none 2\ninner\nback\nend\n");
}

TEST_F(RunTest, DataIsReadInOrderAndRestored) {
    EXPECT_EQ(
        run("Read a,b$,c# : Print a+b+c : Restore second : Read d$ : Print d : Restore : Read e$ : Print e\n"
            "f() : Read z : Print z\nData 1,\"two\",3\n.second\nData -4.5,K\nConst K=9\n"
            "Function f() : Restore second : Read x# : Print x : End Function\n"),
        "1two3.0\n-4.5\n1\n-4.5\n9\n");
}

TEST_F(RunTest, ArraysOfEveryKind) {
    EXPECT_EQ(run("Dim a(2,3,1,2),s$(4),t.T(3)\nType T : Field v,list[2],names$[1],other.T : End Type\n"
                  "a(2,3,1,2)=7 : a(0,1,0,0)=1 : Print a(2,3,1,2)+a(0,1,0,0)+a(2,3,1,1)\n"
                  "s(4)=\"x\" : s$(4)=s(4)+\"y\" : Print s(4)+s(0)+\"|\"\n"
                  "t(1)=New T : t(1)\\list[2]=5 : t(1)\\names[1]=\"n\" : Print t(1)\\list[2]+t(1)\\names[1]\n"
                  "t(1)\\other=t(1) : t(1)\\other\\v=3 : Print t(1)\\v\n"
                  "Local v[3] : v[3]=4 : fill(v) : Print v[0]+v[3]\nDim a(1,1,1,1) : Print a(1,1,1,1)\n"
                  "Function fill(x[3]) : x[0]=x[3]*2 : Local w$[2] : w[1]=w[1]+\"q\" : Write w[1] : End "
                  "Function\n"),
              "8\nxy|\n5n\n3\nq12\n0\n");
}

TEST_F(RunTest, ObjectsFormLists) {
    const std::string type =
        "Type T : Field n : End Type\nFunction make.T(n) : x.T=New T : x\\n=n : Return x : End Function\n"
        "Function show() : For s.T=Each T : Write s\\n+\" \" : Next : Print \"\" : End Function\n";
    EXPECT_EQ(
        run(type +
            "a.T=make(1) : b.T=make(2) : c.T=make(3) : show\nInsert c Before a : show\n"
            "Insert a After b : show\nDelete b : show\nPrint (b=Null)+\" \"+(First T=c)+\" \"+(Last T=a)\n"
            "Print (After c=a)+\" \"+(Before c=Null)\nDelete Each T : show : Print First T=Null\n"),
        "1 2 3 \n3 1 2 \n3 2 1 \n3 1 \n1 1 1\n1 1\n\n1\n");
    EXPECT_EQ(run(type + "make 1 : make 2 : a.T=Last T : h=Handle(a) : Print Object.T(h)\\n : Delete a\n"
                         "Print Object.T(h)=Null : Print Handle(a) : Print Object.T(77)=Null\n"),
              "2\n1\n0\n1\n");
}

TEST_F(RunTest, DeletingInsideForEachGoesOn) {
    EXPECT_EQ(
        run("Type T : Field n,s$ : End Type\nFor i=1 To 6 : t.T=New T : t\\n=i : t\\s=i : Next\n"
            "For t.T=Each T : If t\\n Mod 2 Then Delete t Else Write t\\s\nNext : Print \"\"\n"
            "For t=Each T : u.T=After t : If u<>Null Then Delete u\nDelete t : Next : Print First T=Null\n"
            "For t=Each T : Print \"left\" : Next\nFor i=1 To 3 : New_T() : Next : Print count()\n"
            "For t=Each T : Delete Each T : t=New T : n=n+1 : If n=3 Exit\nNext : Print count()\n"
            "Function New_T() : t.T=New T : End Function\n"
            "Function count() : For t.T=Each T : n=n+1 : Next : Return n : End Function\n"),
        "246\n1\n3\n1\n");
}

TEST_F(RunTest, ErrorsNameTheirLine) {
    EXPECT_EQ(run("Print 1\na=0\nPrint 5/a\n"), "1\nline 3: Division by zero");
    EXPECT_EQ(run("a=0\n\nPrint 5 Mod a\n"), "line 3: Division by zero");
    EXPECT_EQ(run("Dim a(3)\ni=4\na(i)=1\n"), "line 3: Array index out of bounds");
    EXPECT_EQ(run("Dim a(3,3)\nPrint a(1,-1)\n"), "line 2: Array index out of bounds");
    EXPECT_EQ(run("f()\nDim a(3)\nFunction f()\nEnd Function\nPrint a(4)"),
              "line 5: Array index out of bounds");
    EXPECT_EQ(run("Local v[2]\nv[3]=1\n"), "line 2: Array index out of bounds");
    EXPECT_EQ(run("Type T\nField x\nEnd Type\na.T=Null\na\\x=1\n"), "line 5: Object does not exist");
    EXPECT_EQ(run("Read a\nRead b\nData 1\n"), "line 2: Out of data");
    EXPECT_EQ(run("Print 1\nReturn\n"), "1\nline 2: Return without Gosub");
    EXPECT_EQ(run("f()\nFunction f()\nf()\nEnd Function\n"), "line 3: Stack overflow");
    EXPECT_EQ(run(".a\nGosub a\n"), "line 2: Too many Gosubs without Return");
    EXPECT_EQ(run("RuntimeError \"gone\"\n"), "line 1: gone");
    EXPECT_EQ(run("Dim a(100000,100000)\n"), "line 1: The array is too large");
    EXPECT_NE(run("Print 1\nGraphics 640,480\n").find("line 2: The command Graphics needs a screen"),
              std::string::npos);
}

TEST_F(RunTest, BytesPassUnchanged) {
    EXPECT_EQ(run("Print \"\xE4\xF6\x80\" ; \xFC\r\nPrint Asc(\"\xFF\")\r\nPrint \"a\tb\"\r\n"),
              "\xE4\xF6\x80\n255\na\tb\n");
}

}
}
