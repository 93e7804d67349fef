// The scanner: one editor line of bytes becomes a flat array of tokens. It knows nothing of keywords.
// Both scanners fill arrays that are made once and reused; neither is reentrant.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// Token kinds beside punctuation and operators, whose kind is their character.
enum : std::uint8_t {
    TOK_NONE = 0,
    TOK_STRING = 1,
    TOK_NUMBER = 2,
    TOK_IDENT = 3,
    TOK_COMMENT = 59,
    TOK_BLOCK_START = 201,
    TOK_BLOCK_END = 202,
};

// EndPos of a ";!" comment.
constexpr std::int32_t SecondCommentStyle = -100;

struct Token {
    std::uint8_t Kind = TOK_NONE;
    std::string Text;          // stale on kinds that have none
    std::int32_t StartPos = 0; // column from 1
    std::int32_t EndPos = 0;   // stale on kinds that have none
};

constexpr int LineBufferSize = 32769; // index 0 is never read
constexpr int LongestLine = 32767;
constexpr int MostTokens = 2000;

// Filled by the callers and the scanners; one line each at a time.
extern std::array<std::uint8_t, LineBufferSize> LineBuffer;
extern std::array<std::uint8_t, LineBufferSize> LightBuffer;
extern std::array<Token, MostTokens + 2> Tokens; // from 1; one more than the last is the end sentinel
extern std::array<Token, MostTokens + 2> LightTokens;

inline Token& TokenAt(int index) { return Tokens[static_cast<std::size_t>(index)]; }
inline Token& LightTokenAt(int index) { return LightTokens[static_cast<std::size_t>(index)]; }

// Character classes by byte value. Written by BuildCharacterTables alone.
using CharacterClass = std::array<std::int16_t, 257>;
extern CharacterClass IsIdChar, IsIdStart, IsDigit, IsHexDigit, IsBinDigit, IsBlank, IsOperator,
    IsPunctuation, IsBracket, IsCloseBracket, IsAfterName, IsNameSuffix;
extern std::array<std::uint8_t, 257> SuffixTip;          // byte to value type
extern std::array<std::uint8_t, 257> HashChar;           // byte to its upper-case value, 32 to 127
extern const std::array<std::string_view, 7> SuffixText; // value type to suffix

namespace Mod_Lexer {

// Fills the tables; a second call changes nothing.
void BuildCharacterTables();

// Scans `length` bytes from index 1 of the buffer; token texts are cut from `line`, the same bytes. Returns
// the number of tokens; 0 for a line beyond the limits, which is reported unless `quiet`.
int Tokenize(std::string_view line, int length, bool quiet = false);
int TokenizeLightPomosna(std::string_view line, int length, bool quiet = false);
// Whether the last Tokenize refused its line.
bool Refused();
// The full scan of a line into LightBuffer and LightTokens, in the middle of a pass over Tokens.
int TokenizeBeside(std::string line);

// Copies a line to LineBuffer and returns its length; a bare LF at its end becomes a CR. A line longer than
// LongestLine is not copied, because the scanner refuses it by its length.
int FillLineBuffer(std::string& line);
int FillLightBuffer(std::string& line);

} // namespace Mod_Lexer
