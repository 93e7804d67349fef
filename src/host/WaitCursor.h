// The wait cursor for as long as a step takes, however it ends.
#pragma once

#include "host/Desktop.h"
#include "host/Host.h"

class WaitCursor {
public:
    WaitCursor() { gHost.desktop->SetWaitCursor(true); }
    ~WaitCursor() { gHost.desktop->SetWaitCursor(false); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
