// The scanner. Classification is one indexed load a character; nothing is allocated but token texts.
#include "engine/Mod_Lexer.h"

#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Text.h"

#include <cstring>

std::array<std::uint8_t, LineBufferSize> LineBuffer{};
std::array<std::uint8_t, LineBufferSize> LightBuffer{};
std::array<Token, MostTokens + 2> Tokens;
std::array<Token, MostTokens + 2> LightTokens;

CharacterClass IsIdChar{}, IsIdStart{}, IsDigit{}, IsHexDigit{}, IsBinDigit{}, IsBlank{}, IsOperator{},
    IsPunctuation{}, IsBracket{}, IsCloseBracket{}, IsAfterName{}, IsNameSuffix{};
std::array<std::uint8_t, 257> SuffixTip{};
std::array<std::uint8_t, 257> HashChar{};
const std::array<std::string_view, 7> SuffixText = {"", "%", "#", "$", "?", ".", "??"};

namespace Mod_Lexer {

namespace {

constexpr std::uint8_t CarriageReturn = 13;
constexpr std::uint8_t LineFeed = 10;
constexpr std::uint8_t Quote = '"';

void Mark(CharacterClass& table, std::string_view characters) {
    for (const char c : characters) table[static_cast<std::uint8_t>(c)] = -1;
}

void MarkRange(CharacterClass& table, std::uint8_t first, std::uint8_t last) {
    for (std::size_t c = first; c <= last; ++c) table[c] = -1;
}

bool refused = false;

[[noreturn]] void OutOfRange() { throw Failure(FailureOutOfRange, "Subscript out of range"); }

using TokenArray = std::array<Token, MostTokens + 2>;
using Buffer = std::array<std::uint8_t, LineBufferSize>;

// One pass over a buffer.
class FullScan {
public:
    FullScan(std::string_view line, int length, Buffer& buffer, TokenArray& tokens)
        : line_(line), limit_(length + 1), buffer_(buffer), tokens_(tokens) {
        if (length < -1 || length > LongestLine) OutOfRange();
        buffer_[static_cast<std::size_t>(limit_)] = CarriageReturn;
    }

    int Run() {
        while (column_ < limit_) {
            if (++count_ > MostTokens) OutOfRange();
            while (IsBlank[At(column_)]) ++column_;
            token_ = &tokens_[static_cast<std::size_t>(count_)];
            token_->StartPos = column_;
            if (!ScanToken(At(column_))) {
                token_->Kind = TOK_NONE;
                return --count_;
            }
        }
        tokens_[static_cast<std::size_t>(count_) + 1].Kind = TOK_NONE;
        return count_;
    }

private:
    std::uint8_t At(int column) const { return buffer_[static_cast<std::size_t>(column)]; }

    void RunOver(const CharacterClass& table) {
        while (table[At(column_)]) ++column_;
    }

    void Take(std::uint8_t kind, int start, int end) {
        token_->Kind = kind;
        token_->EndPos = end;
        token_->Text.assign(
            line_.substr(static_cast<std::size_t>(start) - 1, static_cast<std::size_t>(end - start)));
    }

    void TakeNone() {
        token_->Kind = TOK_NONE;
        token_->EndPos = column_;
    }

    // Scans one token at the column; false at the line's end.
    bool ScanToken(std::uint8_t c) {
        if (IsIdStart[c]) {
            RunOver(IsIdChar);
            Take(TOK_IDENT, token_->StartPos, column_);
        } else if (c == ';') {
            Comment();
        } else if (IsPunctuation[c]) {
            token_->Kind = c;
            ++column_;
            if (c == '%' && IsBinDigit[At(column_)]) {
                RunOver(IsBinDigit);
                NumberTail();
            }
        } else if (IsOperator[c]) {
            token_->Kind = c;
            ++column_;
        } else if (IsDigit[c]) {
            RunOver(IsDigit);
            if (At(column_) == '.') {
                ++column_;
                RunOver(IsDigit);
            }
            NumberTail();
        } else if (c == '.' || c == '$') {
            Prefixed(c, c == '.' ? IsDigit : IsHexDigit);
        } else if (c == '_') {
            RunOver(IsIdChar);
            TakeNone();
        } else if (c == Quote) {
            String();
        } else if (c == CarriageReturn) {
            return false;
        } else {
            ++column_;
            TakeNone();
        }
        return true;
    }

    void Prefixed(std::uint8_t c, const CharacterClass& digits) {
        token_->Kind = c;
        ++column_;
        if (!digits[At(column_)]) return;
        RunOver(digits);
        NumberTail();
    }

    // A literal directly followed by a letter is malformed as a whole.
    void NumberTail() {
        if (IsIdChar[At(column_)]) {
            RunOver(IsIdChar);
            TakeNone();
        } else {
            Take(TOK_NUMBER, token_->StartPos, column_);
        }
    }

    void Comment() {
        const int start = column_;
        token_->Kind = TOK_COMMENT;
        if (At(start + 1) == '[') {
            column_ = start + 2;
            RunOver(IsIdChar);
            token_->Text.assign(line_.substr(static_cast<std::size_t>(start) + 1,
                                             static_cast<std::size_t>(column_ - start - 2)));
            const std::string word = UCase(token_->Text);
            if (word == "BLOCK") token_->Kind = TOK_BLOCK_START;
            if (word == "END") token_->Kind = TOK_BLOCK_END;
            if (token_->Kind != TOK_COMMENT) token_->EndPos = column_;
            // An unknown word keeps the field as it was, but a stale flag would change its colour.
            else if (token_->EndPos == SecondCommentStyle)
                token_->EndPos = 0;
        } else {
            token_->EndPos = At(start + 1) == '!' ? SecondCommentStyle : 0;
        }
        column_ = limit_;
    }

