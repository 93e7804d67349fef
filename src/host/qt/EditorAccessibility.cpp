// What the edit control does for screen readers, kept off its typing path while none runs.
#include "host/qt/EditorAccessibility.h"

#include "host/qt/ChangeEvents.h"

#include <Qsci/qsciscintillabase.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>

namespace {

// The object of a view while nobody reads: a named text field without the library's bookkeeping.
QAccessibleInterface* PlainObject(const QString&, QObject* object) {
    if (QAccessible::isActive()) return nullptr;
    auto* view = qobject_cast<QsciScintillaBase*>(object);
    return view ? new QAccessibleWidget(view, QAccessible::EditableText) : nullptr;
}

// An object that was made while nobody read would stay; it is dropped, and the next request makes the real
// one.
class DropPlainObjects : public QAccessible::ActivationObserver {
public:
    void accessibilityActiveChanged(bool active) override {
        ChangeEvents::AccessibilityChanged();
        if (!active) return;
        for (QWidget* widget : QApplication::allWidgets()) {
            auto* view = qobject_cast<QsciScintillaBase*>(widget);
            if (!view) continue;
            if (QAccessibleInterface* plain = QAccessible::queryAccessibleInterface(view))
                QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(plain));
        }
    }
};

}

void InstallEditorAccessibility() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    static DropPlainObjects observer;
    QAccessible::installFactory(PlainObject);
    QAccessible::installActivationObserver(&observer);
}
