// The tags of the style table, and the reader of its text form.
// A line is "name value...": a setting, or a tag with a colour and attributes. ';' opens a comment line.
#include "StyleTable.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>

namespace styles {

const std::vector<Tag>& tagList() {
    static const std::vector<Tag> tags = {
        {"STYLE_Text", 0, Cell::Fore, true},
        {"STYLE_Comment", 1, Cell::Fore, true},
        {"STYLE_Keyword", 2, Cell::Fore, true},
        {"STYLE_Number", 3, Cell::Fore, true},
        {"STYLE_Operator", 4, Cell::Fore, true},
        {"STYLE_String", 5, Cell::Fore, true},
        {"STYLE_Comment2", 6, Cell::Fore, true},
        {"STYLE_Function", 7, Cell::Fore, true},
        {"STYLE_Scope", 8, Cell::Fore, true},
        {"STYLE_Separator", 9, Cell::Fore, true},
        {"STYLE_GlobalVar", 10, Cell::Fore, true},
        {"STYLE_LocalVar", 11, Cell::Fore, true},
        {"STYLE_Constant", 12, Cell::Fore, true},
        {"STYLE_Label", 13, Cell::Fore, true},
        {"STYLE_ArrayVar", 14, Cell::Fore, true},
        {"STYLE_Type", 15, Cell::Fore, true},
        {"STYLE_Bad", 16, Cell::Fore, true},
        {"STYLE_Block", 17, Cell::Fore, true},
        {"STYLE_BraceBad", 19, Cell::Fore, true},
        {"STYLE_LineNumber", 33, Cell::Fore, true},
        {"STYLE_BraceLight", 34, Cell::Fore, true},
        {"picBackground", 29, Cell::Back, false},
        {"picFunBackground", 29, Cell::Fore, false},
        {"STYLE_FoldBorderLine", 21, Cell::Fore, false},
        {"STYLE_WhiteSpace", 22, Cell::Fore, false},
        {"STYLE_CalltipFore", 23, Cell::Fore, false},
        {"STYLE_CallTipBack", 23, Cell::Back, false},
        {"STYLE_CallTipHigh", 24, Cell::Fore, false},
        {"STYLE_Currentline", 25, Cell::Fore, false},
        {"Style_InactiveCurrentLine", 25, Cell::Other, false},
        {"STYLE_Cursor", 26, Cell::Fore, false},
        {"STYLE_SelectionFore", 27, Cell::Fore, false},
        {"STYLE_SelectionBack", 27, Cell::Back, false},
        {"Style_InactiveSelectionBack", 27, Cell::Other, false},
        {"STYLE_IndentGuide", 37, Cell::Fore, false},
        {"STYLE_NONFOLDINGMARGINS", 33, Cell::Back, false},
        {"STYLE_FOLDINGMARGIN", 21, Cell::Other, false},
        {"STYLE_BOOKMARKS", 30, Cell::Back, false},
        {"Style_OUTLINE", 30, Cell::Fore, false},
        {"Style_BREAKPOINTS", 30, Cell::Other, false},
        {"Style_CLOSEDFOLD", 31, Cell::Other, false},
        {"Style_OPENFOLD", 31, Cell::Fore, false},
        {"Style_FOLDMARKERSOUTLINE", 31, Cell::Back, false},
    };
    return tags;
}

Rgb& colourOf(StyleTable& table, const Tag& tag) {
    Slot& slot = table.slots[tag.slot];
    return tag.cell == Cell::Fore ? slot.fore : tag.cell == Cell::Back ? slot.back : slot.other;
}

Rgb colourOf(const StyleTable& table, const Tag& tag) {
    return colourOf(const_cast<StyleTable&>(table), tag);
}

const Tag* findTag(std::string_view name) {
    auto sameLetter = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    for (const Tag& tag : tagList())
        if (std::equal(name.begin(), name.end(), tag.name.begin(), tag.name.end(), sameLetter)) return &tag;
    return nullptr;
}

namespace {

// The loader reads a description into 255 characters; it needs the NUL after the text among them.
constexpr std::size_t maxDescription = 254;
constexpr int smallestFont = 6, largestFont = 16; // the sizes that the style editor offers

class Reader {
public:
    explicit Reader(std::string_view text) : input(std::string(text)) {}

