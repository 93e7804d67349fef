// Distinguishes the first press of a key held together with Control from the repeated presses.
#include "workbench/frame/KeyWatch.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace {

class Watch : public QObject {
public:
    Watch() : QObject(qApp) { qApp->installEventFilter(this); }
    bool released = true;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Control)
            released = true;
        // Another program may get the release.
        if (event->type() == QEvent::ApplicationDeactivate) released = true;
        return false;
    }
};

}

bool ControlWasReleased() {
    static auto* watch = new Watch;
    return std::exchange(watch->released, false);
}
