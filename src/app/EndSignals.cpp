// Ends the program on signals. A signal may arrive between any two instructions, so its handler only writes a
// byte, which the event loop reads.
#include "app/EndSignals.h"

#include "documents/Mod_Main.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

int ends[2] = {-1, -1};

void OnSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(ends[1], &byte, 1);
}

void Catch(int signal) {
    struct sigaction present {};
    sigaction(signal, nullptr, &present);
    if (present.sa_handler == SIG_IGN) return; // as "nohup" wants it
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(signal, &action, nullptr);
}

void End() {
    Mod_Main::EndNow();
    // Every nested event loop ends with this; open questions take it for Cancel.
    QCoreApplication::exit(0);
}

}

void WatchForTheEnd() {
    QObject::connect(
        qApp, &QGuiApplication::commitDataRequest, qApp, [] { Mod_Main::SaveSession(); },
        Qt::DirectConnection);
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier] {
        notifier->setEnabled(false);
        End();
    });
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) Catch(signal);
}
