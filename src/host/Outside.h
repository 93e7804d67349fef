// What comes from outside waits while the program itself waits for somebody. A dialog, an error report, an
// open menu and every pump of our own run the event loop inside a routine, and that routine must find
// everything as it left it.
#pragma once

#include <cstddef>
#include <functional>

// Up while a routine runs the event loop without a window or menu of its own in front, as a pump does.
class NestedLoop {
public:
    NestedLoop();
    ~NestedLoop();
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;
};

// Runs the work at once; or, where it would fall into the middle of a routine, in its turn as soon as the
// event loop is nobody's but the program's.
void FromOutside(std::function<void()> work);

// How many works wait.
std::size_t WaitingFromOutside();
// Forgets what waits, when the platform goes.
void ForgetOutside();
