#pragma once

#include <optional>

#include "platform/linux/os/MonotonicClock.h"
#include "platform/linux/power/CombinedBattery.h"
#include "platform/linux/power/TimeEstimator.h"

namespace quindle {

enum class BatteryTime {
    AverageToEmpty,
    AverageToFull,
    InstantToEmpty,
    Remaining, ///< to full while charging, else to empty; none on external power that does not charge
};

/// The times of the system's batteries: the driver's own where it has plausible ones, else estimates. Only
/// estimates remember anything between two calls: the samples of the last minutes. Main thread only.
class BatteryTimes
{
public:
    explicit BatteryTimes(MonotonicClock now = timeSinceBoot);

    /// Whole minutes; nothing while it is not known.
    std::optional<int> minutes(BatteryTime time, const SystemPower& power);

    /// Tells the estimates whether the computer is plugged in; to be called whenever that was read, so that
    /// no plug or unplug is missed.
    void notePower(const SystemPower& power);

private:
    std::optional<int> estimate(BatteryTime time, const SystemPower& power);
    void sample(const SystemPower& power);

    MonotonicClock m_now;
    TimeEstimator m_estimator;
};

} // namespace quindle