    // A string ends at its quote or at any control character. If that is the line's end the scan ends too,
    // whatever line ends the file has.
    void String() {
        const int start = column_ + 1;
        column_ = start;
        while (column_ < limit_ && At(column_) != Quote && At(column_) > 31) ++column_;
        Take(TOK_STRING, start, column_);
        const std::uint8_t stop = At(column_);
        column_ = stop == CarriageReturn || stop == LineFeed ? limit_ : column_ + 1;
    }

    std::string_view line_;
    int limit_;
    Buffer& buffer_;
    TokenArray& tokens_;
    int column_ = 1;
    int count_ = 0;
    Token* token_ = nullptr;
};

// One pass over LightBuffer: words, digits and punctuation up to a comment.
class LightScan {
public:
    LightScan(std::string_view line, int length) : line_(line), limit_(length + 1) {
        if (length < -1 || length > LongestLine) OutOfRange();
        LightBuffer[static_cast<std::size_t>(limit_)] = 0;
    }

    int Run() {
        while (column_ < limit_) {
            const std::uint8_t c = At(column_);
            if (c == ';' || c == CarriageReturn) break;
            if (IsIdStart[c]) {
                Word(TOK_IDENT, IsIdChar);
            } else if (IsDigit[c]) {
                Word(TOK_NUMBER, IsDigit);
            } else if (IsPunctuation[c] || IsOperator[c] || c == '.') {
                Next().Kind = c;
                ++column_;
            } else if (c == Quote) {
                ++column_;
                while (column_ < limit_ && At(column_) != Quote && At(column_) != CarriageReturn) ++column_;
                ++column_;
            } else {
                ++column_;
            }
        }
        LightTokenAt(count_ + 1).Kind = TOK_NONE;
        return count_;
    }

private:
    static std::uint8_t At(int column) { return LightBuffer[static_cast<std::size_t>(column)]; }

    Token& Next() {
        if (++count_ > MostTokens) OutOfRange();
        Token& token = LightTokenAt(count_);
        token.StartPos = column_;
        return token;
    }

    void Word(std::uint8_t kind, const CharacterClass& table) {
        Token& token = Next();
        while (table[At(column_)]) ++column_;
        token.Kind = kind;
        token.EndPos = column_;
        token.Text.assign(line_.substr(static_cast<std::size_t>(token.StartPos) - 1,
                                       static_cast<std::size_t>(column_ - token.StartPos)));
    }

    std::string_view line_;
    int limit_;
    int column_ = 1;
    int count_ = 0;
};

int Fill(std::string& line, std::array<std::uint8_t, LineBufferSize>& buffer) {
    const std::size_t length = line.size();
    if (length > 0 && line[length - 1] == '\n' && (length < 2 || line[length - 2] != '\r'))
        line[length - 1] = '\r';
    if (length <= static_cast<std::size_t>(LongestLine)) std::memcpy(buffer.data() + 1, line.data(), length);
    return static_cast<int>(length);
}

} // namespace

void BuildCharacterTables() {
    for (CharacterClass* table : {&IsIdChar, &IsIdStart}) {
        MarkRange(*table, 'a', 'z');
        MarkRange(*table, 'A', 'Z');
    }
    MarkRange(IsIdChar, '0', '9');
    Mark(IsIdChar, "_");
    MarkRange(IsDigit, '0', '9');
    Mark(IsHexDigit, "0123456789ABCDEFabcdef");
    Mark(IsBinDigit, "01");
    Mark(IsBlank, "\t ");
    Mark(IsOperator, "=<>+-*/^~");
    Mark(IsPunctuation, "\\%][)(#,:");
    Mark(IsBracket, ")([]");
    Mark(IsCloseBracket, ")]");
    Mark(IsAfterName, "\\%.$[(#");
    Mark(IsNameSuffix, "\\%.$#");
    SuffixTip['%'] = 1;
    SuffixTip['#'] = 2;
    SuffixTip['$'] = 3;
    for (std::size_t c = 32; c <= 127; ++c)
        HashChar[c] = static_cast<std::uint8_t>(c >= 'a' && c <= 'z' ? c - 32 : c);
}

int Tokenize(std::string_view line, int length, bool quiet) {
    refused = false;
    try {
        return FullScan(line, length, LineBuffer, Tokens).Run();
    } catch (...) {
        refused = true;
        if (!quiet) SetErrorLog("Tokenize", "Mod_Lexer");
        Tokens[1].Kind = TOK_NONE;
        return 0;
    }
}

int TokenizeBeside(std::string line) {
    try {
        const int length = FillLightBuffer(line);
        return FullScan(line, length, LightBuffer, LightTokens).Run();
    } catch (...) {
        LightTokens[1].Kind = TOK_NONE;
        return 0;
    }
}

bool Refused() { return refused; }

int TokenizeLightPomosna(std::string_view line, int length, bool quiet) {
    try {
        return LightScan(line, length).Run();
    } catch (...) {
        if (!quiet) SetErrorLog("TokenizeLightPomosna", "Mod_Lexer");
        LightTokens[1].Kind = TOK_NONE;
        return 0;
    }
}

int FillLineBuffer(std::string& line) { return Fill(line, LineBuffer); }
int FillLightBuffer(std::string& line) { return Fill(line, LightBuffer); }

} // namespace Mod_Lexer
