// The dialogs of settings, driven by their own controls: from a control to the store, the variable and the
// views.
#include "WindowTest.h"
#include "app/wire_up.h"
#include "documents/OptionTable.h"
#include "editor/SciOptions.h"
#include "host/HostCalls.h"
#include "sci/Mod_Sci.h"
#include "workbench/settings/frmOptions.h"
#include "workbench/settings/frmOptionsEdit.h"

#include <QDialogButtonBox>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>
#include <map>
#include <set>

namespace {

using Keys = std::set<std::string>;

std::string ValueOf(const Option& option) {
    return option.number ? std::to_string(*option.number) : *option.text;
}

std::map<std::string, std::string> Values() {
    std::map<std::string, std::string> values;
    for (const Option& option : AllOptions()) values[std::string(option.key)] = ValueOf(option);
    return values;
}

struct SettingsDialogTest : WindowTest {
    void SetUp() override {
        WindowTest::SetUp();
        WireUp();
        for (const Option& option : AllOptions()) ResetOption(option);
    }
    void TearDown() override {
        for (const Option& option : AllOptions()) ResetOption(option);
        Options::gStartUp = 3;
        WindowTest::TearDown();
    }
    // A control, on its page, which comes to the top as for a user.
    template <class Control>
    static Control& Find(QDialog& dialog, const char* name) {
        auto* found = dialog.findChild<Control*>(name);
        if (!found) throw std::runtime_error(name);
        const auto& pages = *dialog.findChild<QStackedWidget*>();
        for (int page = 0; page < pages.count(); ++page)
            if (pages.widget(page)->isAncestorOf(found))
                dialog.findChild<QListWidget*>("lstPages")->setCurrentRow(page);
        return *found;
    }
    static void Press(QDialog& dialog, QDialogButtonBox::StandardButton button) {
        dialog.findChild<QDialogButtonBox*>()->button(button)->click();
    }
    static void Apply(QDialog& dialog) { Press(dialog, QDialogButtonBox::Apply); }

