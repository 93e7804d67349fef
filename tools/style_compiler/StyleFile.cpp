// Writes the eight parallel arrays of a style in file order.
#include "StyleFile.h"

namespace styles {

namespace {

constexpr int formatVersion = 1;
constexpr int descriptionPadding = 50; // spaces after the NUL of the description

void put16(std::string& out, int value) {
    out += static_cast<char>(value & 0xff);
    out += static_cast<char>((value >> 8) & 0xff);
}

void putColour(std::string& out, Rgb colour) {
    out += static_cast<char>(colour.red);
    out += static_cast<char>(colour.green);
    out += static_cast<char>(colour.blue);
    out += '\0';
}

void putFlag(std::string& out, bool flag) { put16(out, flag ? -1 : 0); }

}

std::string styleFileBytes(const StyleTable& table) {
    std::string out;
    put16(out, formatVersion);
    for (const Slot& slot : table.slots) putColour(out, slot.fore);
    for (const Slot& slot : table.slots) putColour(out, slot.back);
    for (const Slot& slot : table.slots) {
        put16(out, static_cast<int>(slot.fontName.size()));
        out += slot.fontName;
    }
    for (const Slot& slot : table.slots) out += static_cast<char>(slot.fontSize);
    for (const Slot& slot : table.slots) putFlag(out, slot.bold);
    for (const Slot& slot : table.slots) putFlag(out, slot.italic);
    for (const Slot& slot : table.slots) putFlag(out, slot.underline);
    for (const Slot& slot : table.slots) putColour(out, slot.other);
    out += table.description;
    out += '\0';
    out.append(descriptionPadding, ' ');
    return out;
}

}
