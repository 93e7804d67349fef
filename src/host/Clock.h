// Time: the date and the time of day, and timers that fire from the event loop.
#pragma once

#include <functional>
#include <string>

class Clock {
public:
    virtual ~Clock() = default;

    // Calls back every `milliseconds` from the event loop until killed. Ids are above 0.
    virtual int SetTimer(int milliseconds, std::function<void()> tick) = 0;
    // Does nothing for an id that is not running.
    virtual void KillTimer(int id) = 0;

    // The local date and time as the log writes them: 2001-02-03 and 04:05:06.
    virtual std::string Date() = 0;
    virtual std::string Time() = 0;
    // A date as the user's language writes it in short.
    virtual std::string ShortDate(int year, int month, int day) = 0;
};
