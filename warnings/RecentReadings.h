#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "samples/Sample.h"

namespace quindle {

/// What one refresh found of the battery, as far as warnings need it.
struct BatteryReading
{
    qint64 moment = 0;  ///< seconds since the beginning of 1970, UTC
    double percent = 0; ///< state of charge
    SampleState state = SampleState::Unknown;
    std::optional<int> minutesToEmpty; ///< nothing where it is not known
    std::optional<int> chargeLimit;    ///< the percentage at which the computer stops charging
    QString battery;                   ///< identifies the battery
};

/// Any other state counts as plugged in.
inline bool isDischarging(const BatteryReading& reading)
{
    return reading.state == SampleState::Discharging;
}

/// The readings of the last minute, for what a single one does not show. A reading holds until the next one.
class RecentReadings
{
public:
    /// Moments must not run backwards: call `forget` first when the clock was set back.
    void add(const BatteryReading& reading);
    void forget() { m_readings.clear(); }

    /// Whether the charge has changed by more than 15 points within the minute, which no battery does.
    bool hasJumped() const;

    /// The newest estimate of the minutes until empty where it was known, and nearly the same, throughout
    /// most of the minute; else nothing.
    std::optional<int> steadyMinutes() const;

private:
    struct Entry
    {
        qint64 moment = 0;
        double percent = 0;
        std::optional<int> minutes;
    };

    bool isLongEnough() const;

    std::vector<Entry> m_readings;
};

} // namespace quindle
