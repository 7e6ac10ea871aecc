#include "warnings/RecentReadings.h"

#include <algorithm>

namespace quindle {

namespace {

constexpr qint64 keptSeconds = 60;
constexpr double largestChange = 15; // points
// A refresh comes every ten seconds, so the oldest reading of a minute is rarely a minute old.
constexpr qint64 steadySeconds = 45;
constexpr int steadyPart = 4; // an estimate that changes by more than a quarter is not steady
constexpr int steadyMinutesAtLeast = 2;
// Drivers that announce every change of the charge refresh twice a second.
constexpr std::size_t mostReadings = 128;

} // namespace

void RecentReadings::add(const BatteryReading& reading)
{
    // The last one before the minute holds at its beginning: refreshes that would find nothing new are
    // skipped.
    while (m_readings.size() > 1 && reading.moment - m_readings[1].moment >= keptSeconds)
        m_readings.erase(m_readings.begin());
    // Bounded within the minute too: a driver must not decide how much is kept.
    if (m_readings.size() >= mostReadings)
        m_readings.erase(m_readings.begin());
    m_readings.push_back(
        {reading.moment, reading.percent, isDischarging(reading) ? reading.minutesToEmpty : std::nullopt});
}

bool RecentReadings::hasJumped() const
{
    const auto byPercent = [](const Entry& a, const Entry& b) { return a.percent < b.percent; };
    const auto [least, most] = std::minmax_element(m_readings.begin(), m_readings.end(), byPercent);
    return least != m_readings.end() && most->percent - least->percent > largestChange;
}

std::optional<int> RecentReadings::steadyMinutes() const
{
    const auto isUnknown = [](const Entry& entry) { return !entry.minutes; };
    if (!isLongEnough() || std::any_of(m_readings.begin(), m_readings.end(), isUnknown))
        return std::nullopt;
    const auto byMinutes = [](const Entry& a, const Entry& b) { return *a.minutes < *b.minutes; };
    const auto [least, most] = std::minmax_element(m_readings.begin(), m_readings.end(), byMinutes);
    // Minutes are whole: near empty a change of one would be more than a quarter.
    const int allowed = std::max(steadyMinutesAtLeast, *most->minutes / steadyPart);
    return *most->minutes - *least->minutes <= allowed ? m_readings.back().minutes : std::nullopt;
}

bool RecentReadings::isLongEnough() const
{
    return !m_readings.empty() && m_readings.back().moment - m_readings.front().moment >= steadySeconds;
}

} // namespace quindle
