// What only the desktop can do: the event queue, pointers, keys, time and timers.
#pragma once

#include "host/Desktop.h"

#include <QTimer>
#include <map>
#include <memory>

class QtDesktop : public Desktop {
public:
    ~QtDesktop() override;

    void Pump() override;
    bool WaitsForUser() override;
    void SetWaitCursor(bool on) override;
    void LockWindowUpdate(bool lock) override;
    void Beep() override;
    int SetTimer(int milliseconds, std::function<void()> tick) override;
    void KillTimer(int id) override;
    bool ShiftDown() override;
    bool ControlDown() override;
    ScreenSize Screen() override;
    std::string FontFor(const std::string& name) override;
    std::string Date() override;
    std::string Time() override;
    std::string ShortDate(int year, int month, int day) override;
    std::string OsName() override;
    std::string OsVersion() override;
    std::string OsBuild() override;
    std::string UniqueId() override;
    std::string ShortPath(const std::string& path) override;
    [[noreturn]] void EndProcess(int status) override;

private:
    bool waiting_ = false;
    int lastTimer_ = 0;
    std::map<int, std::unique_ptr<QTimer>> timers_;
};
