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
        const QString name = QIcon::themeName();
        ownChoice_ =
            name.isEmpty() || name == "hicolor" || name.startsWith("breeze") || !HasDevelopersIcons();
        Choose();
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) Choose();
        return false;
    }

private:
    // A desktop's own theme is kept where it is whole: icons of two hands on one bar look unfinished.
    static bool HasDevelopersIcons() {
        const QString fallback = QIcon::fallbackThemeName();
        QIcon::setFallbackThemeName({});
        bool all = true;
        for (const char* name : {"document-save-all", "run-build", "debug-run", "edit-find-replace"})
            all = all && QIcon::hasThemeIcon(name);
        QIcon::setFallbackThemeName(fallback);
        return all;
    }

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
