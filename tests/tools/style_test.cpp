// The colour styles: the layout of the built .style files, read back byte by byte, and what the compiler
// refuses.
#include "StyleContrast.h"
#include "StyleFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using namespace styles;

std::string fileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string tableText(const std::string& name) {
    return fileText(std::string(ZOLTO_SOURCE_ROOT) + "/data/Styles/" + name + ".styletable");
}

// The text with one line's value replaced; the line is the one that begins with `name` and a blank.
std::string withLine(std::string text, const std::string& name, const std::string& line) {
    const auto at = text.find("\n" + name + " ");
    EXPECT_NE(at, std::string::npos) << name;
    const auto end = text.find('\n', at + 1);
    return text.replace(at + 1, end - at - 1, line);
}

// Takes little-endian values off the front of a file, as the editor's loader does.
class Bytes {
public:
    explicit Bytes(std::string data) : bytes(std::move(data)) {}
    unsigned number(int size) {
        unsigned value = 0;
        for (int i = 0; i < size; ++i) value |= static_cast<unsigned char>(bytes.at(at++)) << (8 * i);
        return value;
    }
    std::string text(std::size_t size) {
        at += size;
        return bytes.substr(at - size, size);
    }
    std::string rest() { return bytes.substr(at); }

private:
    std::string bytes;
    std::size_t at = 0;
};

unsigned windowsColour(Rgb colour) { return colour.blue << 16 | colour.green << 8 | colour.red; }

std::string faultOf(const std::string& text) {
    try {
        readStyleTable(text);
    } catch (const StyleError& error) {
        return error.what();
    }
    return "";
}

class BuiltStyle : public testing::TestWithParam<const char*> {};

TEST_P(BuiltStyle, HoldsTheTableInFileOrder) {
    const std::string name = GetParam();
    const StyleTable table = readStyleTable(tableText(name));
    Bytes file(fileText(std::string(ZOLTO_APPDIR) + "/Styles/" + name + ".style"));
    EXPECT_EQ(file.number(2), 1u);
    for (const Slot& slot : table.slots) EXPECT_EQ(file.number(4), windowsColour(slot.fore));
    for (const Slot& slot : table.slots) EXPECT_EQ(file.number(4), windowsColour(slot.back));
    for (int i = 0; i < 41; ++i) EXPECT_EQ(file.text(file.number(2)), "DejaVu Sans Mono");
    for (int i = 0; i < 41; ++i) EXPECT_EQ(file.number(1), 10u);
    for (const Slot& slot : table.slots) EXPECT_EQ(file.number(2), slot.bold ? 0xffffu : 0u);
    for (const Slot& slot : table.slots) EXPECT_EQ(file.number(2), slot.italic ? 0xffffu : 0u);
    for (const Slot& slot : table.slots) EXPECT_EQ(file.number(2), slot.underline ? 0xffffu : 0u);
    for (const Slot& slot : table.slots) EXPECT_EQ(file.number(4), windowsColour(slot.other));
    EXPECT_EQ(file.rest(), table.description + std::string(1, '\0') + std::string(50, ' '));
    EXPECT_FALSE(table.description.empty());
}

INSTANTIATE_TEST_SUITE_P(Styles, BuiltStyle,
                         testing::Values("Default", "Night", "Parchment", "Daylight", "Ocean", "Blackboard"));

TEST(StyleFile, PutsKnownCellsAtKnownOffsets) {
    std::string text =
        withLine(tableText("Default"), "STYLE_Keyword", "STYLE_Keyword #010203 bold underline");
    text = withLine(text, "picFunBackground", "picFunBackground #fefdfc");
    text = withLine(text, "picBackground", "picBackground #f0f1f2");
    const std::string bytes = styleFileBytes(readStyleTable(text));
    const std::size_t slots = 41, four = 4;
    const std::size_t fore = 2, back = fore + slots * 4, fonts = back + slots * 4;
    const std::size_t bold = fonts + slots * (2 + 16) + 41, italic = bold + slots * 2,
                      underline = italic + slots * 2;
    EXPECT_EQ(bytes.substr(fore + 2 * four, 4), std::string("\x01\x02\x03\0", 4));
    EXPECT_EQ(bytes.substr(fore + 29 * four, 4), std::string("\xfe\xfd\xfc\0", 4));
    EXPECT_EQ(bytes.substr(back + 29 * four, 4), std::string("\xf0\xf1\xf2\0", 4));
    EXPECT_EQ(bytes.substr(bold + four, 2), "\xff\xff");
    EXPECT_EQ(bytes.substr(italic + four, 2), std::string(2, '\0'));
    EXPECT_EQ(bytes.substr(underline + four, 2), "\xff\xff");
}

TEST(StyleContrast, MeasuresAsThePublishedFormulaDoes) {
    EXPECT_NEAR(contrastRatio({0, 0, 0}, {255, 255, 255}), 21.0, 1e-9);
    EXPECT_NEAR(contrastRatio({255, 255, 255}, {0x76, 0x76, 0x76}), 4.54, 0.005);
    EXPECT_NEAR(contrastRatio({255, 0, 0}, {255, 255, 255}), 4.0, 0.005);
}

TEST(StyleContrast, FindsTextThatIsHardToRead) {
    auto failing = [](const std::string& text) {
        std::vector<std::string> names;
        for (const Pairing& pairing : measureContrast(readStyleTable(text)))
            if (!pairing.passes()) names.push_back(pairing.text + " on " + pairing.ground);
        return names;
    };
    const std::string table = tableText("Default");
    EXPECT_TRUE(failing(table).empty());
    EXPECT_EQ(failing(withLine(table, "STYLE_Comment", "STYLE_Comment #a0a0a0")).size(), 4u);
    EXPECT_EQ(failing(withLine(table, "STYLE_LineNumber", "STYLE_LineNumber #a0a0a0")),
              std::vector<std::string>{"STYLE_LineNumber on STYLE_NONFOLDINGMARGINS"});
    // Enough for other text, too little for normal text: 5.7 to 1 on white.
    EXPECT_GE(failing(withLine(table, "STYLE_Text", "STYLE_Text #666666")).size(), 2u);
}

TEST(StyleTable, NamesTheLineOfAFault) {
    const std::string table = tableText("Night");
    EXPECT_EQ(faultOf("\nSTYLE_Text 123456\n"), "line 2: colour of the form #rrggbb expected");
    EXPECT_EQ(faultOf("style_text #123456\nSTYLE_Text #123456"), "line 2: STYLE_Text is set twice");
    EXPECT_EQ(faultOf("STYLE_Txt #123456"), "line 1: unknown name STYLE_Txt");
    EXPECT_EQ(faultOf("STYLE_Cursor #123456 bold"), "line 1: unknown attribute bold");
    EXPECT_EQ(faultOf("size 40"), "line 1: font size from 6 to 16 expected");
    EXPECT_NE(faultOf(withLine(table, "STYLE_Label", "")).find("STYLE_Label is missing"), std::string::npos);
    EXPECT_NE(faultOf(withLine(table, "font", "")).find("font or size is missing"), std::string::npos);
    const std::string tooLong = "description " + std::string(255, 'x');
    EXPECT_NE(faultOf(withLine(table, "description", tooLong)).find("longer than 254"), std::string::npos);
}

}