    // Changes what a control shows. False for a control that has nothing to change.
    static bool Change(QWidget* control) {
        if (auto* radio = qobject_cast<QRadioButton*>(control)) {
            if (radio->isChecked()) return false;
            radio->setChecked(true);
        } else if (auto* box = qobject_cast<QCheckBox*>(control)) {
            box->setChecked(!box->isChecked());
        } else if (auto* number = qobject_cast<QSpinBox*>(control)) {
            number->setValue(number->value() == number->maximum() ? number->minimum() : number->maximum());
        } else if (auto* text = qobject_cast<QLineEdit*>(control)) {
            text->setText(text->text() + "z");
        }
        return true;
    }
    // Changes one control after another and returns the options that changed, each by one control alone.
    Keys Walk(QDialog& dialog, const std::set<QString>& without) {
        Keys keys;
        for (QWidget* control : dialog.findChildren<QWidget*>()) {
            const QString name = control->objectName();
            const bool known = name.startsWith("chk") || name.startsWith("txt") || name.startsWith("opt") ||
                               name.startsWith("Opt") || name.startsWith("spn");
            if (!known || name == "txtSearch") continue;
            SCOPED_TRACE(name.toStdString());
            const auto before = Values();
            if (!Change(control)) continue;
            Apply(dialog);
            Keys changed;
            for (const auto& [key, value] : Values())
                if (value != before.at(key)) {
                    changed.insert(key);
                    const Option& option = *FindOption(key);
                    EXPECT_EQ(host.settings.Get(std::string(option.section), key, "?"), value);
                }
            EXPECT_EQ(changed.size(), without.count(name) ? 0u : 1u);
            keys.merge(changed);
        }
        return keys;
    }
};

TEST_F(SettingsDialogTest, EveryControlChangesItsOptionAndEveryOptionHasAControl) {
    frmOptions options(&dock->Window());
    frmOptionsEdit edit(&dock->Window());
    Keys keys = Walk(options, {"txtErrorReportMailbox", "txtBlitzPath", "txtHelpPath", "txtExeCommand",
                               "chkUseBlitzConsole", "chkExLastType", "chkPromtSave", "optSave0", "optSave1",
                               "optSave2"});
    keys.merge(Walk(edit, {"chkVirtualWhiteSpace"}));
    Keys all;
    for (const Option& option : AllOptions()) all.insert(std::string(option.key));
    // Two are ticks for an association, one is written by a build, one is chosen in a dialog of its own.
    for (const char* elsewhere : {"AssBBfiles", "AssProjectFiles", "gLastCreatedExe", "SciStyleName"})
        all.erase(elsewhere);
    EXPECT_EQ(keys, all);
    EXPECT_EQ(host.settings.Get("Options", "ErrorReportMailbox", ""), "z");
}

TEST_F(SettingsDialogTest, AViewInFrontAndOneBehindItGetTheNewOptions) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("lf.bb", "Print 1\nPrint 2\n")));
    const auto behind = SciWndData;
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("crlf.bb", "Print 1\r\nPrint 2\r\n")));
    const auto front = SciWndData;
    const bool clean = !ActiveForm()->Dirty;
    frmOptionsEdit dialog(&dock->Window());
    for (const char* box :
         {"chkWordWrap", "chkShowWhiteSpaces", "chkInsertSpacesForTabs", "chkShowIndentGuides",
          "chkHighlightCurrentLine", "chkShowMarkerMargin", "chkACCloseListOnNoMatch"})
        Find<QCheckBox>(dialog, box).click();
    for (const auto& [field, value] : {std::pair{"txtTabValue", 7},
                                       {"txtCursorPeriod", 900},
                                       {"txtCursorWidth", 1},
                                       {"txtACRowsHeight", 12}})
        Find<QSpinBox>(dialog, field).setValue(value);
    Apply(dialog);
    for (const auto view : {behind, front}) {
        std::vector<std::intptr_t> got;
        for (const unsigned message : {2269u, 2020u, 2125u, 2133u, 2095u, 2119u, 2121u, 2075u, 2189u, 2211u})
            got.push_back(Mod_Sci::SendTo(view, message));
        EXPECT_EQ(got, (std::vector<std::intptr_t>{1, 2, 0, 0, 0, 1, 7, 900, 1, 12}));
        EXPECT_EQ(Mod_Sci::SendTo(view, SCI_GETMARGINWIDTHN, MarkerMargin), 0);
    }
    constexpr unsigned GetEolMode = 2030;
    EXPECT_EQ(Mod_Sci::SendTo(behind, GetEolMode), SC_EOL_LF);
    EXPECT_EQ(Mod_Sci::SendTo(front, GetEolMode), SC_EOL_CRLF);
    EXPECT_EQ(SciWndData, front);
    EXPECT_EQ(!ActiveForm()->Dirty, clean);
}

TEST_F(SettingsDialogTest, WithoutAFoldMarginNothingStaysFoldedInFront) {
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Function f()\r\nPrint 1\r\nEnd Function\r\n")));
    QApplication::processEvents();
    Mod_Sci::ToggleFold(0);
    ASSERT_FALSE(Mod_Sci::GetLineVisible(1));
    frmOptionsEdit dialog(&dock->Window());
    Find<QCheckBox>(dialog, "chkShowFoldMargin").click();
    Apply(dialog);
    EXPECT_TRUE(Mod_Sci::GetLineVisible(1));
    EXPECT_EQ(Mod_Sci::SendTo(SciWndData, SCI_GETMARGINWIDTHN, FoldMargin), 0);
}

TEST_F(SettingsDialogTest, ControlsDependOnOthers) {
    frmOptionsEdit edit(&dock->Window());
    const auto on = [](QDialog& dialog, const char* name) { return Find<QWidget>(dialog, name).isEnabled(); };
    EXPECT_TRUE(on(edit, "txtACstartAfter"));
    Find<QCheckBox>(edit, "chkACShowAuto").click();
    EXPECT_FALSE(on(edit, "txtACstartAfter"));
    EXPECT_FALSE(on(edit, "chkNearTextAtEnd"));
    Find<QCheckBox>(edit, "chkWordWrap").setChecked(true);
    EXPECT_TRUE(on(edit, "chkNearTextAtEnd"));
    EXPECT_FALSE(on(edit, "chkNearTextAtBegin"));
    frmOptions options(&dock->Window());
    Find<QCheckBox>(options, "chkEnableBackup").setChecked(true);
    EXPECT_TRUE(on(options, "spnBak"));
    EXPECT_FALSE(on(options, "txtBackupFolder"));
    Find<QRadioButton>(options, "optBackupType1").setChecked(true);
    Find<QRadioButton>(options, "optStoreIn1").setChecked(true);
    EXPECT_FALSE(on(options, "spnBak"));
    EXPECT_TRUE(on(options, "txtBackupFolder"));
}

