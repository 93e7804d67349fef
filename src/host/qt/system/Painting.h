// Stopping and resuming the painting of the main window with all its panes.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

// A pane that comes to float while painting is stopped takes the stop with it, and as a window of its own
// would not hear of the end.
inline void SetPainting(QMainWindow& window, bool paints) {
    window.setUpdatesEnabled(paints);
    if (!paints) return;
    for (QDockWidget* pane : window.findChildren<QDockWidget*>())
        if (pane->isWindow()) pane->setUpdatesEnabled(true);
}
