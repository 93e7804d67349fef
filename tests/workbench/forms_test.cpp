// The Output pane under a flood, and the mail draft of an error report.
#include "app/CommandLine.h"
#include "app/FirstStart.h"
#include "support/FakeHost.h"
#include "workbench/dialogs/ErrorReport.h"
#include "workbench/dialogs/frmError.h"
#include "workbench/output/frmOutput.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

TEST(OutputTest, AFloodKeepsTheLastLinesAndALongLineComesInPieces) {
    frmOutput output;
    auto* text = static_cast<QPlainTextEdit*>(static_cast<QWidget*>(output.NativeWidget()));
    for (int line = 0; line < 100000; ++line) output.Append("line " + std::to_string(line));
    EXPECT_TRUE(text->toPlainText().isEmpty()); // nothing is shown before the event loop's turn
    QApplication::processEvents();
    EXPECT_EQ(text->blockCount(), frmOutput::MostLines);
    EXPECT_TRUE(text->toPlainText().endsWith("line 99999"));
    output.Append("of the run before");
    output.Clear();
    QApplication::processEvents();
    EXPECT_EQ(text->toPlainText(), "");
    output.Append(std::string(1 << 20, 'x'));
    output.Append("caf\xE9");
    QApplication::processEvents();
    EXPECT_GT(text->blockCount(), 100);
    EXPECT_TRUE(text->toPlainText().endsWith("caf\u00E9"));
    // It scrolls when it is told to, and leaves the reader alone otherwise.
    text->resize(200, 100);
    text->show();
    QScrollBar& bar = *text->verticalScrollBar();
    output.ScrollToEnd();
    QApplication::processEvents();
    EXPECT_EQ(bar.value(), bar.maximum());
    bar.setValue(0);
    output.Append("more");
    QApplication::processEvents();
    EXPECT_EQ(bar.value(), 0);
}

TEST(ErrorReportTest, TheDraftHoldsTheLogAndTheLogIsEmptied) {
    FakeHost host;
    host.Put("error.log", "entry\r\n");
    host.settings.Save("Options", "ErrorReportMailbox", "bugs@example.org");
    WriteErrorReport();
    HandOverErrorReport();
    const std::string draft = host.Path("Zolto - Error Report.eml");
    EXPECT_EQ(host.files.openedWithDesktop, std::vector<std::string>{draft});
    EXPECT_EQ(host.ErrorLog(), "");
    const std::string text = host.files.Read(draft);
    EXPECT_EQ(
        text.rfind("From: <>\r\nTo: \"bugs@example.org\"\r\nSubject: Zolto - Error Report\r\n"
                   "X-Unsent: 1\r\n\r\nIf possible, please include a description of the steps required to "
                   "reproduce this error:\r\n\r\n\r\n\r\n\r\nAdd your note here",
                   0),
        0u)
        << text;
    EXPECT_NE(text.find("\r\n<BEGIN REPORT - PLEASE DO NOT WRITE BELOW THIS LINE>\r\n\r\nentry\r\n\r\n"
                        "<END REPORT>\r\n"),
              std::string::npos);
}

TEST(ErrorReportTest, ALogThatCannotBeEmptiedIsToldAndTheDialogCloses) {
    FakeHost host;
    host.ExpectErrorLog();
    host.Put("error.log", "entry\r\n");
    host.files.writesFail = true;
    const auto send = [&] {
        host.dialogs.WillAnswer(MessageAnswer::Ok);
        QTimer::singleShot(0, [] {
            for (QPushButton* button : QApplication::activeModalWidget()->findChildren<QPushButton*>())
                if (button->text() == "&Send Error Report") button->click();
        });
        frmError::ShowModal();
    };
    send();
    EXPECT_EQ(host.ErrorLog(), "entry\r\n");
    host.files.writesFail = false;
    send();
    EXPECT_NE(host.dialogs.messages.back().text.find(ErrorReportFile()), std::string::npos);
}

TEST(CommandLineTest, ArgumentsBecomeOneTextThatAnyFolderUnderstands) {
    FakeHost host;
    host.Put("a b.bb", "");
    EXPECT_EQ(JoinCommandLine({"/L:3", "a b.bb", "missing.bb"}, host.folder),
              "/L:3 \"" + host.Path("a b.bb") + "\" missing.bb");
    EXPECT_EQ(JoinCommandLine({}, host.folder), "");
}

TEST(FirstStartTest, AnUpgradeReplacesOnlyWhatTheUserLeftAlone) {
    FakeHost host;
    const auto start = [&] { EXPECT_EQ(FillAppDir(host.Path("home"), host.Path("share")), ""); };
    const auto read = [&](const char* name) { return host.files.Read(host.Path(name)); };
    host.Put("share/Conf/own.dat", "1");
    host.Put("share/Conf/same.dat", "1");
    host.Put("share/Styles/x y.style", "1");
    host.Put("home/Conf/own.dat", "the user's own");
    host.Put("home/Conf/same.dat", "1");
    start();
    EXPECT_EQ(read("home/Styles/x y.style"), "1");
    for (const char* name : {"share/Conf/own.dat", "share/Conf/same.dat", "share/Styles/x y.style"})
        host.Put(name, "two");
    start();
    EXPECT_EQ(read("home/Conf/own.dat"), "the user's own");
    EXPECT_EQ(read("home/Conf/same.dat"), "two");
    EXPECT_EQ(read("home/Styles/x y.style"), "two");
    host.Put("home/Styles/x y.style", "mine");
    std::filesystem::remove(host.Path("home/Conf/same.dat"));
    host.Put("share/Styles/x y.style", "three");
    start();
    EXPECT_EQ(read("home/Styles/x y.style"), "mine");
    EXPECT_EQ(read("home/Conf/same.dat"), "two");
    EXPECT_EQ(FillAppDir(host.Path("home"), host.Path("no such folder")), "");
    EXPECT_NE(FillAppDir("/proc/no/such", host.Path("share")), "");
}

}