TEST_F(SettingsDialogTest, CancelStoresNothingButThePageAndAStoredValueBeyondTheRangeStays) {
    OptionsEdit::TabValue = 44;
    const auto before = Values();
    {
        frmOptionsEdit dialog(&dock->Window());
        dialog.show();
        auto& list = Find<QListWidget>(dialog, "lstPages");
        QTest::keyClick(&list, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(list.currentRow(), list.count() - 1);
        QTest::keyClick(&list, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(list.currentRow(), 0);
        Find<QCheckBox>(dialog, "chkShowLineNumbers").click();
        QTest::keyClick(&list, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyClick(&list, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_EQ(Values(), before);
    EXPECT_EQ(host.settings.Get("OptionsEdit", "ShowLineNumbers", "none"), "none");
    frmOptionsEdit dialog(&dock->Window());
    EXPECT_EQ(Find<QListWidget>(dialog, "lstPages").currentRow(), 1);
    Press(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(Values(), before);
}

TEST_F(SettingsDialogTest, TheSearchFindsASettingByItsWords) {
    frmOptionsEdit dialog(&dock->Window());
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    auto& search = Find<QLineEdit>(dialog, "txtSearch");
    search.setFocus();
    QTest::keyClicks(&search, "blinking caret");
    auto& list = Find<QListWidget>(dialog, "lstPages");
    EXPECT_EQ(list.currentItem()->text(), "View");
    EXPECT_TRUE(list.item(1)->isHidden());
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtCursorPeriod");
    search.clear();
    EXPECT_FALSE(list.item(1)->isHidden());
}

TEST_F(SettingsDialogTest, RecentListsAreCutAndPurged) {
    for (const char* name : {"a.bb", "b.bb", "c.bb", "d.bb", "e.bb", "f.bb"})
        ASSERT_TRUE(Mod_File::OpenFile(host.Put(name, "")));
    DockCommand& recent = *dock->FindCommand("FileRecentFiles");
    frmOptions dialog(&dock->Window());
    Find<QSpinBox>(dialog, "txtRecentFiles").setValue(5);
    Find<QCheckBox>(dialog, "chkShowRecentFull").setChecked(false);
    Apply(dialog);
    EXPECT_EQ(recent.Items(), (std::vector<std::string>{"f.bb", "e.bb", "d.bb", "c.bb", "b.bb"}));
    host.dialogs.WillAnswer(MessageAnswer::No);
    Find<QPushButton>(dialog, "cmdClearRecent").click();
    EXPECT_EQ(recent.Items().size(), 5u);
    host.dialogs.WillAnswer(MessageAnswer::Yes);
    Find<QPushButton>(dialog, "cmdClearRecent").click();
    EXPECT_TRUE(recent.Items().empty());
}

struct CompilersTest : SettingsDialogTest {
    static void Click(QDialog& dialog, const char* button) { Find<QPushButton>(dialog, button).click(); }
    std::vector<std::string> Listed(QDialog& dialog) {
        auto& list = Find<QListWidget>(dialog, "lvCompilers");
        std::vector<std::string> rows;
        for (int row = 0; row < list.count(); ++row)
            rows.push_back((list.item(row)->checkState() == Qt::Checked ? "*" : "") +
                           list.item(row)->text().toStdString());
        return rows;
    }
    std::string Registry() { return host.files.Read(host.Path("Conf/compilers.dat")); }
};

using Rows = std::vector<std::string>;

TEST_F(CompilersTest, ACompilerIsAddedRenamedMadeDefaultAndRemoved) {
    const std::string first = gCompilers.Item(0)->Name;
    const std::string before = Registry();
    frmOptions dialog(&dock->Window());
    host.dialogs.WillType(first);
    host.dialogs.WillAnswer(MessageAnswer::Ok); // the name is in use
    Click(dialog, "cmdAdd");
    host.dialogs.WillType("Other");
    host.dialogs.WillChooseFolder("/opt/other");
    Click(dialog, "cmdAdd");
    EXPECT_EQ(Listed(dialog), (Rows{"*" + first, "Other"}));
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtHelpPath").text(), "/opt/other/help");
    Find<QCheckBox>(dialog, "chkUseBlitzConsole").click();
    host.Put("Conf/Other.lng", "as a refresh wrote it");
    host.dialogs.WillType("Second");
    Click(dialog, "cmdRename");
    EXPECT_EQ(Registry(), before) << "nothing is written before Apply";
    Apply(dialog);
    EXPECT_EQ(Registry(), "1\r\n2\r\n" + before.substr(before.find('"')) +
                              "\"Second\"\r\n\"/opt/other\"\r\n\"/opt/other/help\"\r\n#TRUE#\r\n");
    EXPECT_EQ(dock->FindCommand("cboCompilers")->Items(), (Rows{first, "Second"}));
    EXPECT_EQ(host.files.Read(host.Path("Conf/Second.lng")), "as a refresh wrote it");
    EXPECT_EQ(gCompilers.Item("second")->Folder(), "/opt/other");
    Click(dialog, "cmdSetAsDefault");
    EXPECT_EQ(Listed(dialog), (Rows{first, "*Second"}));
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click(dialog, "cmdRemove");
    EXPECT_EQ(host.dialogs.messages.back().text,
              "You are not allowed to remove the default compiler !\r\nPlease "
              "mark other compiler as default first...");
    Find<QListWidget>(dialog, "lvCompilers").item(0)->setCheckState(Qt::Checked);
    Click(dialog, "cmdRemove");
    EXPECT_EQ(Listed(dialog), Rows{"*" + first});
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    Click(dialog, "cmdRemove");
    EXPECT_EQ(host.dialogs.messages.back().text, "You must have at least one compiler!");
    Apply(dialog);
    EXPECT_EQ(Registry(), before);
    EXPECT_EQ(host.settings.Get("Options", "DefaultCompiler", ""), first);
}

// A new name is also that of the keywords, of the default and in everything that is open.
TEST_F(CompilersTest, ProjectsSurviveARenaming) {
    const std::string first = gCompilers.Item(0)->Name;
    ASSERT_TRUE(Mod_File::OpenFile(host.Put("a.bb", "Print 1\r\n")));
    gCurrentProject->Compiler = ActiveForm()->CompilerUsed = first;
    const std::string keywords = host.files.Read(host.Path("Conf/" + first + ".lng"));
    frmOptions dialog(&dock->Window());
    host.dialogs.WillType("Renamed");
    Click(dialog, "cmdRename");
    Apply(dialog);
    EXPECT_EQ(gCurrentProject->Compiler, "Renamed");
    EXPECT_EQ(ActiveForm()->CompilerUsed, "Renamed");
    EXPECT_EQ(gActiveCompiler->Name, "Renamed");
    EXPECT_EQ(DefaultCompiler, "Renamed");
    EXPECT_EQ(host.files.Read(host.Path("Conf/Renamed.lng")), keywords);
    EXPECT_EQ(host.files.Kind(host.Path("Conf/" + first + ".lng")), PathKind::None);
    gCompilers.RemoveAll();
    gActiveCompiler.reset();
    Mod_Main::LoadCompilers(); // as the next start does
    EXPECT_TRUE(Mod_Main::SetActiveCompiler("Renamed"));
}

TEST_F(CompilersTest, AListThatCannotBeWrittenChangesNothing) {
    host.ExpectErrorLog();
    gHostCalls.ShowErrorDialog = nullptr;
    const std::string before = Registry();
    frmOptions dialog(&dock->Window());
    host.dialogs.WillType("Renamed");
    Click(dialog, "cmdRename");
    Find<QCheckBox>(dialog, "chkMultipleInstances").click();
    host.files.writesFail = true;
    dialog.show();
    Press(dialog, QDialogButtonBox::Ok);
    EXPECT_TRUE(dialog.isVisible());
    host.files.writesFail = false;
    EXPECT_EQ(Registry(), before);
    EXPECT_EQ(Options::MultipleInstances, 0);
    EXPECT_NE(gActiveCompiler->Name, "Renamed");
    Press(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(gActiveCompiler->Name, "Renamed");
}

}
