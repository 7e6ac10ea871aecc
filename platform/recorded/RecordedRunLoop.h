#pragma once

#include <vector>

#include "platform/RunLoop.h"

namespace quindle {

/// A timer as it was scheduled; fires on request only.
class RecordedTimer : public Timer
{
public:
    RecordedTimer(double interval, double tolerance, std::function<void()> fire);

    void invalidate() override { m_isValid = false; }

    double interval() const { return m_interval; }
    double tolerance() const { return m_tolerance; }
    bool isValid() const { return m_isValid; }
    void fire() const;

private:
    double m_interval;
    double m_tolerance;
    std::function<void()> m_fire;
    bool m_isValid = true;
};

/// A loop in which no time passes.
class RecordedRunLoop : public RunLoop
{
public:
    std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                  std::function<void()> fire) override;

    /// No tick is ever late.
    Punctuality keepPunctual() override { return nullptr; }

    /// Every timer ever scheduled, in order.
    const std::vector<std::shared_ptr<RecordedTimer>>& timers() const { return m_timers; }

private:
    std::vector<std::shared_ptr<RecordedTimer>> m_timers;
};

} // namespace quindle
