#include "host/qt/system/QtClock.h"

#include "host/qt/system/QtText.h"

#include <QDateTime>
#include <QLocale>

QtClock::~QtClock() = default;

int QtClock::SetTimer(int milliseconds, std::function<void()> tick) {
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [call = std::move(tick)] {
        // The tick may kill its own timer, and the function with it.
        const auto copy = call;
        copy();
    });
    timer->start(milliseconds);
    timers_[++lastTimer_] = std::move(timer);
    return lastTimer_;
}

void QtClock::KillTimer(int id) {
    const auto at = timers_.find(id);
    if (at == timers_.end()) return;
    at->second->stop();
    at->second.release()->deleteLater();
    timers_.erase(at);
}

std::string QtClock::Date() { return Typed(QDate::currentDate().toString(Qt::ISODate)); }
std::string QtClock::Time() { return Typed(QTime::currentTime().toString(Qt::ISODate)); }
std::string QtClock::ShortDate(int year, int month, int day) {
    return Typed(QLocale::system().toString(QDate(year, month, day), QLocale::ShortFormat));
}
