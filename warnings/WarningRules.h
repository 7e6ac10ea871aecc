#pragma once

#include <optional>

#include "settings/WarningSettings.h"

namespace quindle {

struct BatteryReading;

/// Whether a level is one of those that come while the battery is discharged.
constexpr bool isOfDischarge(WarningLevel level)
{
    return level <= WarningLevel::NearlyEmpty;
}

/// Whether this reading is at that level. `steadyMinutes` are those until empty, where that is known well.
bool isReached(WarningLevel level, const LevelSettings& settings, const BatteryReading& reading,
               std::optional<int> steadyMinutes);

/// Whether this reading is so far from the level (3 points) that the level may be warned of again. A driver
/// may say that the battery is full far below the level's percentage: `lowestReached` is the lowest one at
/// which the level was reached, where that counts.
bool isLeft(WarningLevel level, const LevelSettings& settings, const BatteryReading& reading,
            std::optional<int> steadyMinutes, std::optional<double> lowestReached);

/// The minutes that a warning of that level gives instead of the percentage: a steady estimate that is no
/// longer than the level's percentage in minutes. Else nothing.
std::optional<int> minutesToShow(WarningLevel level, const LevelSettings& settings,
                                 std::optional<int> steadyMinutes);

/// Whether a warning stays on the screen until somebody closes it.
bool isCritical(WarningLevel level, double percent);

} // namespace quindle
