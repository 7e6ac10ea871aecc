#pragma once

#include "platform/RunLoop.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// The system wakes for several timers at once where their tolerances allow it; this only keeps track of who
/// wants them punctual.
class MacRunLoop : public RunLoop
{
public:
    explicit MacRunLoop(TimerCalls& calls);
    ~MacRunLoop() override;

    std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                  std::function<void()> fire) override;
    Punctuality keepPunctual() override;

private:
    struct State;

    std::shared_ptr<State> m_state;
};

} // namespace quindle
