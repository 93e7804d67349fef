// What is left that only the desktop can do: the event queue, pointers, keys, time, timers, instances.
#pragma once

#include <functional>
#include <string>

struct ScreenSize {
    int width = 0; // twips
    int height = 0;
};

class Desktop {
public:
    virtual ~Desktop() = default;

    // Handles what waits in the event queue, once; what the user did meanwhile and what comes from outside
    // wait.
    virtual void Pump() = 0;
    // Whether a modal window or a menu is open.
    virtual bool WaitsForUser() = 0;
    virtual void SetWaitCursor(bool on) = 0;
    // Stops and resumes the painting of the main window.
    virtual void LockWindowUpdate(bool lock) = 0;
    virtual void Beep() = 0;

    // Calls back every `milliseconds` from the event loop until killed. Ids are above 0.
    virtual int SetTimer(int milliseconds, std::function<void()> tick) = 0;
    virtual void KillTimer(int id) = 0;

    // Whether that key is held down now.
    virtual bool ShiftDown() = 0;
    virtual bool ControlDown() = 0;

    virtual ScreenSize Screen() = 0;
    // The face of that name, or the first monospaced one that this system has.
    virtual std::string FontFor(const std::string& name) = 0;
    // The local date and time as the log writes them.
    virtual std::string Date() = 0;
    virtual std::string Time() = 0;
    // A date as the user's language writes it in short.
    virtual std::string ShortDate(int year, int month, int day) = 0;
    // Name, version and build of the operating system.
    virtual std::string OsName() = 0;
    virtual std::string OsVersion() = 0;
    virtual std::string OsBuild() = 0;
    // A new unique id of 38 characters, braces included.
    virtual std::string UniqueId() = 0;

    // The existing path itself, empty where nothing is there.
    virtual std::string ShortPath(const std::string& path) = 0;

    // Ends the process at once, without shutdown.
    [[noreturn]] virtual void EndProcess(int status) = 0;
};

// The single instance and the road on which a second start hands over its command line.
class Instances {
public:
    virtual ~Instances() = default;

    // Whether another process of this program runs for this user. The first caller becomes the owner.
    virtual bool AnotherRuns() = 0;
    // Opens the channel and returns the text that names it for others, to be stored.
    virtual std::string Publish(std::function<void(const std::string&)> received) = 0;
    // Lets a moment pass in which an instance that is just starting may open its channel.
    virtual void WaitForPublish() = 0;
    // Delivers a text to the channel of that name. False when nobody listens there.
    virtual bool Send(const std::string& handle, const std::string& text) = 0;
    // Closes the channel, after it has received what was already sent.
    virtual void Withdraw() = 0;
};
