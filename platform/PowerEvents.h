#pragma once

#include <functional>

namespace quindle {

/// What the computer says of its power supplies without being asked: plugged, unplugged, a battery taken out
/// or put in, another charge. Main thread only.
class PowerEvents
{
public:
    virtual ~PowerEvents() = default;

    /// Calls `observer` from the main loop soon after something changed, once for all that was told by then;
    /// in place of the observer before. What changed has to be read. How often it calls is up to the drivers,
    /// which may say it a thousand times a second. A computer that tells nothing never calls.
    virtual void setObserver(std::function<void()> observer) = 0;
};

} // namespace quindle
