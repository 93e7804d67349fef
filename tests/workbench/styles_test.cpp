// The editor of colour styles, driven by its own controls: the table, the files and what the views show.
#include "WindowTest.h"
#include "app/wire_up.h"
#include "documents/Session.h"
#include "editor/StyleTable.h"
#include "host/HostCalls.h"
#include "sci/Mod_Sci.h"
#include "workbench/styles/frmColors.h"

#include <QTest>

namespace {

using Names = std::vector<std::string>;

struct StylesTest : WindowTest {
    static constexpr int Red = 0x0000FF; // the lowest byte is red

    void SetUp() override {
        WindowTest::SetUp();
        WireUp();
    }
    template <class Control>
    static Control& Find(QDialog& dialog, const char* name) {
        auto* found = dialog.findChild<Control*>(name);
        if (!found) throw std::runtime_error(name);
        return *found;
    }
    static void Click(QDialog& dialog, const char* button) { Find<QPushButton>(dialog, button).click(); }
    static void Choose(QDialog& dialog, const char* style) {
        auto& list = Find<QListWidget>(dialog, "lvStyles");
        list.setCurrentItem(list.findItems(style, Qt::MatchExactly).value(0));
    }
    static std::string Selected(QDialog& dialog) {
        return Find<QListWidget>(dialog, "lvStyles").currentItem()->text().toStdString();
    }
    std::string StylePath(const std::string& name) { return host.Path("Styles/" + name + ".style"); }
    static int Fore(std::intptr_t view, int style) {
        return static_cast<int>(Mod_Sci::SendTo(view, SCI_STYLEGETFORE, style));
    }
    // Gives the first text style another colour.
    static void PaintRed(frmColors& dialog) {
        dialog.AskColour = [](const QColor&) { return QColor(Qt::red); };
        Click(dialog, "cmdColor");
    }
};

TEST_F(StylesTest, EachControlReachesItsCellOfTheTable) {
    frmColors dialog(&dock->Window());
    auto& texts = Find<QListWidget>(dialog, "lblText");
    ASSERT_EQ(texts.count(), static_cast<int>(TextStyles().size()));
    for (int row = 0; row < texts.count(); ++row) {
        const auto slot = static_cast<std::size_t>(TextStyles()[static_cast<std::size_t>(row)].slot);
        texts.setCurrentRow(row);
        for (const char* box : {"chkBold", "chkItalic", "chkUnderline"})
            Find<QCheckBox>(dialog, box).setChecked(true);
        Find<QComboBox>(dialog, "cboSize").setCurrentText("14");
        PaintRed(dialog);
        EXPECT_EQ(StyleTable::ForeColor[slot], Red) << row;
        EXPECT_EQ(StyleTable::FontSize[slot], 14);
        EXPECT_EQ(StyleTable::Bold[slot] + StyleTable::Italic[slot] + StyleTable::Underline[slot], -3);
    }
    dialog.AskColour = [](const QColor&) { return QColor(1, 2, 3); };
    for (const ColourCell& cell : ColourCells()) {
        const auto slot = static_cast<std::size_t>(cell.slot);
        (*cell.colours)[slot] = 0;
        Click(dialog, cell.tag);
        EXPECT_EQ((*cell.colours)[slot], 0x030201) << cell.tag;
    }
    dialog.AskColour = [](const QColor&) { return std::nullopt; };
    Click(dialog, "STYLE_Cursor");
    EXPECT_EQ(StyleTable::ForeColor[StyleTable::SlotCursor], 0x030201) << "cancelled";
    host.dialogs.WillAnswer(MessageAnswer::No);
    dialog.reject();
    EXPECT_NE(StyleTable::ForeColor[0], Red) << "the stored style is back";
}

TEST_F(StylesTest, APreviewEndsWithTheDialogAndApplyReachesEveryView) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    const auto behind = SciWndData;
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("b.bb", "Print 1\r\n")));
    const auto front = SciWndData;
    const int before = Fore(front, 0);
    {
        frmColors dialog(&dock->Window());
        PaintRed(dialog);
        EXPECT_EQ(Fore(front, 0), before);
        Find<QCheckBox>(dialog, "chkSeeChanges").click();
        EXPECT_EQ(Fore(front, 0), Red);
        host.dialogs.WillAnswer(MessageAnswer::Cancel); // dismissed: the dialog stays
        dialog.show();
        dialog.reject();
        EXPECT_TRUE(dialog.isVisible());
        host.dialogs.WillAnswer(MessageAnswer::No);
        dialog.reject();
        EXPECT_EQ(host.dialogs.messages.back().text,
                  "Style Default has changed.\r\nDo you want to save changes to this style?");
    }
    EXPECT_EQ(Fore(front, 0), before);
    frmColors dialog(&dock->Window());
    Choose(dialog, "Night");
    Click(dialog, "cmdApplyStyle");
    const int night = StyleTable::ForeColor[0];
    EXPECT_NE(night, before);
    EXPECT_EQ(Fore(front, 0), night);
    EXPECT_EQ(Fore(behind, 0), night);
    EXPECT_EQ(SciWndData, front);
    EXPECT_EQ(host.settings.Get("OptionsEdit", "SciStyleName", ""), "Night");
    dialog.reject();
    EXPECT_EQ(Fore(front, 0), night);
}

