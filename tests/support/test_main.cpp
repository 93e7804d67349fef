// The main function of a test program: a toolkit without a display, because views need one to exist.
#include <QApplication>
#include <QStandardPaths>
#include <csignal>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // No test reads or writes the settings of the user who runs it.
    QStandardPaths::setTestModeEnabled(true);
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
