// The commands that run without a screen: strings, numbers, banks, files and folders.
#include "Programs.h"

#include "commands/CommandTable.h"
#include "natives/Natives.h"
#include "parse/Tokens.h"

#include <set>

namespace blitz::test {
namespace {

class CommandTest : public ProgramTest {};

TEST_F(CommandTest, Strings) {
    EXPECT_EQ(
        run("a$=\"hello\" : Print Left$(a,2)+Right$(a,2)+Mid$(a,2,3)+Mid(a,4) : Print "
            "Left$(a,99)+Right(a,-1)\n"
            "Print Instr(a,\"l\") : Print Instr(a,\"l\",4) : Print Instr(a,\"z\") : Print "
            "Replace$(a,\"l\",\"LL\")\n"
            "Print String$(\"ab\",3) : Print Upper$(a)+Lower$(\"ABC\") : Print \"[\"+Trim$(\"  x \")+\"]\"\n"
            "Print \"[\"+LSet$(a,7)+\"][\"+RSet$(a,7)+\"][\"+LSet(a,2)+RSet(a,2)+\"]\"\n"
            "Print Chr$(65)+Asc(\"A\")+Asc(\"\")+Len(a) : Print Hex$(255)+\" \"+Right$(Bin$(5),4)\n"),
        "heloelllo\nhello\n3\n4\n0\nheLLLLo\nababab\nHELLOabc\n[x]\n[hello  ][  hello][helo]\nA65-15\n"
        "000000FF 0101\n");
    EXPECT_EQ(run("Print Mid$(\"a\",0)"), "line 1: The position in a string must be 1 or more");
}

TEST_F(CommandTest, StringsGrowAndAreShared) {
    EXPECT_EQ(
        run("For i=1 To 1000 : a$=a+\"x\" : Next : b$=a : a=a+\"y\" : Print Len(a)+\" \"+Len(b)+Right$(b,1)\n"
            "c$=b+b : c=c+c : Print Len(c) : Print f$(c)+Len(c)\n"
            "Function f$(t$) : t=t+\"z\" : Return Right$(t,2) : End Function\n"),
        "1001 1000x\n4000\nxz4000\n");
}

TEST_F(CommandTest, Numbers) {
    EXPECT_EQ(run("Print Sin(30) : Print Cos(90) : Print Tan(45) : Print ATan2(1,1) : Print ASin(1) : Print "
                  "ACos(0)\n"
                  "Print Sqr(2) : Print Floor(-1.5) : Print Ceil(1.2) : Print Exp(0) : Print Log(1) : Print "
                  "Log10(1000)\n"),
              "0.5\n0.0\n1.0\n45.0\n90.0\n90.0\n1.41421\n-2.0\n2.0\n1.0\n0.0\n3.0\n");
}

TEST_F(CommandTest, ChanceRepeatsForASeedAndKeepsItsRange) {
    EXPECT_EQ(run("SeedRnd 42 : a=Rand(1000000) : b#=Rnd(5,6) : SeedRnd 42 : Print (a=Rand(1000000))+\" "
                  "\"+(b=Rnd(5,6))\n"
                  "For i=1 To 10000 : r=Rand(3,7) : If r<3 Or r>7 Then bad=bad+1\n"
                  "f#=Rnd(2) : If f<0 Or f>=2 Then bad=bad+1\n If r=3 low=1\n If r=7 high=1\nNext\n"
                  "Print bad+\" \"+low+high : SeedRnd 0 : Print Rand(5,5)\n"),
              "1 1\n0 11\n5\n");
}

TEST_F(CommandTest, Banks) {
    EXPECT_EQ(run("b=CreateBank(8) : PokeInt b,0,-2 : PokeFloat b,4,1.5 : Print PeekByte(b,0) : Print "
                  "PeekShort(b,2)\n"
                  "Print PeekInt(b,0) : Print PeekFloat(b,4) : ResizeBank b,12 : CopyBank b,0,b,4,8 : Print "
                  "PeekInt(b,4)\n"
                  "Print BankSize(b) : FreeBank b\nPrint BankSize(b)\n"),
              "254\n65535\n-2\n1.5\n-2\n12\nline 4: Bank does not exist");
    EXPECT_EQ(run("b=CreateBank(4)\nPokeInt b,1,0\n"), "line 2: Offset out of the range of the bank");
    EXPECT_EQ(run("b=CreateBank(4)\nPrint PeekByte(b,-1)\n"), "line 2: Offset out of the range of the bank");
}

TEST_F(CommandTest, FilesAndFolders) {
    EXPECT_EQ(
        run("CreateDir \"" + folder_ + "/sub\" : ChangeDir \"" + folder_ +
            "\"\n"
            "f=WriteFile(\"sub\\Test.txt\") : WriteLine f,\"first\" : WriteInt f,77 : WriteString f,\"str\" "
            ": WriteFloat f,.5\n"
            "CloseFile f : Print FileSize(\"SUB/test.TXT\") : Print FileType(\"sub\")+FileType(\"none\")\n"
            "f=ReadFile(\"sub/TEST.txt\") : Print ReadLine$(f)+ReadInt(f)+ReadString$(f)+ReadFloat(f) : "
            "Print Eof(f)\n"
            "CloseFile f : CopyFile \"sub/test.txt\",\"copy.dat\" : Print FileType(\"copy.dat\")\n"
            "d=ReadDir(\"sub\") : Repeat : n$=NextFile$(d) : If n=\"\" Exit\nWrite n+\" \" : Forever : "
            "CloseDir d : Print \"\"\n"
            "f=OpenFile(\"copy.dat\") : SeekFile(f,7) : Print ReadInt(f) : SeekFile(f,7) : WriteInt f,5 : "
            "SeekFile(f,7)\n"
            "Print ReadInt(f) : Print FilePos(f) : CloseFile f : DeleteFile \"copy.dat\" : Print "
            "FileType(\"copy.dat\")\n"
            "Print ReadFile(\"none\")\nPrint ReadByte(99)\n"),
        "22\n2\nfirst77str0.5\n1\n1\n. .. Test.txt \n77\n5\n11\n0\n0\nline 11: File handle is not valid");
}

TEST_F(CommandTest, ProgramsSeeTheirArgumentsAndDebugLog) {
    RunOptions options;
    options.arguments = "one two";
    EXPECT_EQ(run("Print CommandLine$() : DebugLog \"quiet\" : Stop : AppTitle \"t\"\n", options),
              "one two\n");
    options.debug = true;
    EXPECT_EQ(run("DebugLog \"loud\"\nStop\n", options), "loud\nStop in line 2\n");
    EXPECT_EQ(run("Print Len(CurrentTime$())+\" \"+Len(CurrentDate$()) : t=MilliSecs() : Delay 5 : Print "
                  "MilliSecs()-t>=5\n"),
              "8 11\n1\n");
}

// A command registered to run must be in the tables, or it would never be found.
TEST(CommandTableTest, EveryRunnableCommandIsInTheTables) {
    size_t count = 0;
    for (const NativeTable& table :
         {textNatives(), mathNatives(), systemNatives(), fileNatives(), folderNatives(), bankNatives()})
        for (size_t i = 0; i < table.count; ++i, ++count)
            EXPECT_GE(CommandTable::instance().find(lowerText(table.entries[i].name)), 0)
                << table.entries[i].name;
    EXPECT_GT(count, 90u);
}

TEST(CommandTableTest, DefinitionsAreTakenApart) {
    const Command text = parseDefinition("Text x%,y%,text$[,centre_x%][,centre_y%]");
    EXPECT_EQ(text.name, "Text");
    EXPECT_EQ(text.required, 3u);
    EXPECT_FALSE(text.hasResult);
    ASSERT_EQ(text.parameters.size(), 5u);
    EXPECT_EQ(text.parameters[2], ValueKind::String);
    const Command rnd = parseDefinition("Rnd# (from#[,to#])");
    EXPECT_EQ(rnd.name, "Rnd");
    EXPECT_EQ(rnd.result, ValueKind::Float);
    EXPECT_EQ(rnd.required, 1u);
    EXPECT_TRUE(rnd.hasResult);
}

// The vocabulary as its reader takes it: lines, names, marks and balanced brackets.
TEST(CommandTableTest, VocabularyIsWellFormed) {
    const std::string text = vocabulary();
    EXPECT_GT(text.size(), 3000u);
    std::set<std::string> names;
    size_t from = 0;
    for (size_t to; (to = text.find("\r\n", from)) != std::string::npos; from = to + 2) {
        const std::string line = text.substr(from, to - from);
        SCOPED_TRACE(line);
        ASSERT_FALSE(line.empty());
        EXPECT_TRUE(isalpha(static_cast<unsigned char>(line[0])));
        const size_t blank = line.find(' ');
        std::string name = lowerText(line.substr(0, blank));
        if (name.back() == '#' || name.back() == '$') {
            EXPECT_NE(blank, std::string::npos) << "a mark without parameters would stay in the name";
            name.pop_back();
        }
        EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_"), std::string::npos);
        EXPECT_TRUE(names.insert(name).second) << "listed twice";
        if (blank == std::string::npos) continue;
        const std::string parameters = line.substr(blank + 1);
        EXPECT_LT(parameters.size(), 255u);
        EXPECT_EQ(parameters[0] == '(', parameters.back() == ')');
        EXPECT_EQ(parameters.find(' '), std::string::npos);
        // Each parameter's name ends in its mark, so that the reader counts it once.
        for (size_t i = 1; i < parameters.size(); ++i) {
            const bool ends = std::string(",])[").find(parameters[i]) != std::string::npos;
            if (!ends || std::string("]([").find(parameters[i - 1]) != std::string::npos) continue;
            EXPECT_NE(std::string("%#$").find(parameters[i - 1]), std::string::npos);
        }
    }
    EXPECT_EQ(from, text.size());
    for (const char* const word :
         {"field", "for",     "while", "repeat", "type", "function", "select", "if",        "next",   "wend",
          "until", "forever", "end",   "then",   "else", "endif",    "case",   "default",   "elseif", "float",
          "int",   "str",     "local", "global", "null", "pi",       "print",  "createcube"})
        EXPECT_TRUE(names.count(word)) << word;
    EXPECT_GT(names.size(), 700u);
}

}
}
