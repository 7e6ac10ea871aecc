#include <utility>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CfOwned.h"

namespace quindle {

namespace {

class LoopTimer : public SystemTimer
{
public:
    LoopTimer(double interval, double tolerance, std::function<void()> fire)
        : m_fire(std::move(fire))
    {
        CFRunLoopTimerContext context{0, this, nullptr, nullptr, nullptr};
        m_timer = CfOwned<CFRunLoopTimerRef>(CFRunLoopTimerCreate(
            kCFAllocatorDefault, CFAbsoluteTimeGetCurrent() + interval, interval, 0, 0, tick, &context));
        CFRunLoopTimerSetTolerance(m_timer.get(), tolerance);
        CFRunLoopAddTimer(CFRunLoopGetMain(), m_timer.get(), kCFRunLoopCommonModes);
    }

    ~LoopTimer() override { CFRunLoopTimerInvalidate(m_timer.get()); }

    void setTolerance(double tolerance) override
    {
        CFRunLoopTimerSetTolerance(m_timer.get(), tolerance);
        // The same date, looked at anew.
        CFRunLoopTimerSetNextFireDate(m_timer.get(), CFRunLoopTimerGetNextFireDate(m_timer.get()));
    }

private:
    static void tick(CFRunLoopTimerRef /*timer*/, void* self)
    {
        const auto fire = static_cast<LoopTimer*>(self)->m_fire; // it may destroy the timer
        // The loop has a pool for events alone, of which a program in the background gets none.
        @autoreleasepool {
            fire();
        }
    }

    std::function<void()> m_fire;
    CfOwned<CFRunLoopTimerRef> m_timer;
};

class SystemTimers : public TimerCalls
{
public:
    std::unique_ptr<SystemTimer> start(double interval, double tolerance, std::function<void()> fire) override
    {
        return std::make_unique<LoopTimer>(interval, tolerance, std::move(fire));
    }
};

} // namespace

std::unique_ptr<TimerCalls> systemTimers()
{
    return std::make_unique<SystemTimers>();
}

} // namespace quindle
