// The process: options that need no display, the platform's services, then the program's own start.
#include "app/CommandLine.h"
#include "app/EndSignals.h"
#include "app/FirstStart.h"
#include "app/ReadableStyle.h"
#include "app/Theme.h"
#include "app/wire_up.h"

#include "documents/Mod_Main.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/qt/frame/QtDockStudio.h"
#include "host/qt/system/QtClock.h"
#include "host/qt/system/QtDesktop.h"
#include "host/qt/system/QtDialogs.h"
#include "host/qt/system/QtFiles.h"
#include "host/qt/system/QtInstances.h"
#include "host/qt/system/QtProcesses.h"
#include "host/qt/system/QtSettingsStore.h"
#include "host/qt/system/QtText.h"
#include "host/qt/view/QtEditorView.h"

#include <QApplication>
#include <QIcon>
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <iostream>

namespace {

constexpr const char* Usage = "Usage: zolto [/L:line] [file...]\n"
                              "\n"
                              "Opens Blitz Basic sources (.bb) and projects (.zpf).\n"
                              "\n"
                              "  /L:line     puts the caret on that line of the file that follows\n"
                              "  --help      shows this text\n"
                              "  --version   shows the version\n";

bool Has(const std::vector<std::string>& arguments, std::string_view option) {
    return std::find(arguments.begin(), arguments.end(), option) != arguments.end();
}

// All services of the platform, alive for as long as the program runs.
struct Services {
    QtDialogs dialogs;
    QtFiles files;
    QtSettingsStore settings{{}, [this](const std::string& text) {
                                 dialogs.Show({.text = text, .icon = MessageIcon::Exclamation});
                             }};
    QtProcesses processes;
    QtDesktop desktop;
    QtClock clock;
    QtInstances instances;
    QtEditorViews views;
    QtDockStudio dock;

    Services() {
        gHost = {&dialogs, &files, &settings, &processes, &desktop, &clock, &instances, &views, &dock};
    }
    // What is destroyed later must not ask for them.
    ~Services() { gHost = {}; }
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;
};

void NameApplication() {
    QApplication::setApplicationName(Shown(ProgramName));
    QApplication::setApplicationVersion(Shown(ProgramVersion));
    QApplication::setDesktopFileName("zolto");
}

void ChooseFolders(const std::string& executable) {
    SetAppDir(ChooseAppDir(executable));
    const std::string problem = FillAppDir(AppDir(), executable + "/" ZOLTO_DATA_FROM_PROGRAM);
    if (!problem.empty())
        gHost.dialogs->Show({.text = "The program's folder could not be filled.\n\n" + problem,
                             .icon = MessageIcon::Exclamation});
}

}

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (Has(arguments, "--help")) return std::cout << Usage, 0;
    if (Has(arguments, "--version")) return std::cout << ProgramName << ' ' << ProgramVersion << '\n', 0;
    std::error_code error;
    const std::string startFolder = std::filesystem::current_path(error).string();
    // A file that would grow beyond a limit is a failed write, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    NameApplication();
    QApplication application(argc, argv);
    // Closing the main window ends the program, and only when its documents agreed to close.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new ReadableStyle);
    FollowPalette();
    QApplication::setWindowIcon(QIcon::fromTheme("zolto", QIcon::fromTheme("text-x-script")));
    Services services;
    ChooseFolders(PathBytes(QCoreApplication::applicationDirPath()));
    WireUp();
    WatchForTheEnd();
    if (!Mod_Main::Main(JoinCommandLine(arguments, startFolder))) return 0;
    const int status = Mod_Main::Ended() ? 0 : QApplication::exec();
    Mod_Main::TakeDown();
    return status;
}
