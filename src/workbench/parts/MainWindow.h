// The main window as a parent for dialogs.
#pragma once

#include <QApplication>
#include <QMainWindow>

// Returns null before the main window exists.
inline QWidget* MainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(widget)) return widget;
    return nullptr;
}
