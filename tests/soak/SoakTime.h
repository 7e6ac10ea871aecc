#pragma once

#include <map>

#include <QTimeZone>

#include "platform/Host.h"
#include "platform/RunLoop.h"
#include "platform/linux/session/TimerSchedule.h"

namespace quindle {

/// A clock that is set by hand.
class SoakClock : public Clock
{
public:
    QDateTime time{QDate(2026, 3, 1), QTime(8, 0), QTimeZone::utc()};

    QDateTime now() const override { return time; }
};

/// Timers on the schedule that the helper's own have, in a time that only runs on request, and takes the
/// clock along.
class SoakRunLoop : public RunLoop
{
public:
    explicit SoakRunLoop(SoakClock& clock)
        : m_clock(clock)
    {
    }

    std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                  std::function<void()> fire) override;
    Punctuality keepPunctual() override;
    void advance(double seconds);

private:
    class SoakTimer;

    void addPunctuality(int change);
    void moveTo(double time);

    SoakClock& m_clock;
    double m_now = 0;
    TimerSchedule m_schedule;
    int m_punctualities = 0;
    std::map<int, std::function<void()>> m_actions;
};

} // namespace quindle
