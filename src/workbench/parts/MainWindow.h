// The main window as a parent for dialogs.
#pragma once

#include <QApplication>
#include <QMainWindow>

// Null before the main window was made.
inline QWidget* MainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(widget)) return widget;
    return nullptr;
}
