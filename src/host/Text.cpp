// Text as bytes. Sources may be older than UTF-8, so bytes that are not valid UTF-8 are read as the Western
// code page that the editors of their time wrote.
#include "host/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace {

// The characters of 0x80 to 0x9F. The five bytes without a character keep their number.
constexpr std::array<char16_t, 32> HighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

struct Character {
    std::uint32_t code;
    std::size_t length;
};

// The first character of `text`; nothing if it is malformed.
std::optional<Character> Decode(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return Character{lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {};
    std::uint32_t code = lead & (0xFFu >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        if ((byte(at) & 0xC0) != 0x80) return {};
        code = code << 6 | (byte(at) & 0x3F);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < smallest[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return {};
    return Character{code, length};
}

void Append(std::string& text, char16_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Upper(x) == Upper(y); });
}

std::string UCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), Upper);
    return result;
}

std::string LCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), Lower);
    return result;
}

std::string_view TrimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find(separator, from), text.size());
        pieces.emplace_back(text.substr(from, end - from));
        from = end + 1;
    }
    return pieces;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto character = Decode(bytes);
        if (!character) return false;
        bytes.remove_prefix(character->length);
    }
    return true;
}

std::string ToUtf8(std::string_view bytes) {
    return IsUtf8(bytes) ? std::string(bytes) : SingleBytesToUtf8(bytes);
}

std::string SingleBytesToUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char c : bytes) Append(text, CharacterOf(static_cast<unsigned char>(c)));
    return text;
}

std::string CharacterInUtf8(unsigned char byte) {
    std::string text;
    Append(text, CharacterOf(byte));
    return text;
}

char16_t CharacterOf(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80u] : char16_t{byte};
}

bool FromUtf8ToSingleBytes(std::string_view utf8, std::string& bytes) {
    std::string result;
    while (!utf8.empty()) {
        const auto character = Decode(utf8);
        if (!character) return false;
        utf8.remove_prefix(character->length);
        const std::uint32_t code = character->code;
        if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
            result += static_cast<char>(code);
            continue;
        }
        const auto at = std::find(HighControls.begin(), HighControls.end(), code);
        if (at == HighControls.end()) return false;
        result += static_cast<char>(0x80 + (at - HighControls.begin()));
    }
    bytes = std::move(result);
    return true;
}
