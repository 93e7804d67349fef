// Work that comes from outside, such as dropped files, waits while a dialog, an error report, a menu or a
// pump runs the event loop inside a routine: that routine must find everything as it left it.
#pragma once

#include <cstddef>
#include <functional>

// Held while a routine runs the event loop without a modal window or a menu, as a pump does.
class NestedLoop {
public:
    NestedLoop();
    ~NestedLoop();
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;
};

// Runs the work at once, or in its turn as soon as no routine runs the event loop any more.
void FromOutside(std::function<void()> work);

// The number of waiting pieces of work.
std::size_t WaitingFromOutside();
// Drops the waiting work. Called before the platform services end.
void ForgetOutside();
