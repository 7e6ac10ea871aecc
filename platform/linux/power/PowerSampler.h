#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QVariantMap>

#include "platform/linux/os/MonotonicClock.h"
#include "platform/linux/power/BatteryTimes.h"
#include "platform/linux/supplies/SupplyMemory.h"
#include "platform/linux/supplies/SupplyReader.h"

namespace quindle {

/// The computer's power at one moment, and what registry and power sources say of it.
struct PowerSample
{
    SystemPower power;
    QVariantMap batteryEntry;         ///< empty without a battery
    std::vector<QVariantMap> sources; ///< batteries, then uninterruptible supplies
};

/// Takes samples of a class directory ("/sys/class/power_supply"). One sample answers all questions of one
/// refresh, as a Mac's registry holds what its driver last published, so that one title never mixes figures
/// of two moments: it serves until the main loop waits again, when the owner calls expire(), or for a second
/// where it never does. Main thread only.
class PowerSampler
{
public:
    explicit PowerSampler(std::string folder, ReadFunction read = readDescriptor,
                          MonotonicClock now = timeSinceBoot, ReadingPatience patience = {});

    /// Never null.
    std::shared_ptr<const PowerSample> sample();

    /// Makes the next question take a new sample.
    void expire() { m_isExpired = true; }

    /// The same, and makes it look for files that have come or gone: a supply's driver has announced
    /// something. It also does so every half minute.
    void lookAgain();

    /// Sets what is called from the main loop when a reading that was too late for its sample is there: the
    /// next sample has it.
    void setLateObserver(std::function<void()> arrived);

    /// Sets what is called when a sample has no remaining time yet, with the time until a sample will have
    /// one: sooner than the timers may ask again.
    void setTimeExpected(std::function<void(std::chrono::milliseconds)> expected)
    {
        m_timeExpected = std::move(expected);
    }

    /// Whether samples have been the same for a while, and will be as long as the supplies do not change. Not
    /// while an attribute could not be read.
    bool isSteady() const;

    /// Sets what gives the moments, in order and by the sampler's clock, at which the supplies were seen
    /// unchanged: the next sample asks for them, and counts them as if they had been sampled.
    void setStillMoments(std::function<std::vector<std::chrono::milliseconds>()> take)
    {
        m_takeStillMoments = std::move(take);
    }

    /// What estimates the times; see EstimatorText.h.
    TimeEstimator& estimator() { return m_times.estimator(); }

private:
    void take(std::chrono::milliseconds now);
    void countStillMoments();
    void compare(const SupplyReadings& readings, const PowerSample& sample, std::chrono::milliseconds now);
    bool looksAgain(std::chrono::milliseconds now);

    MonotonicClock m_now;
    SupplyReader m_reader;
    SupplyMemory m_memory;
    BatteryTimes m_times;
    std::shared_ptr<const PowerSample> m_sample;
    std::chrono::milliseconds m_takenAt{};
    std::optional<std::chrono::milliseconds> m_lookedAt;
    bool m_isExpired = true;
    std::function<std::vector<std::chrono::milliseconds>()> m_takeStillMoments;
    std::function<void(std::chrono::milliseconds)> m_timeExpected;
    SupplyReadings m_lastReadings;
    std::optional<std::chrono::milliseconds> m_stillSince; ///< the readings; nothing while one is incomplete
    bool m_isAsBefore = false;                             ///< the last sample, with all that was made of it
};

} // namespace quindle
