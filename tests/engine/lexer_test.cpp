// Both scanners, printed as text: kind, start column and value.
#include "engine/Mod_Lexer.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace {

std::string Told(const Token& token, bool light) {
    std::string text = std::to_string(token.StartPos) + ":";
    switch (token.Kind) {
    case TOK_NONE: return text + "none-" + std::to_string(token.EndPos);
    case TOK_STRING: return text + "str'" + token.Text + "'-" + std::to_string(token.EndPos);
    case TOK_NUMBER: return text + "num'" + token.Text + "'-" + std::to_string(token.EndPos);
    case TOK_IDENT: return text + "id'" + token.Text + "'-" + std::to_string(token.EndPos);
    case TOK_COMMENT: return text + (light ? "?" : ";");
    case TOK_BLOCK_START: return text + "block'" + token.Text + "'-" + std::to_string(token.EndPos);
    case TOK_BLOCK_END: return text + "end'" + token.Text + "'-" + std::to_string(token.EndPos);
    default: return text + static_cast<char>(token.Kind);
    }
}

std::string Scan(std::string line, bool light = false) {
    const int length = light ? Mod_Lexer::FillLightBuffer(line) : Mod_Lexer::FillLineBuffer(line);
    const int count =
        light ? Mod_Lexer::TokenizeLightPomosna(line, length) : Mod_Lexer::Tokenize(line, length);
    const auto& tokens = light ? LightTokens : Tokens;
    std::string text;
    for (int i = 1; i <= count; ++i)
        text += (i == 1 ? "" : " ") + Told(tokens[static_cast<std::size_t>(i)], light);
    EXPECT_EQ(tokens[static_cast<std::size_t>(count) + 1].Kind, TOK_NONE) << line;
    return text;
}

class LexerTest : public testing::Test {
protected:
    LexerTest() { Mod_Lexer::BuildCharacterTables(); }
    FakeHost host;
};

struct Row {
    const char* line;
    const char* tokens;
};

TEST_F(LexerTest, EachKindWithItsExtent) {
    const Row rows[] = {
        {"", ""},
        {" \t  ", ""},
        {"foo_bar9 x\r\n", "1:id'foo_bar9'-9 10:id'x'-11"},
        {"_foo x", "1:none-5 6:id'x'-7"},
        {"a$", "1:id'a'-2 2:$"},
        {"$1F", "1:num'$1F'-4"},
        {"a$1F", "1:id'a'-2 2:num'$1F'-5"},
        {"$FFG+", "1:none-5 5:+"},
        {"a%", "1:id'a'-2 2:%"},
        {"a%101", "1:id'a'-2 2:num'%101'-6"},
        {"%102", "1:none-5"},
        {"x.y", "1:id'x'-2 2:. 3:id'y'-4"},
        {"1.5.5", "1:num'1.5'-4 4:num'.5'-6"},
        {"1. 2", "1:num'1.'-3 4:num'2'-5"},
        {"1e5 12abc", "1:none-4 5:none-10"},
        {".5 .", "1:num'.5'-3 4:."},
        {"a[1]=b(2),c:\\d#", "1:id'a'-2 2:[ 3:num'1'-4 4:] 5:= 6:id'b'-7 7:( 8:num'2'-9 9:) 10:, 11:id'c'-12 "
                             "12:: 13:\\ 14:id'd'-15 15:#"},
        {"<>+-*/^~", "1:< 2:> 3:+ 4:- 5:* 6:/ 7:^ 8:~"},
        {"\"a b\"c", "1:str'a b'-5 6:id'c'-7"},
        {"\"\"", "1:str''-2"},
        // A tab ends a string as a quote does; what follows is code, and its quote opens another one.
        {"\"a\tb\"", "1:str'a'-3 4:id'b'-5 5:str''-6"},
        {"a\xE9\xF6"
         "b?",
         "1:id'a'-2 2:none-3 3:none-4 4:id'b'-5 5:none-6"},
        {"a\nb", "1:id'a'-2 2:none-3 3:id'b'-4"},
    };
    for (const Row& row : rows) EXPECT_EQ(Scan(row.line), row.tokens) << row.line;
}

TEST_F(LexerTest, AnUnterminatedStringEndsTheScanWithEitherLineEnd) {
    for (const char* end : {"", "\r\n", "\n", "\r"}) {
        EXPECT_EQ(Scan(std::string("x \"abc") + end), "1:id'x'-2 3:str'abc'-7") << "end " << *end;
        EXPECT_EQ(Scan(std::string("x \"") + end), "1:id'x'-2 3:str''-4");
        EXPECT_EQ(Scan(std::string("x  ") + end), "1:id'x'-2");
    }
}

