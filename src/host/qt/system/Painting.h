// Stopping and resuming the painting of the main window with all its panes.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

// Resumes painting of a pane that was detached while painting was stopped: as a window of its own it is not
// reached when the main window resumes.
inline void SetPainting(QMainWindow& window, bool paints) {
    window.setUpdatesEnabled(paints);
    if (!paints) return;
    for (QDockWidget* pane : window.findChildren<QDockWidget*>())
        if (pane->isWindow()) pane->setUpdatesEnabled(true);
}
