// Keys and paints as a user's view gets them.
#include "Keys.h"

#include <QApplication>
#include <QKeyEvent>

QAbstractScrollArea* Widget(EditorView& view) {
    return static_cast<QAbstractScrollArea*>(static_cast<QWidget*>(view.NativeWidget()));
}

void Paint(QAbstractScrollArea& widget, bool whole) {
    if (whole) widget.viewport()->update();
    widget.viewport()->repaint();
    QApplication::processEvents();
}

void Show(QAbstractScrollArea& widget, QSize size) {
    widget.resize(size);
    widget.show();
    Paint(widget, true);
}

void Press(QAbstractScrollArea& widget, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
}
