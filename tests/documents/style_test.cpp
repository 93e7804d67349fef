// Colour styles: on disk, in the table, and in a view.
#include "documents/Mod_File.h"
#include "documents/Session.h"
#include "editor/StyleTable.h"
#include "engine/OptionsEdit.h"
#include "sci/Mod_Sci.h"

#include <gtest/gtest.h>

namespace {

struct StyleFileTest : testing::Test {
    Session session;
    FakeDialogs& dialogs = session.host.dialogs;
    std::string Path(const std::string& name) { return session.host.Path("Styles/" + name + ".style"); }
    void ExpectMessage(const std::string& text, MessageIcon icon) {
        EXPECT_EQ(session.LastMessage(), text);
        EXPECT_EQ(dialogs.messages.back().icon, icon);
    }
};

TEST_F(StyleFileTest, EveryCellComesBack) {
    for (std::size_t i = 0; i < StyleTable::Slots; ++i) {
        const auto number = static_cast<std::int32_t>(i);
        StyleTable::ForeColor[i] = 0x00FFFFFF - number;
        StyleTable::BackColor[i] = 0x00010203 * number;
        StyleTable::OtherColor[i] = number << 16;
        StyleTable::FontName[i] =
            std::string(i * 7, static_cast<char>('a' + i % 26)); // 280 bytes at the most
        StyleTable::FontSize[i] = static_cast<std::uint8_t>(255 - i);
        StyleTable::Bold[i] = i % 2 ? -1 : 0;
        StyleTable::Italic[i] = i % 3 ? -1 : 0;
        StyleTable::Underline[i] = i % 5 ? -1 : 0;
    }
    const auto fore = StyleTable::ForeColor;
    const auto fonts = StyleTable::FontName;
    const auto bold = StyleTable::Bold;
    const auto other = StyleTable::OtherColor;
    Mod_File::SaveStyle("Mine", "My own");
    const std::string bytes = session.Bytes(Path("Mine"));
    std::size_t names = 0;
    for (const std::string& font : fonts) names += 2 + font.size();
    EXPECT_EQ(bytes.size(), 2 + 41 * (4 + 4 + 1 + 2 + 2 + 2 + 4) + names + 6 + 1 + 50);
    EXPECT_EQ(bytes.substr(0, 6), std::string("\x01\0\xFF\xFF\xFF\0", 6));
    EXPECT_EQ(bytes.substr(bytes.size() - 57), "My own" + std::string(1, '\0') + std::string(50, ' '));
    EXPECT_EQ(Mod_File::LoadStyle("Default"), "Default");
    EXPECT_NE(StyleTable::ForeColor, fore);
    EXPECT_EQ(Mod_File::LoadStyle("Mine"), "Mine");
    EXPECT_EQ(StyleTable::ForeColor, fore);
    EXPECT_EQ(StyleTable::FontName, fonts);
    EXPECT_EQ(StyleTable::Bold, bold);
    EXPECT_EQ(StyleTable::OtherColor, other);
    EXPECT_EQ(StyleTable::Description, "My own");
    Mod_File::SaveStyle("Again", StyleTable::Description);
    EXPECT_EQ(session.Bytes(Path("Again")), bytes);
}

TEST_F(StyleFileTest, ADescriptionIsCutAt255) {
    for (const std::size_t length : {0, 254, 255, 256, 4000}) {
        Mod_File::SaveStyle("Mine", std::string(length, 'x'));
        EXPECT_EQ(Mod_File::LoadStyle("Mine"), "Mine");
        EXPECT_EQ(StyleTable::Description.size(), std::min<std::size_t>(length, 255));
    }
}

TEST_F(StyleFileTest, AMissingStyleFallsBackAndTheSettingFollows) {
    OptionsEdit::SciStyleName = "Gone";
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_EQ(Mod_File::LoadStyle("gone"), "Default");
    ExpectMessage("Specified Style Not Found:\r\n" + Path("gone") +
                      "\r\nPress Ok to load the Default Style...",
                  MessageIcon::Exclamation);
    EXPECT_EQ(OptionsEdit::SciStyleName, "Default");
    EXPECT_EQ(session.host.settings.Get("OptionsEdit", "SciStyleName", ""), "Default");
    OptionsEdit::SciStyleName = "Night"; // another one than the asked-for: it stays
    dialogs.WillAnswer(MessageAnswer::Ok);
    Mod_File::LoadStyle("gone");
    EXPECT_EQ(OptionsEdit::SciStyleName, "Night");
}

TEST_F(StyleFileTest, WithoutADefaultTheTableStays) {
    session.host.files.Remove(Path("Default"));
    const auto fore = StyleTable::ForeColor;
    for (int i = 0; i < 2; ++i) dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_EQ(Mod_File::LoadStyle("Gone"), "");
    ExpectMessage("Default Style Not Found !", MessageIcon::Critical);
    EXPECT_EQ(StyleTable::ForeColor, fore);
}

TEST_F(StyleFileTest, AnotherVersionIsRefused) {
    std::string bytes = session.Bytes(Path("Night"));
    bytes[0] = 2;
    session.host.Put("Styles/Two.style", bytes);
    dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_EQ(Mod_File::LoadStyle("Two"), "");
    ExpectMessage("Incorrect Style Version !", MessageIcon::Critical);
}

TEST_F(StyleFileTest, ATruncatedFileIsReportedAndLeavesTheTable) {
    const std::string bytes = session.Bytes(Path("Night"));
    const auto fore = StyleTable::ForeColor;
    const auto fonts = StyleTable::FontName;
    const std::size_t table = bytes.find('\0', bytes.size() - 90) - 50; // well inside the arrays
    session.host.ExpectErrorLog();
    for (std::size_t length = 0; length < table - 100; length += 13) {
        session.host.Put("Styles/Cut.style", std::string_view(bytes).substr(0, length));
        EXPECT_EQ(Mod_File::LoadStyle("Cut"), "") << length;
    }
    EXPECT_EQ(StyleTable::ForeColor, fore);
    EXPECT_EQ(StyleTable::FontName, fonts);
    EXPECT_NE(session.host.ErrorLog().find("LoadStyle"), std::string::npos);
}

TEST_F(StyleFileTest, AnActiveViewShowsTheTable) {
    ApplyEditorStyle(); // without a view it is nothing
    session.Open("a.bb", "a=1\r\n");
    for (std::size_t i = 0; i < StyleTable::Slots; ++i) {
        StyleTable::ForeColor[i] = static_cast<std::int32_t>(0x100 + i);
        StyleTable::BackColor[i] = static_cast<std::int32_t>(0x200 + i);
        StyleTable::Bold[i] = i % 2 ? -1 : 0;
    }
    ApplyEditorStyle();
    for (int slot : {0, 2, 20}) {
        EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETFORE, slot), 0x100 + slot);
        EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETBACK, slot), 0x100 + 29);
        EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETBOLD, slot), slot % 2);
    }
    EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETFORE, 34), 0x100 + 34);
    EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETBACK, 33), 0x200 + 33);
    EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETFORE, 32),
              0x100 + 21); // sent after all styles took the text's colour
    EXPECT_EQ(Mod_Sci::Send(SCI_STYLEGETFORE, 37), 0x100 + 37);
    EXPECT_EQ(Mod_Sci::Send(SCI_GETCARETFORE), 0x100 + 26);
    EXPECT_EQ(Mod_Sci::Send(SCI_GETCARETLINEBACK), 0x100 + 25);
}

}
