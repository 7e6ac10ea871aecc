#include "warnings/WarningRules.h"

#include <algorithm>

#include "warnings/RecentReadings.h"

namespace quindle {

namespace {

constexpr double hysteresis = 3;      // points
constexpr double roundingOfLimit = 1; // point: drivers stop a little below the limit, and say they have
constexpr double criticalPercent = 5;
constexpr double fullCharge = 100;

/// The percentage of the level; nothing where it has none.
std::optional<int> percentOf(WarningLevel level, const LevelSettings& settings, const BatteryReading& reading)
{
    return level == WarningLevel::LimitReached && settings.percent == 0 ? reading.chargeLimit
                                                                        : settings.percent;
}

/// Some computers call a battery full that is charged as far as its limit allows.
bool isFullByItsDriver(const BatteryReading& reading)
{
    return reading.state == SampleState::Full &&
           !(reading.chargeLimit && reading.percent <= *reading.chargeLimit);
}

bool isAtLimit(double limit, const BatteryReading& reading)
{
    const bool hasStopped = reading.state != SampleState::Charging;
    return reading.percent >= (hasStopped ? limit - roundingOfLimit : limit);
}

} // namespace

bool isReached(WarningLevel level, const LevelSettings& settings, const BatteryReading& reading,
               std::optional<int> steadyMinutes)
{
    const auto percent = percentOf(level, settings, reading);
    // Nobody is warned of a battery that charges at 8 %, or that drops from full.
    if (!percent || isOfDischarge(level) != isDischarging(reading))
        return false;
    switch (level) {
    case WarningLevel::Full:
        return reading.percent >= *percent || isFullByItsDriver(reading);
    case WarningLevel::LimitReached:
        return isAtLimit(*percent, reading);
    default:
        return reading.percent <= *percent || minutesToShow(level, settings, steadyMinutes).has_value();
    }
}

bool isLeft(WarningLevel level, const LevelSettings& settings, const BatteryReading& reading,
            std::optional<int> steadyMinutes, std::optional<double> lowestReached)
{
    const auto percent = percentOf(level, settings, reading);
    if (!percent || isReached(level, settings, reading, steadyMinutes))
        return false;
    if (isOfDischarge(level))
        return reading.percent >= std::min(fullCharge, *percent + hysteresis);
    const double lowest = std::min<double>(*percent, lowestReached.value_or(*percent));
    return reading.percent <= std::max(0.0, lowest - hysteresis);
}

std::optional<int> minutesToShow(WarningLevel level, const LevelSettings& settings,
                                 std::optional<int> steadyMinutes)
{
    // The same number is a percentage and minutes, so a level may be reached by either.
    const bool isShorter = steadyMinutes && *steadyMinutes <= settings.percent;
    return isOfDischarge(level) && isShorter ? steadyMinutes : std::nullopt;
}

bool isCritical(WarningLevel level, double percent)
{
    return level == WarningLevel::NearlyEmpty || (isOfDischarge(level) && percent <= criticalPercent);
}

} // namespace quindle
