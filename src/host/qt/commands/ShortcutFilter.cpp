// The only filter that matches shortcuts. A cancelled shortcut continues to the focused widget, which the
// toolkit's own shortcuts cannot do.
#include "host/qt/commands/ShortcutFilter.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <chrono>

namespace {

constexpr qint64 LateMilliseconds = 100; // a held key repeats about every 30
constexpr qint64 LongestLag = 60'000;    // beyond it a clock was set

bool IsTextField(const QWidget* widget) {
    // An editable box has the focus itself and passes keys on to its field.
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) return box->isEditable();
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QPlainTextEdit*>(widget) || qobject_cast<const QTextEdit*>(widget);
}

// Keys that move and end in a text field: they are its own however commands are bound.
bool IsFieldKey(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Backspace:
    case Qt::Key_Delete: return true;
    default: return false;
    }
}

}

bool KeyLag::IsLateRepeat(const QKeyEvent& event) {
    if (event.timestamp() == 0) return false; // the event has no time
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const qint64 lag = std::chrono::duration_cast<std::chrono::milliseconds>(now).count() -
                       static_cast<qint64>(event.timestamp());
    // The two clocks begin anywhere: the least difference that was seen is that of a key without delay.
    if (!least_ || lag < *least_ || lag > *least_ + LongestLag) least_ = lag;
    return event.isAutoRepeat() && lag > *least_ + LateMilliseconds;
}

ShortcutFilter::ShortcutFilter(QMainWindow& window, CommandTable& table)
    : QObject(&window), window_(window), table_(table) {
    qApp->installEventFilter(this);
}

QKeyCombination ShortcutFilter::KeyOf(const QKeyEvent& event) {
    Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    auto key = static_cast<Qt::Key>(event.key());
    if (key == Qt::Key_Enter) key = Qt::Key_Return;
    if (key == Qt::Key_Backtab) {
        key = Qt::Key_Tab;
        modifiers |= Qt::ShiftModifier;
    }
    return QKeyCombination(modifiers, key);
}

// Only the focused widget of the main window or of a pane that floats: no menus, lists or dialogs.
bool ShortcutFilter::Concerns(QObject* watched) const {
    if (!watched->isWidgetType() || QApplication::activePopupWidget() || QApplication::activeModalWidget())
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    const QWidget* focus = QApplication::focusWidget();
    if (focus ? widget != focus : widget != &window_) return false;
    const QWidget* top = widget->window();
    return top == &window_ || (qobject_cast<const QDockWidget*>(top) && top->parentWidget() == &window_);
}

bool ShortcutFilter::eventFilter(QObject* watched, QEvent* event) {
    const bool override = event->type() == QEvent::ShortcutOverride;
    if ((!override && event->type() != QEvent::KeyPress) || !Concerns(watched)) return false;
    auto* widget = static_cast<QWidget*>(watched);
    auto& key = *static_cast<QKeyEvent*>(event);
    if (!override && late_.IsLateRepeat(key)) return true;
    return override ? OfferOverride(widget, key) : OfferPress(widget, key);
}

bool ShortcutFilter::OfferOverride(QWidget* widget, QKeyEvent& event) {
    claimant_ = nullptr;
    if (!table_.OfKey(KeyOf(event))) return false;
    if (IsTextField(widget)) {
        // What the field does with a key itself, such as copy and paste, stays the field's.
        event.ignore();
        static_cast<QObject*>(widget)->event(&event);
        if (event.isAccepted()) claimant_ = widget;
    }
    event.accept();
    return true;
}

bool ShortcutFilter::OfferPress(QWidget* widget, const QKeyEvent& event) {
    if (claimant_ == widget) {
        claimant_ = nullptr;
        return false;
    }
    if (IsTextField(widget) && IsFieldKey(event)) return false;
    QtCommand* command = table_.OfKey(KeyOf(event));
    if (!command || !table_.events) return false;
    bool cancel = false;
    table_.events->DS_ShortcutFiring(*command, cancel);
    if (cancel) return false;
    // A key that is held repeats the commands that are made for it; for others the repeats are swallowed.
    if (!event.isAutoRepeat() || command->AutoRepeat()) table_.FireByKey(*command);
    return true;
}
