// What is put up for a step and must come down again, however the step ends.
#pragma once

#include "host/Desktop.h"
#include "host/Host.h"

// The wait cursor.
class WaitCursor {
public:
    WaitCursor() { gHost.desktop->SetWaitCursor(true); }
    ~WaitCursor() { gHost.desktop->SetWaitCursor(false); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

// The main window doesn't paint.
class StillWindow {
public:
    StillWindow() { gHost.desktop->LockWindowUpdate(true); }
    ~StillWindow() { gHost.desktop->LockWindowUpdate(false); }
    StillWindow(const StillWindow&) = delete;
    StillWindow& operator=(const StillWindow&) = delete;
};
