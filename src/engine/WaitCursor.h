// The wait cursor, on the screen and in the active view.
#pragma once

// For waits that end in another routine; every other wait uses the class. Calls may be nested.
void BeginWaitCursor();
void EndWaitCursor();

// Shows the wait cursor while it lives.
class WaitCursor {
public:
    WaitCursor() { BeginWaitCursor(); }
    ~WaitCursor() { EndWaitCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
