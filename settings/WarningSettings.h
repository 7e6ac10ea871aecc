#pragma once

#include <array>
#include <cstddef>

#include <QString>

namespace quindle {

class UserDefaults;

/// What a warning is about. The first three come while the battery is discharged, the more urgent the later;
/// the others while the computer is plugged in.
enum class WarningLevel { Low, VeryLow, NearlyEmpty, Full, LimitReached };

inline constexpr std::array warningLevels{WarningLevel::Low, WarningLevel::VeryLow, WarningLevel::NearlyEmpty,
                                          WarningLevel::Full, WarningLevel::LimitReached};

constexpr std::size_t indexOf(WarningLevel level)
{
    return static_cast<std::size_t>(level);
}

/// Who decides whether there are warnings.
enum class WarningsChoice {
    Automatic, ///< there are, unless a power manager on the session bus warns
    On,
    Off,
};

/// The settings of one level.
struct LevelSettings
{
    bool isOn = true;
    int percent = 0; ///< within the level's range; 0 for LimitReached means the computer's own charge limit
    QString command; ///< a program and its arguments; empty for none

    friend bool operator==(const LevelSettings&, const LevelSettings&) = default;
};

/// The settings of all levels.
struct WarningSettings
{
    std::array<LevelSettings, warningLevels.size()> levels;

    const LevelSettings& operator[](WarningLevel level) const { return levels[indexOf(level)]; }
    LevelSettings& operator[](WarningLevel level) { return levels[indexOf(level)]; }

    friend bool operator==(const WarningSettings&, const WarningSettings&) = default;
};

/// The percentages that a level may have.
struct PercentRange
{
    int least;
    int most;
};

PercentRange percentRange(WarningLevel level);

/// The settings of the warnings are in the helper's own database (`own`), which the application shares. They
/// are read at each call; what is missing, of another type or outside its range reads as the table of
/// settings says. Main thread only.
WarningSettings warningSettings(const UserDefaults& own);
WarningsChoice warningsChoice(const UserDefaults& own);

void setWarningsChoice(UserDefaults& own, WarningsChoice choice);
void setWarningOn(UserDefaults& own, WarningLevel level, bool isOn);
void setWarningPercent(UserDefaults& own, WarningLevel level, int percent);
void setWarningCommand(UserDefaults& own, WarningLevel level, const QString& command);

} // namespace quindle
