// Another start hands over files while a dialog is open: every text stays in its own file, tab and tables.
#include "WindowTest.h"
#include "app/wire_up.h"
#include "host/ErrorLog.h"
#include "host/HostCalls.h"
#include "host/Outside.h"
#include "host/qt/system/QtClock.h"
#include "host/qt/system/QtDesktop.h"
#include "host/qt/system/QtDialogs.h"
#include "sci/Mod_Sci.h"
#include "workbench/find/frmFind.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>

namespace {

struct HandoverTest : WindowTest {
    QtDialogs dialogs;
    QtDesktop desktop;
    QtClock clock;
    std::string one, two, copy;
    std::string typed = "Global more\r\nGlobal alpha\r\n";
    std::vector<std::string> keys;        // of the windows when the dialog came up
    std::function<void(QWidget*)> answer; // of the dialog that is waited for
    int met = 0;
    QTimer look;

    void SetUp() override {
        WindowTest::SetUp();
        WireUp();
        gHost.dialogs = &dialogs;
        gHost.desktop = &desktop;
        gHost.clock = &clock;
        OptionsEdit::SaveFoldingState = OptionsEdit::SaveBookmarks = OptionsEdit::SaveCompilerCommandLine = 0;
        one = host.Put("one.bb", "Global alpha\r\n");
        two = host.Put("two.bb", "Global beta\r\n");
        copy = host.Path("copy.bb");
        QObject::connect(&look, &QTimer::timeout, &look, [this] { Meet(); });
        look.start(5);
    }
    void TearDown() override {
        look.stop();
        frmFind::Unload();
        Options::gBackupEnabled = 0;
        gHostCalls.ShowErrorDialog = nullptr;
        ForgetOutside();
        gHost.dialogs = &host.dialogs;
        gHost.desktop = &host.desktop;
        gHost.clock = &host.clock;
        WindowTest::TearDown();
    }

