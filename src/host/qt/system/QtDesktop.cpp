// What only the desktop can do, through the toolkit.
#include "host/qt/system/QtDesktop.h"

#include "host/Outside.h"
#include "host/Twips.h"
#include "host/qt/system/Painting.h"
#include "host/qt/system/QtText.h"

#include <QApplication>
#include <QFontDatabase>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QSysInfo>
#include <cstdlib>
#include <unistd.h>

namespace {

QMainWindow* MainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<QMainWindow*>(widget)) return window;
    return nullptr;
}

// Returns the physical state if the platform reports it, else the state at the last event.
bool KeyDown(Qt::KeyboardModifier key) {
    if (QGuiApplication::platformName() == "xcb") return QGuiApplication::queryKeyboardModifiers() & key;
    return QGuiApplication::keyboardModifiers() & key;
}

// One value of the file in which a Linux system names itself.
std::string Release(const QString& key) {
    const QSettings release("/etc/os-release", QSettings::IniFormat);
    return Typed(release.value(key).toString());
}

}

void QtDesktop::Pump() {
    const NestedLoop loop;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool QtDesktop::WaitsForUser() {
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

void QtDesktop::SetWaitCursor(bool on) {
    if (on == waiting_) return;
    waiting_ = on;
    if (on)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void QtDesktop::LockWindowUpdate(bool lock) {
    if (QMainWindow* window = MainWindow()) SetPainting(*window, !lock);
}

void QtDesktop::Beep() { QApplication::beep(); }

bool QtDesktop::ShiftDown() { return KeyDown(Qt::ShiftModifier); }
bool QtDesktop::ControlDown() { return KeyDown(Qt::ControlModifier); }

ScreenSize QtDesktop::Screen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return {};
    return {screen->availableVirtualGeometry().width() * TwipsPerPixel,
            screen->availableVirtualGeometry().height() * TwipsPerPixel};
}

std::string QtDesktop::FontFor(const std::string& name) {
    const QString face = Shown(name);
    if (!face.isEmpty() && QFontDatabase::hasFamily(face)) return name;
    return Typed(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
}

std::string QtDesktop::OsName() {
    const std::string name = Release("NAME");
    return name.empty() ? Typed(QSysInfo::prettyProductName()) : name;
}
std::string QtDesktop::OsVersion() {
    const std::string version = Release("VERSION_ID");
    return version.empty() ? Typed(QSysInfo::productVersion()) : version;
}
std::string QtDesktop::OsBuild() { return Typed(QSysInfo::kernelVersion()); }

std::string QtDesktop::ShortPath(const std::string& path) {
    return !path.empty() && access(path.c_str(), F_OK) == 0 ? path : std::string{};
}

void QtDesktop::EndProcess(int status) { std::_Exit(status); }
