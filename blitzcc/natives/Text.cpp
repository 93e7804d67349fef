// The commands on strings.
// Positions count from 1; a text is a run of bytes.
#include "natives/Natives.h"

#include "parse/Tokens.h"

#include <algorithm>

namespace blitz {
namespace {

using Args = const Value*;

size_t clamped(int32_t count, size_t limit) {
    return count < 0 ? 0 : std::min(static_cast<size_t>(count), limit);
}

Value textLeft(Machine& m, Args a, size_t) {
    const std::string& text = Machine::text(a[0]);
    return m.makeString(text.substr(0, clamped(a[1].integer, text.size())));
}

Value textRight(Machine& m, Args a, size_t) {
    const std::string& text = Machine::text(a[0]);
    return m.makeString(text.substr(text.size() - clamped(a[1].integer, text.size())));
}

Value textMid(Machine& m, Args a, size_t given) {
    const std::string& text = Machine::text(a[0]);
    const size_t from = clamped(a[1].integer - 1, text.size());
    if (a[1].integer < 1) fault("The position in a string must be 1 or more");
    const size_t count =
        given < 3 || a[2].integer < 0 ? std::string::npos : static_cast<size_t>(a[2].integer);
    return m.makeString(text.substr(from, count));
}

Value textInstr(Machine&, Args a, size_t given) {
    const int32_t from = given > 2 ? a[2].integer : 1;
    if (from < 1) fault("The position in a string must be 1 or more");
    const size_t found = Machine::text(a[0]).find(Machine::text(a[1]), static_cast<size_t>(from - 1));
    return intValue(found == std::string::npos ? 0 : static_cast<int32_t>(found) + 1);
}

Value textReplace(Machine& m, Args a, size_t) {
    const std::string& text = Machine::text(a[0]);
    const std::string& old = Machine::text(a[1]);
    if (old.empty()) return m.makeString(text);
    std::string result;
    size_t at = 0;
    for (size_t found = 0; (found = text.find(old, at)) != std::string::npos; at = found + old.size()) {
        result.append(text, at, found - at);
        result += Machine::text(a[2]);
    }
    return m.makeString(result.append(text, at));
}

Value textString(Machine& m, Args a, size_t) {
    const std::string& part = Machine::text(a[0]);
    const size_t count = clamped(a[1].integer, SIZE_MAX);
    if (count * part.size() > (1u << 30)) fault("The string is too long");
    std::string result;
    result.reserve(count * part.size());
    for (size_t i = 0; i < count; ++i) result += part;
    return m.makeString(std::move(result));
}

Value changed(Machine& m, Value value, char first, char last, int by) {
    std::string text = Machine::text(value);
    for (char& c : text)
        if (c >= first && c <= last) c = static_cast<char>(c + by);
    return m.makeString(std::move(text));
}

Value textUpper(Machine& m, Args a, size_t) { return changed(m, a[0], 'a', 'z', -32); }
Value textLower(Machine& m, Args a, size_t) { return changed(m, a[0], 'A', 'Z', 32); }

Value textTrim(Machine& m, Args a, size_t) {
    const std::string& text = Machine::text(a[0]);
    size_t from = 0;
    size_t to = text.size();
    while (from < to && static_cast<unsigned char>(text[from]) <= ' ') ++from;
    while (to > from && static_cast<unsigned char>(text[to - 1]) <= ' ') --to;
    return m.makeString(text.substr(from, to - from));
}

Value padded(Machine& m, Args a, bool right) {
    std::string text = Machine::text(a[0]);
    const size_t width = clamped(a[1].integer, 1u << 30);
    if (text.size() > width)
        return m.makeString(right ? text.substr(text.size() - width) : text.substr(0, width));
    text.insert(right ? 0 : text.size(), width - text.size(), ' ');
    return m.makeString(std::move(text));
}

Value textLSet(Machine& m, Args a, size_t) { return padded(m, a, false); }
Value textRSet(Machine& m, Args a, size_t) { return padded(m, a, true); }
Value textChr(Machine& m, Args a, size_t) {
    return m.makeString(std::string(1, static_cast<char>(a[0].integer)));
}
Value textLen(Machine&, Args a, size_t) { return intValue(static_cast<int32_t>(Machine::text(a[0]).size())); }

Value textAsc(Machine&, Args a, size_t) {
    const std::string& text = Machine::text(a[0]);
    return intValue(text.empty() ? -1 : static_cast<unsigned char>(text[0]));
}

Value textHex(Machine& m, Args a, size_t) {
    char digits[16];
    std::snprintf(digits, sizeof digits, "%08X", static_cast<unsigned>(a[0].integer));
    return m.makeString(digits);
}

Value textBin(Machine& m, Args a, size_t) {
    std::string digits(32, '0');
    for (int bit = 0; bit < 32; ++bit)
        if (static_cast<uint32_t>(a[0].integer) >> bit & 1) digits[static_cast<size_t>(31 - bit)] = '1';
    return m.makeString(std::move(digits));
}

constexpr NativeEntry entries[] = {
    {"Left", textLeft},       {"Right", textRight},   {"Mid", textMid},     {"Instr", textInstr},
    {"Replace", textReplace}, {"String", textString}, {"Upper", textUpper}, {"Lower", textLower},
    {"Trim", textTrim},       {"LSet", textLSet},     {"RSet", textRSet},   {"Chr", textChr},
    {"Asc", textAsc},         {"Len", textLen},       {"Hex", textHex},     {"Bin", textBin},
};

}

NativeTable textNatives() { return {entries, std::size(entries)}; }

}
