// What only the desktop can do: the event queue, pointers, keys, the screen, the system's names.
#pragma once

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

    // Whether that key is held down now.
    virtual bool ShiftDown() = 0;
    virtual bool ControlDown() = 0;

    virtual ScreenSize Screen() = 0;
    // The face of that name, or the first monospaced one that this system has.
    virtual std::string FontFor(const std::string& name) = 0;
    // Name, version and build of the operating system.
    virtual std::string OsName() = 0;
    virtual std::string OsVersion() = 0;
    virtual std::string OsBuild() = 0;

    // The existing path itself, empty where nothing is there.
    virtual std::string ShortPath(const std::string& path) = 0;

    // Ends the process at once, without shutdown.
    [[noreturn]] virtual void EndProcess(int status) = 0;
};
