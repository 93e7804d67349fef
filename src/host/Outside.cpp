// The queue of work from outside. No event reports that the last modal window was closed, so a timer checks
// while work waits.
#include "host/Outside.h"

#include "host/Clock.h"
#include "host/Desktop.h"
#include "host/Host.h"

#include <deque>
#include <utility>

namespace {

constexpr int LookMilliseconds = 20;

int nestedLoops = 0;
int timer = 0;
std::deque<std::function<void()>> waiting;

bool MustWait() { return nestedLoops > 0 || (gHost.desktop != nullptr && gHost.desktop->WaitsForUser()); }

void Deliver() {
    while (!waiting.empty() && !MustWait()) {
        const auto work = std::move(waiting.front());
        waiting.pop_front();
        work();
    }
    if (!waiting.empty() || timer == 0) return;
    gHost.clock->KillTimer(std::exchange(timer, 0));
}

}

NestedLoop::NestedLoop() { ++nestedLoops; }
NestedLoop::~NestedLoop() { --nestedLoops; }

void FromOutside(std::function<void()> work) {
    if (waiting.empty() && !MustWait()) return work();
    waiting.push_back(std::move(work));
    if (timer == 0 && gHost.clock != nullptr) timer = gHost.clock->SetTimer(LookMilliseconds, Deliver);
}

std::size_t WaitingFromOutside() { return waiting.size(); }

void ForgetOutside() {
    waiting.clear();
    if (timer != 0 && gHost.clock != nullptr) gHost.clock->KillTimer(timer);
    timer = 0;
}
