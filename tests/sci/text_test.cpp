// The calls that carry text in and out of a view: bytes go through unchanged, NUL and high ones too.
#include "engine/fixture/SourceTest.h"

namespace {

using namespace std::string_literals;

class SciText : public SourceTest {};

TEST_F(SciText, BytesComeOutAsTheyAre) {
    const std::string text = "a\0b\r\n\xE9\x81 text"s;
    Open(text);
    EXPECT_EQ(Mod_Sci::GetText(), text);
    EXPECT_EQ(Mod_Sci::LineText(0), "a\0b\r\n"s);
    EXPECT_EQ(Mod_Sci::LineText(1), "\xE9\x81 text");
    EXPECT_EQ(Mod_Sci::LineText(2), "");
    EXPECT_EQ(Mod_Sci::GetTextRange(1, 3), "\0b"s);
    EXPECT_EQ(Mod_Sci::GetTextRange(3, 3), "");
    EXPECT_EQ(Mod_Sci::GetTextRange(5, 2), "");
    EXPECT_EQ(Mod_Sci::GetTextRange(8, 1000), "text");
    EXPECT_EQ(Mod_Sci::GetTextRange(1000, 1004), "");
}

TEST_F(SciText, AReplacementMayHoldNulAndLeavesTheTargetOnItself) {
    Open("one two");
    Mod_Sci::ReplaceRange(0, 3, "1\0001"s);
    EXPECT_EQ(Mod_Sci::GetText(), "1\0001 two"s);
    EXPECT_EQ(Mod_Sci::GetTargetStart(), 0);
    EXPECT_EQ(Mod_Sci::GetTargetEnd(), 3);
    EXPECT_EQ(Mod_Sci::SearchInTarget("two"), -1); // the target ends before it
    Mod_Sci::SetTargetEnd(Mod_Sci::GetLength());
    EXPECT_EQ(Mod_Sci::SearchInTarget("two"), 4);
}

TEST_F(SciText, TheActiveViewIsTheOneSpokenTo) {
    frmDoc& first = Open("alpha");
    frmDoc& second = Open("gamma!");
    EXPECT_EQ(Mod_Sci::GetText(), "gamma!");
    MakeActive(&first);
    EXPECT_EQ(Mod_Sci::GetText(), "alpha");
    EXPECT_EQ(Mod_Sci::SendTo(second.SciEdi_WndData, SCI_GETLENGTH), 6);
}

} // namespace
