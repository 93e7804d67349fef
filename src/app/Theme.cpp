// The icon theme. Line icons are drawn for light or for dark windows, so the choice follows the palette.
#include "app/Theme.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>

namespace {

constexpr int MiddleLightness = 128;

class PaletteFollower : public QObject {
public:
    PaletteFollower() : QObject(qApp) {
        // A desktop that has a theme of its own keeps it; the fallback serves what it lacks.
        const QString name = QIcon::themeName();
        ownChoice_ = name.isEmpty() || name == "hicolor" || name.startsWith("breeze");
        Choose();
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) Choose();
        return false;
    }

private:
    void Choose() {
        const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < MiddleLightness;
        const QString breeze = dark ? "breeze-dark" : "breeze";
        if (ownChoice_) QIcon::setThemeName(breeze);
        QIcon::setFallbackThemeName(breeze);
    }

    bool ownChoice_ = false;
};

}

void FollowPalette() { new PaletteFollower; }