    std::vector<std::string> Keys() {
        std::vector<std::string> all;
        for (const DocumentWindow* open : dock->DocumentWindows()) all.push_back(open->Key());
        return all;
    }
    void HandOver() {
        Mod_Main::TextReceived("\"" + two + "\"");
        Mod_Main::TextReceived("\"" + one + "\"");
    }
    // A dialog or menu is open: the first one gets the files and the case's answer, later ones are closed.
    void Meet() {
        QWidget* up = QApplication::activePopupWidget();
        if (!up) up = QApplication::activeModalWidget();
        if (!up || !up->isVisible()) return;
        if (++met > 1) return void(up->close());
        keys = Keys();
        HandOver();
        QApplication::processEvents();
        EXPECT_EQ(Keys(), keys);
        EXPECT_EQ(WaitingFromOutside(), 2u);
        answer(up);
    }
    void Settle() {
        QTest::qWait(1);
        EXPECT_TRUE(QTest::qWaitFor([] { return WaitingFromOutside() == 0; }, 3000));
    }
    // Each window has the document of its key, each document its project, and each project its own symbols.
    void ExpectConsistent() {
        std::size_t sources = 0;
        for (const auto& project : gProjects) {
            EXPECT_EQ(project.key, project.record->FullPath);
            for (const auto& source : project.record->Sources) {
                ++sources;
                EXPECT_EQ(source.key, source.record->FullFilename);
                const DocumentWindow* tab = dock->FindDocumentWindow(source.key);
                ASSERT_NE(tab, nullptr) << source.key;
                EXPECT_EQ(tab->HostedForm(), &FormOf(*source.record));
            }
            std::set<std::string> globals, expected;
            for (const SymbolPointer& symbol : project.record->Globals.Items()) globals.insert(symbol->Ime);
            const std::string text = TextOf(*project.record);
            for (const char* name : {"alpha", "beta", "more"})
                if (text.find(name) != std::string::npos) expected.insert(name);
            EXPECT_EQ(globals, expected) << project.key;
        }
        EXPECT_EQ(sources, Keys().size());
        ASSERT_NE(ActiveForm(), nullptr);
        EXPECT_EQ(gHost.dock->ActiveDocumentWindow()->Key(), ActiveForm()->FullFilename);
        EXPECT_EQ(SciWndData, ActiveForm()->SciEdi_WndData);
        EXPECT_EQ(gCurrentProject, gProjects.Find(ActiveForm()->PrjFullPath));
    }
    static std::string TextOf(const ClsProject& project) {
        frmDoc& document = FormOf(*project.Sources.Item(0));
        const ActiveSwap swap(document);
        document.m_oSubclass->DeactivateCheck();
        return Mod_Sci::GetText();
    }
    frmDoc& Dirty() {
        EXPECT_TRUE(Mod_File::OpenFile(one));
        Mod_Sci::ReplaceSel("Global more\r\n");
        EXPECT_TRUE(ActiveForm()->Dirty);
        return *ActiveForm();
    }
};

using Ask = std::function<void(HandoverTest&, frmDoc&)>;
using Answer = std::function<void(HandoverTest&, QWidget*)>;

Ask Command(const char* name) {
    return [name](HandoverTest& test, frmDoc&) { test.Click(name); };
}
Answer Press(QMessageBox::StandardButton button) {
    return [button](HandoverTest& test, QWidget* up) {
        test.host.files.writesFail = false;
        qobject_cast<QMessageBox*>(up)->button(button)->click();
    };
}
void Escape(HandoverTest&, QWidget* up) { QTest::keyClick(up, Qt::Key_Escape); }
void Shut(HandoverTest&, QWidget* up) { up->close(); }

void CloseTab(HandoverTest& test, frmDoc& document) {
    test.dock->FindDocumentWindow(document.FullFilename)->SetVisible(false);
}
void Reload(HandoverTest& test, frmDoc&) { Mod_File::OpenFile(test.one); }
void SaveWithoutBackup(HandoverTest& test, frmDoc& document) {
    test.host.ExpectErrorLog();
    Options::gBackupEnabled = Options::gBackupStoreType = 1;
    Options::gBackupStoreFolder = test.one + "/no folder";
    EXPECT_TRUE(Mod_File::SaveFile(&document));
}
void SaveToAFullDisk(HandoverTest& test, frmDoc& document) {
    test.host.files.writesFail = true;
    EXPECT_FALSE(Mod_File::SaveFile(&document));
}
void Report(HandoverTest& test, frmDoc&) {
    test.host.ExpectErrorLog();
    SetStopErrorLog(1);
}
void OpenMenu(HandoverTest& test, frmDoc&) {
    test.dock->ShowPopup("PopupMenu1"); // it comes back at once
    EXPECT_TRUE(QTest::qWaitFor([&] { return test.met > 0; }));
}
void ChooseCopy(HandoverTest& test, QWidget* up) {
    auto* dialog = qobject_cast<QFileDialog*>(up);
    EXPECT_EQ(dialog->directory().path().toStdString(), test.host.folder);
    dialog->selectFile(QString::fromStdString(test.copy));
    QMetaObject::invokeMethod(dialog, "accept");
}

struct Case {
    const char* name;
    Ask ask;
    Answer answer;
    bool written = false; // the typed text is in one.bb
    bool closed = false;  // and its tab was closed, so that the file handed over opens anew
    bool copied = false;  // the document has become copy.bb
};

std::ostream& operator<<(std::ostream& out, const Case& of) { return out << of.name; }

const Case Cases[] = {
    {"SaveThis", CloseTab, Press(QMessageBox::Yes), true, true},
    {"DropThis", CloseTab, Press(QMessageBox::No), false, true},
    {"DismissThis", CloseTab, Escape},
    {"Exit", [](auto& test, auto&) { test.dock->CloseWindow(); }, Escape},
    {"SaveAs", Command("Save File As"), ChooseCopy, false, true, true},
    {"Open", Command("Open File"), Escape},
    {"OpenWorkspace", Command("Open Workspace"), Escape},
    {"SaveWorkspace", Command("Save Workspace As"), Escape},
    {"KeepChanges", Reload, Press(QMessageBox::No)},
    {"LoadAnew", Reload, Press(QMessageBox::Yes), false, true},
    {"BackupError", SaveWithoutBackup, Shut, true},
    {"WriteError", SaveToAFullDisk, Press(QMessageBox::Ok)},
    {"ErrorReport", Report, Shut},
    {"About", Command("About"), Shut},
    {"GotoLine", Command("Goto Line"), Shut},
    {"Folder", [](auto&, auto&) { gHost.dialogs->Folder("Folder", ""); }, Escape},
    {"OneLine", [](auto&, auto&) { gHost.dialogs->Input("Name", "", ""); }, Escape},
    {"Menu", OpenMenu, Shut},
};

struct DialogTest : HandoverTest, testing::WithParamInterface<Case> {};

TEST_P(DialogTest, FilesThatAreHandedOverWait) {
    const Case& now = GetParam();
    frmDoc& document = Dirty();
    answer = [&](QWidget* up) { now.answer(*this, up); };
    now.ask(*this, document);
    Settle();
    EXPECT_GE(met, 1);
    EXPECT_EQ(host.files.Read(one), now.written ? typed : "Global alpha\r\n");
    EXPECT_EQ(host.files.Read(two), "Global beta\r\n");
    std::set<std::string> open = {one, two};
    if (now.copied) {
        open.insert(copy);
        EXPECT_EQ(host.files.Read(copy), typed);
    }
    const auto found = Keys();
    EXPECT_EQ(std::set<std::string>(found.begin(), found.end()), open);
    EXPECT_EQ(found.size(), open.size());
    ExpectConsistent();
    // What was neither saved nor thrown away is still there.
    const auto project = gProjects.Find(one);
    ASSERT_NE(project, nullptr);
    EXPECT_EQ(project->Sources.Item(0)->Dirty, !now.written && !now.closed);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogTest, testing::ValuesIn(Cases),
                         [](const auto& of) { return of.param.name; });

// Windows that stay open beside the main window hold nothing up.
TEST_F(HandoverTest, ModelessWindowsLetThemIn) {
    for (const char* command : {"Find", "Customize"}) {
        ASSERT_TRUE(Mod_File::OpenFile(one));
        Click(command);
        HandOver();
        EXPECT_EQ(Keys(), (std::vector<std::string>{one, two})) << command;
        ExpectConsistent();
        for (QWidget* top : QApplication::topLevelWidgets())
            if (qobject_cast<QDialog*>(top)) top->close();
        for (const std::string& key : Keys()) dock->FindDocumentWindow(key)->SetVisible(false);
        EXPECT_EQ(gProjects.Count(), 0);
    }
    EXPECT_EQ(met, 0);
}

// A prompt with Yes and No alone: Escape and the X are neither.
TEST_F(HandoverTest, ADismissedBoxIsACancel) {
    for (const Answer& dismiss : {Answer(Escape), Answer(Shut)}) {
        met = 0;
        answer = [&](QWidget* up) { dismiss(*this, up); };
        EXPECT_EQ(gHost.dialogs->Show({.text = "?", .buttons = MessageButtons::YesNo}),
                  MessageAnswer::Cancel);
        Settle();
    }
}

}
