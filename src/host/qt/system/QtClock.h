// Time, through the toolkit.
#pragma once

#include "host/Clock.h"

#include <QTimer>
#include <map>
#include <memory>

class QtClock : public Clock {
public:
    ~QtClock() override;

    int SetTimer(int milliseconds, std::function<void()> tick) override;
    void KillTimer(int id) override;
    std::string Date() override;
    std::string Time() override;
    std::string ShortDate(int year, int month, int day) override;

private:
    int lastTimer_ = 0;
    std::map<int, std::unique_ptr<QTimer>> timers_;
};
