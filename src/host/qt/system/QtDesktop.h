// What only the desktop can do, through the toolkit.
#pragma once

#include "host/Desktop.h"

class QtDesktop : public Desktop {
public:
    void Pump() override;
    bool WaitsForUser() override;
    void SetWaitCursor(bool on) override;
    void LockWindowUpdate(bool lock) override;
    void Beep() override;
    bool ShiftDown() override;
    bool ControlDown() override;
    ScreenSize Screen() override;
    std::string FontFor(const std::string& name) override;
    std::string OsName() override;
    std::string OsVersion() override;
    std::string OsBuild() override;
    std::string ShortPath(const std::string& path) override;
    [[noreturn]] void EndProcess(int status) override;

private:
    bool waiting_ = false;
};
