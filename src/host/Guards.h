// Guards for states of the screen that a step begins and that end with the step, also by an exception.
#pragma once

#include "host/Desktop.h"
#include "host/DockStudio.h"
#include "host/Host.h"

// Stops the painting of the main window.
class StillWindow {
public:
    StillWindow() { gHost.desktop->LockWindowUpdate(true); }
    ~StillWindow() { gHost.desktop->LockWindowUpdate(false); }
    StillWindow(const StillWindow&) = delete;
    StillWindow& operator=(const StillWindow&) = delete;
};

// Stops the painting of the frame while its commands or document windows change.
class StillFrame {
public:
    StillFrame() { gHost.dock->SuspendRepaint(true); }
    ~StillFrame() { gHost.dock->SuspendRepaint(false); }
    StillFrame(const StillFrame&) = delete;
    StillFrame& operator=(const StillFrame&) = delete;
};