TEST_F(StylesTest, StylesAreAddedRenamedAndDeleted) {
    frmColors dialog(&dock->Window());
    host.dialogs.WillType("Default");
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click(dialog, "cmdAddNew");
    EXPECT_EQ(host.dialogs.messages.back().text, "Style with this name already exists !");
    host.dialogs.WillType("a/b");
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click(dialog, "cmdAddNew");
    PaintRed(dialog);
    host.dialogs.WillType("Mine");
    Click(dialog, "cmdAddNew");
    EXPECT_EQ(Selected(dialog), "Mine");
    ASSERT_EQ(host.files.Kind(StylePath("Mine")), PathKind::File);
    Choose(dialog, "Default"); // nothing to save, and the old style is as it was
    EXPECT_NE(StyleTable::ForeColor[0], Red);
    Choose(dialog, "Mine");
    EXPECT_EQ(StyleTable::ForeColor[0], Red);
    Click(dialog, "cmdApplyStyle");
    host.dialogs.WillType("Yours");
    Click(dialog, "cmdRenameStyle");
    EXPECT_EQ(Selected(dialog), "Yours");
    EXPECT_EQ(host.settings.Get("OptionsEdit", "SciStyleName", ""), "Yours");
    EXPECT_EQ(host.files.Kind(StylePath("Mine")), PathKind::None);
    host.dialogs.WillType("Night");
    Click(dialog, "cmdRenameStyle"); // taken: nothing happens
    EXPECT_EQ(Selected(dialog), "Yours");
    host.dialogs.WillAnswer(MessageAnswer::Yes);
    Click(dialog, "cmdDeleteStyle");
    EXPECT_EQ(host.files.Kind(StylePath("Yours")), PathKind::None);
    EXPECT_EQ(Selected(dialog), "Default");
    EXPECT_NE(StyleTable::ForeColor[0], Red);
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click(dialog, "cmdDeleteStyle");
    EXPECT_EQ(host.dialogs.messages.back().text, "You can't delete default style !");
}

TEST_F(StylesTest, AStyleThatCannotBeSavedStaysTheOneInUse) {
    host.ExpectErrorLog();
    gHostCalls.ShowErrorDialog = nullptr;
    frmColors dialog(&dock->Window());
    Choose(dialog, "Night");
    host.files.writesFail = true;
    Click(dialog, "cmdApplyStyle");
    host.files.writesFail = false;
    EXPECT_EQ(OptionsEdit::SciStyleName, "Default");
    Click(dialog, "cmdClose");
    EXPECT_EQ(StyleTable::Description.find("Quiet ink"), 0u);
}

TEST_F(StylesTest, AColourThatIsHardToReadIsTold) {
    frmColors dialog(&dock->Window());
    const auto told = [&] { return Find<QLabel>(dialog, "lblContrast").text(); };
    EXPECT_FALSE(told().contains("hard to read"));
    dialog.AskColour = [](const QColor&) { return QColor(0xC0, 0xC0, 0xC0); };
    Click(dialog, "cmdColor");
    EXPECT_TRUE(told().contains("hard to read")) << told().toStdString();
    EXPECT_TRUE(told().contains("1.8 : 1")) << told().toStdString();
    Click(dialog, "cmdApplyFontToAll");
    for (const auto& font : StyleTable::FontName) EXPECT_EQ(font, StyleTable::FontName[0]);
    host.dialogs.WillAnswer(MessageAnswer::No);
    dialog.reject();
}

}
