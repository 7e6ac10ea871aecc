#pragma once

#include <optional>
#include <vector>

#include <QtGlobal>

namespace quindle {

struct BatteryReading;

/// The readings of the last minute, for what a single one cannot tell. A reading holds until the next one.
class RecentReadings
{
public:
    /// Moments must not run backwards: who sets the clock back forgets first.
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
        qint64 moment;
        double percent;
        std::optional<int> minutes;
    };

    bool isLongEnough() const;

    std::vector<Entry> m_readings;
};

} // namespace quindle
