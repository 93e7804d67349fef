// The main window outlives every test, and must not keep the commands of a frame that does not.
#pragma once

#include "HeadlessDock.h"
#include "host/Host.h"
#include "workbench/frame/frmMain.h"

// Makes the main window fetch its commands from a frame that has none.
inline void ForgetFrame() {
    HeadlessDock empty;
    DockStudio* const dock = gHost.dock;
    gHost.dock = &empty;
    frmMain::Instance().AdditionalUISetup();
    gHost.dock = dock;
}
