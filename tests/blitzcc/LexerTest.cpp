// The lexer and the symbols: kinds, values and places of tokens.
#include "parse/Lexer.h"

#include <gtest/gtest.h>

namespace blitz::test {
namespace {

/// The tokens of a text up to its end.
std::vector<Token> tokens(std::string_view text) {
    static Symbols symbols;
    Lexer lexer(text, 0, symbols);
    std::vector<Token> all;
    for (; lexer.peek().kind != Tok::End; lexer.advance()) all.push_back(lexer.peek());
    return all;
}

/// The kinds of the tokens without the last line's end.
std::vector<Tok> kinds(std::string_view text) {
    std::vector<Tok> all;
    for (const Token& token : tokens(text)) all.push_back(token.kind);
    all.pop_back();
    return all;
}

TEST(LexerTest, NumbersInAllForms) {
    EXPECT_EQ(tokens("42")[0].integer, 42);
    EXPECT_EQ(tokens("$ff")[0].integer, 255);
    EXPECT_EQ(tokens("$FFFFFFFF")[0].integer, -1);
    EXPECT_EQ(tokens("%1010")[0].integer, 10);
    EXPECT_EQ(tokens("4294967297")[0].integer, 1);
    EXPECT_FLOAT_EQ(tokens(".5")[0].real, 0.5f);
    EXPECT_FLOAT_EQ(tokens("5.")[0].real, 5.0f);
    EXPECT_FLOAT_EQ(tokens("3.25")[0].real, 3.25f);
    EXPECT_EQ(kinds("1.5.5"), (std::vector<Tok>{Tok::Float, Tok::Float}));
    EXPECT_EQ(kinds("12abc"), (std::vector<Tok>{Tok::Int, Tok::Name}));
}

TEST(LexerTest, MarksBehindNamesAreNoNumbers) {
    EXPECT_EQ(kinds("a$"), (std::vector<Tok>{Tok::Name, Tok::Dollar}));
    EXPECT_EQ(kinds("a%=%1"), (std::vector<Tok>{Tok::Name, Tok::Percent, Tok::Equal, Tok::Int}));
    EXPECT_EQ(kinds("a$=$F"), (std::vector<Tok>{Tok::Name, Tok::Dollar, Tok::Equal, Tok::Int}));
    EXPECT_EQ(kinds("e.Enemy\\x#"),
              (std::vector<Tok>{Tok::Name, Tok::Dot, Tok::Name, Tok::Backslash, Tok::Name, Tok::Hash}));
}

TEST(LexerTest, WordsIgnoreCaseAndJoin) {
    EXPECT_EQ(kinds("END IF"), (std::vector<Tok>{Tok::KwEndIf}));
    EXPECT_EQ(kinds("End \t Function"), (std::vector<Tok>{Tok::KwEndFunction}));
    EXPECT_EQ(kinds("else if"), (std::vector<Tok>{Tok::KwElseIf}));
    EXPECT_EQ(kinds("End\nIf"), (std::vector<Tok>{Tok::KwEnd, Tok::Newline, Tok::KwIf}));
    EXPECT_EQ(kinds("Else ifx"), (std::vector<Tok>{Tok::KwElse, Tok::Name}));
    EXPECT_EQ(kinds("Else:If"), (std::vector<Tok>{Tok::KwElse, Tok::Colon, Tok::KwIf}));
    const auto names = tokens("Foo fOO bar");
    EXPECT_EQ(names[0].symbol, names[1].symbol);
    EXPECT_NE(names[0].symbol, names[2].symbol);
}

TEST(LexerTest, ComparisonsInBothOrders) {
    EXPECT_EQ(kinds("<= =< >= => <> >< < > ="),
              (std::vector<Tok>{Tok::LessEqual, Tok::LessEqual, Tok::GreaterEqual, Tok::GreaterEqual,
                                Tok::NotEqual, Tok::NotEqual, Tok::Less, Tok::Greater, Tok::Equal}));
}

TEST(LexerTest, StringsAndCommentsKeepTheirBytes) {
    const auto all = tokens("a=\"x;\t\xE4\" ; rest \" \xFF\r\nb");
    ASSERT_EQ(all.size(), 6u);
    EXPECT_EQ(all[2].text, "x;\t\xE4");
    EXPECT_EQ(all[3].kind, Tok::Newline);
    EXPECT_EQ(all[4].pos.line, 2u);
}

TEST(LexerTest, PlacesCountFromOne) {
    const auto all = tokens("ab = \"cd\"\r\n  e");
    EXPECT_EQ(all[0].pos.column, 1u);
    EXPECT_EQ(all[0].pos.endColumn, 3u);
    EXPECT_EQ(all[2].pos.column, 6u);
    EXPECT_EQ(all[2].pos.endColumn, 10u);
    EXPECT_EQ(all[4].pos.line, 2u);
    EXPECT_EQ(all[4].pos.column, 3u);
}

TEST(LexerTest, TheWindowSlidesOverLongTexts) {
    Symbols symbols;
    std::string text;
    for (int i = 0; i < 5000; ++i) text += std::to_string(i) + " ";
    Lexer lexer(text, 0, symbols);
    for (int i = 0; i < 4990; ++i, lexer.advance()) {
        ASSERT_EQ(lexer.peek(9).integer, i + 9);
        ASSERT_EQ(lexer.peek().integer, i);
    }
    for (int i = 0; i < 100; ++i) lexer.advance();
    EXPECT_EQ(lexer.peek().kind, Tok::End);
    EXPECT_EQ(lexer.peek(50).kind, Tok::End);
}

TEST(LexerTest, FaultsTellTheirPlace) {
    try {
        tokens("a=1\n  \"open\r\n");
        FAIL() << "an open string must be reported";
    } catch (const CompileError& error) {
        EXPECT_EQ(error.message, "Unterminated string");
        EXPECT_EQ(error.pos.line, 2u);
        EXPECT_EQ(error.pos.column, 3u);
        EXPECT_EQ(error.pos.endColumn, 8u);
    }
    EXPECT_THROW(tokens("a?b"), CompileError);
    EXPECT_THROW(tokens("_a"), CompileError);
    EXPECT_THROW(tokens("\x80"), CompileError);
}

}
}
