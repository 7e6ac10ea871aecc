#pragma once

#include <chrono>
#include <optional>

#include "platform/linux/power/SystemPower.h"
#include "platform/linux/power/TimeEstimator.h"

namespace quindle {

/// The times of the system's batteries, in whole minutes; nothing while one is not known.
struct SystemTimes
{
    std::optional<int> averageToEmpty;
    std::optional<int> averageToFull;
    std::optional<int> presentToEmpty;
    std::optional<int> remaining; ///< to full while charging, else to empty; none on mains without charging
};

/// Follows the batteries from one moment to the next: the driver's own times where it has plausible ones,
/// else estimates from the samples of the last minutes. Times are of one clock that only runs forward.
class BatteryTimes
{
public:
    /// The times at that moment. Call it for every sample, so that no plug or unplug is missed.
    SystemTimes follow(const SystemPower& power, std::chrono::milliseconds now);

    /// How long after the last change the times stay what they are as long as the supplies do. Nothing where
    /// they never do: an estimate from charges alone moves on with the clock.
    static std::optional<std::chrono::seconds> steadyAfter(const SystemPower& power);

    /// When the next call of `follow` gives a first time where the last one gave none; nothing where it gave
    /// one, or none is to be expected soon.
    std::optional<std::chrono::milliseconds> firstTimeAt() const { return m_firstTimeAt; }

    TimeEstimator& estimator() { return m_estimator; }

private:
    TimeEstimator m_estimator;
    std::optional<std::chrono::milliseconds> m_firstTimeAt;
};

} // namespace quindle
