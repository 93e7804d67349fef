// The lexer: names, numbers in three bases, strings, comments and punctuation.
// "End If" and its kin become one token here, so that the parser sees a single closer.
#include "parse/Lexer.h"

#include <cstddef>
#include <cstdlib>

namespace blitz {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isNameChar(char c) { return isLetter(c) || isDigit(c) || c == '_'; }

int digitValue(char c) {
    if (isDigit(c)) return c - '0';
    const char low = lowerChar(c);
    return low >= 'a' && low <= 'f' ? low - 'a' + 10 : 99;
}

std::string describe(char c) {
    if (c > ' ' && c < 127) return std::string("Unexpected character '") + c + "'";
    return "Unexpected character with code " + std::to_string(static_cast<unsigned char>(c));
}

}

// Tokens that were stepped over are dropped in bulk once there are that many.
static constexpr size_t window = 1024;

const Token& Lexer::peek(size_t ahead) {
    while (tokens_.size() <= head_ + ahead) {
        if (at_ < text_.size()) {
            scan();
        } else {
            if (tokens_.empty() || tokens_.back().kind != Tok::End) add(Tok::Newline, at_, at_);
            add(Tok::End, at_, at_);
        }
    }
    return tokens_[head_ + ahead];
}

void Lexer::advance() {
    if (peek().kind == Tok::End || ++head_ < window) return;
    tokens_.erase(tokens_.begin(), tokens_.begin() + static_cast<std::ptrdiff_t>(head_));
    head_ = 0;
}

Pos Lexer::place(size_t from, size_t to) const {
    return {file_, line_, static_cast<uint32_t>(from - lineStart_ + 1),
            static_cast<uint32_t>(to - lineStart_ + 1)};
}

Token& Lexer::add(Tok kind, size_t from, size_t to) {
    Token& token = tokens_.emplace_back();
    token.kind = kind;
    token.text = text_.substr(from, to - from);
    token.pos = place(from, to);
    return token;
}

void Lexer::scan() {
    const char c = at();
    if (c == '\n') {
        add(Tok::Newline, at_, at_);
        ++at_;
        ++line_;
        lineStart_ = at_;
    } else if (c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v') {
        ++at_;
    } else if (c == ';') {
        while (at_ < text_.size() && text_[at_] != '\n') ++at_;
    } else if (isLetter(c)) {
        name();
    } else if (isDigit(c) || (c == '.' && isDigit(at(1)))) {
        number();
    } else if (c == '"') {
        string();
    } else if (c == '$' && digitValue(at(1)) < 16 && !followsName()) {
        based(16);
    } else if (c == '%' && (at(1) == '0' || at(1) == '1') && !followsName()) {
        based(2);
    } else {
        mark(c);
    }
}

// Directly after a name these marks are its suffix: a$ is a string variable, not a number.
bool Lexer::followsName() const { return at_ > 0 && isNameChar(text_[at_ - 1]); }

void Lexer::name() {
    const size_t from = at_;
    while (isNameChar(at())) ++at_;
    const Symbol symbol = symbols_.intern(text_.substr(from, at_ - from));
    Tok kind = symbols_.kind(symbol);
    if (kind == Tok::KwEnd || kind == Tok::KwElse) kind = twoWords(kind);
    add(kind, from, at_).symbol = symbol;
}

Tok Lexer::twoWords(Tok first) {
    size_t to = at_;
    while (to < text_.size() && (text_[to] == ' ' || text_[to] == '\t')) ++to;
    const size_t from = to;
    while (to < text_.size() && isNameChar(text_[to]) && to - from < 10) ++to;
    if (from == to || !isLetter(text_[from])) return first;
    const std::string second = lowerText(text_.substr(from, to - from));
    Tok joined = first;
    if (second == "if") joined = first == Tok::KwEnd ? Tok::KwEndIf : Tok::KwElseIf;
    if (first == Tok::KwEnd && second == "function") joined = Tok::KwEndFunction;
    if (first == Tok::KwEnd && second == "select") joined = Tok::KwEndSelect;
    if (first == Tok::KwEnd && second == "type") joined = Tok::KwEndType;
    if (joined != first) at_ = to;
    return joined;
}

void Lexer::number() {
    const size_t from = at_;
    while (isDigit(at())) ++at_;
    bool real = false;
    if (at() == '.' && !isLetter(at(1)) && at(1) != '_') {
        real = true;
        ++at_;
        while (isDigit(at())) ++at_;
    }
    Token& token = add(real ? Tok::Float : Tok::Int, from, at_);
    if (real) {
        token.real = static_cast<float>(std::strtod(std::string(token.text).c_str(), nullptr));
        return;
    }
    uint32_t value = 0;
    for (const char c : token.text) value = value * 10 + static_cast<uint32_t>(c - '0');
    token.integer = static_cast<int32_t>(value);
}

void Lexer::based(int base) {
    const size_t from = at_++;
    uint32_t value = 0;
    while (digitValue(at()) < base)
        value = value * static_cast<uint32_t>(base) + static_cast<uint32_t>(digitValue(text_[at_++]));
    add(Tok::Int, from, at_).integer = static_cast<int32_t>(value);
}

void Lexer::string() {
    const size_t from = ++at_;
    while (at_ < text_.size() && text_[at_] != '"' && text_[at_] != '\n') ++at_;
    if (at() != '"') {
        size_t to = at_;
        if (to > from && text_[to - 1] == '\r') --to;
        failAt(place(from - 1, to), "Unterminated string");
    }
    add(Tok::String, from, at_).pos = place(from - 1, at_ + 1);
    ++at_;
}

void Lexer::mark(char c) {
    static constexpr std::string_view singles = "()[],.\\%#$+-*/^~";
    if (const size_t index = singles.find(c); index != std::string_view::npos && c != '\0') {
        add(static_cast<Tok>(static_cast<size_t>(Tok::LParen) + index), at_, at_ + 1);
        ++at_;
        return;
    }
    const char second = at(1);
    switch (c) {
    case ':': return take(Tok::Colon, 1);
    case '=':
        if (second == '<') return take(Tok::LessEqual, 2);
        if (second == '>') return take(Tok::GreaterEqual, 2);
        return take(Tok::Equal, 1);
    case '<':
        if (second == '=') return take(Tok::LessEqual, 2);
        if (second == '>') return take(Tok::NotEqual, 2);
        return take(Tok::Less, 1);
    case '>':
        if (second == '=') return take(Tok::GreaterEqual, 2);
        if (second == '<') return take(Tok::NotEqual, 2);
        return take(Tok::Greater, 1);
    default: failAt(place(at_, at_ + 1), describe(c));
    }
}

void Lexer::take(Tok kind, size_t length) {
    add(kind, at_, at_ + length);
    at_ += length;
}

}