    StyleTable read() {
        std::string line;
        while (std::getline(input, line)) {
            ++lineNumber;
            if (!line.empty() && line.back() == '\r') line.pop_back();
            std::istringstream words(line);
            std::string name;
            if (!(words >> name) || name.front() == ';') continue;
            readLine(name, words);
        }
        finish();
        return table;
    }

private:
    [[noreturn]] void fail(const std::string& message) const {
        throw StyleError("line " + std::to_string(lineNumber) + ": " + message);
    }

    void readLine(const std::string& name, std::istringstream& words) {
        const Tag* tag = findTag(name);
        if (!seen.insert(tag ? std::string(tag->name) : name).second) fail(name + " is set twice");
        if (tag)
            readTag(*tag, words);
        else if (name == "description")
            table.description = restOfLine(words);
        else if (name == "font")
            fontName = restOfLine(words);
        else if (name == "size")
            readSize(words);
        else
            fail("unknown name " + name);
    }

    std::string restOfLine(std::istringstream& words) const {
        std::string text;
        std::getline(words >> std::ws, text);
        auto plain = [](unsigned char c) { return c >= 32 && c < 127; };
        if (text.empty() || !std::all_of(text.begin(), text.end(), plain)) fail("plain ASCII text expected");
        return text;
    }

    void readSize(std::istringstream& words) {
        std::string rest;
        if (!(words >> fontSize) || words >> rest || fontSize < smallestFont || fontSize > largestFont)
            fail("font size from 6 to 16 expected");
    }

    void readTag(const Tag& tag, std::istringstream& words) {
        std::string word;
        words >> word;
        colourOf(table, tag) = colour(word);
        while (words >> word) {
            Slot& slot = table.slots[tag.slot];
            if (tag.isText && word == "bold")
                slot.bold = true;
            else if (tag.isText && word == "italic")
                slot.italic = true;
            else if (tag.isText && word == "underline")
                slot.underline = true;
            else
                fail("unknown attribute " + word);
        }
    }

    Rgb colour(const std::string& word) const {
        auto isHex = [](unsigned char c) { return std::isxdigit(c) != 0; };
        if (word.size() != 7 || word[0] != '#' || !std::all_of(word.begin() + 1, word.end(), isHex))
            fail("colour of the form #rrggbb expected");
        auto part = [&](int at) {
            return static_cast<std::uint8_t>(std::stoi(word.substr(at, 2), nullptr, 16));
        };
        return {part(1), part(3), part(5)};
    }

    // Checks that nothing is missing, and gives the slots that no tag reaches the values of normal text,
    // so that a style number that is used by mistake still reads well.
    void finish() {
        for (const Tag& tag : tagList())
            if (!seen.count(std::string(tag.name))) fail(std::string(tag.name) + " is missing");
        if (fontName.empty() || fontSize == 0) fail("font or size is missing");
        if (table.description.size() > maxDescription) fail("description is longer than 254 characters");
        std::set<std::pair<int, Cell>> set;
        for (const Tag& tag : tagList()) set.insert({tag.slot, tag.cell});
        const Rgb text = table.slots[0].fore, background = table.slots[29].fore;
        for (int i = 0; i < slotCount; ++i) {
            Slot& slot = table.slots[i];
            slot.fontName = fontName;
            slot.fontSize = static_cast<std::uint8_t>(fontSize);
            if (!set.count({i, Cell::Fore})) slot.fore = text;
            if (!set.count({i, Cell::Back})) slot.back = background;
            if (!set.count({i, Cell::Other})) slot.other = background;
        }
    }

    std::istringstream input;
    StyleTable table;
    std::set<std::string> seen;
    std::string fontName;
    int fontSize = 0;
    int lineNumber = 0;
};

}

StyleTable readStyleTable(std::string_view text) { return Reader(text).read(); }

}