TEST_F(LexerTest, CommentsEndTheLineAndBlocksAreWords) {
    EXPECT_EQ(Scan("a;b c"), "1:id'a'-2 2:;");
    EXPECT_EQ(Scan(";[block extra words"), "1:block'block'-8");
    EXPECT_EQ(Scan(" ;[END"), "2:end'END'-7");
    for (const char* plain : {";[ Block", ";[Blocks", ";[_End", ";["}) EXPECT_EQ(Scan(plain), "1:;") << plain;
    Scan(";!x");
    EXPECT_EQ(Tokens[1].EndPos, SecondCommentStyle);
    Scan(";[other");
    EXPECT_NE(Tokens[1].EndPos, SecondCommentStyle); // not left over from the line before
    Scan("; !x");
    EXPECT_EQ(Tokens[1].EndPos, 0);
}

TEST_F(LexerTest, TheLightScannerYieldsWordsDigitsAndPunctuationOnly) {
    const Row rows[] = {
        {"  End Function\r\n", "3:id'End'-6 7:id'Function'-15"},
        {"a = %101 + 1.5", "1:id'a'-2 3:= 5:% 6:num'101'-9 10:+ 12:num'1'-13 13:. 14:num'5'-15"},
        {"x \"a ; b\tc\" y", "1:id'x'-2 13:id'y'-14"},
        {"x \"open", "1:id'x'-2"},
        {"x ;[Block y", "1:id'x'-2"},
        {";[Block", ""},
        {"$1F _a", "2:num'1'-3 3:id'F'-4 6:id'a'-7"},
    };
    for (const Row& row : rows) EXPECT_EQ(Scan(row.line, true), row.tokens) << row.line;
}

TEST_F(LexerTest, TheScannersLeaveOneAnothersTokensAlone) {
    Scan("first second");
    Scan("third", true);
    EXPECT_EQ(Tokens[2].Text, "second");
    Scan("x");
    EXPECT_EQ(LightTokens[1].Text, "third");
}

TEST_F(LexerTest, ALineBeyondTheLimitsCountsAsEmptyAndIsReported) {
    std::string longest(LongestLine, ' ');
    longest.back() = 'x';
    EXPECT_EQ(Scan(longest), "32767:id'x'-32768");
    EXPECT_EQ(Mod_Lexer::Tokenize("", -1), 0);
    std::string most;
    for (int i = 0; i < MostTokens; ++i) most += ':';
    std::string line = most;
    EXPECT_EQ(Mod_Lexer::Tokenize(line, Mod_Lexer::FillLineBuffer(line)), MostTokens);
    EXPECT_EQ(host.ErrorLog(), "");

    host.ExpectErrorLog();
    EXPECT_EQ(Scan(longest + "y"), "");
    EXPECT_NE(host.ErrorLog().find("Mod_Lexer"), std::string::npos);
    EXPECT_EQ(Scan(most + ":"), "");
    EXPECT_EQ(Scan(most + ":", true), "");
    EXPECT_NE(host.ErrorLog().find("TokenizeLightPomosna"), std::string::npos);
}

TEST_F(LexerTest, TheTablesKnowEachClass) {
    std::string after, suffix, brackets;
    for (std::size_t c = 0; c <= 256; ++c) {
        EXPECT_TRUE(!IsIdStart[c] || IsIdChar[c]) << c;
        EXPECT_TRUE(!IsBracket[c] || IsPunctuation[c]) << c;
        EXPECT_TRUE(c < 128 || !(IsIdChar[c] || IsPunctuation[c] || IsOperator[c] || HashChar[c])) << c;
        if (IsAfterName[c]) after += static_cast<char>(c);
        if (IsNameSuffix[c]) suffix += static_cast<char>(c);
        if (IsBracket[c]) brackets += static_cast<char>(c);
    }
    EXPECT_EQ(after, "#$%(.[\\");
    EXPECT_EQ(suffix, "#$%.\\");
    EXPECT_EQ(brackets, "()[]");
    EXPECT_TRUE(IsIdChar['_'] && !IsIdStart['_'] && !IsDigit['A'] && IsHexDigit['f'] && !IsHexDigit['g']);
    EXPECT_EQ(SuffixTip['%'] * 100 + SuffixTip['#'] * 10 + SuffixTip['$'], 123);
    EXPECT_EQ(HashChar['a'], 'A');
    EXPECT_EQ(HashChar['\t'], 0);
}

} // namespace
