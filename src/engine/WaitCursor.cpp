// The wait cursor, on the screen and in the active view.
#include "engine/WaitCursor.h"

#include "host/Desktop.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

namespace {

void Show(bool on) {
    if (gHost.desktop) gHost.desktop->SetWaitCursor(on);
    if (SciWndData != 0) Mod_Sci::SetCursor(on ? SC_CURSORWAIT : SC_CURSORNORMAL);
}

}

void BeginWaitCursor() { Show(true); }
void EndWaitCursor() { Show(false); }
