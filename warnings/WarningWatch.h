#pragma once

#include <array>
#include <optional>
#include <vector>

#include "settings/WarningSettings.h"
#include "warnings/RecentReadings.h"

namespace quindle {

/// What is to be done about a reading.
struct WarningAction
{
    enum class Kind {
        Show,     ///< a notification where there is none
        Replace,  ///< the notification that is there
        Withdraw, ///< the notification that is there; the rest says nothing
        Run,      ///< the level's command
    };

    Kind kind = Kind::Show;
    WarningLevel level = WarningLevel::Low;
    double percent = 0;
    SampleState state = SampleState::Unknown;
    std::optional<int> minutes{}; ///< until empty, to be shown instead of the percentage

    friend bool operator==(const WarningAction&, const WarningAction&) = default;
};

/// Watches the battery's readings and says when to warn: once for each level and discharge, with one
/// notification at a time. It trusts no single reading, and none while the charge jumps; in the first minute
/// it only shows that the battery is nearly empty.
class WarningWatch
{
public:
    /// What a reading leads to, in order. Readings that are minutes apart, or run backwards, count as a
    /// wake in between.
    std::vector<WarningAction> take(const BatteryReading& reading, const WarningSettings& settings);

    /// The computer has woken at that moment, in seconds since 1970.
    void wake(qint64 moment);

    /// The battery is gone, for good or for a moment: what is known about it counts when it comes back.
    std::vector<WarningAction> loseBattery();

    /// Whether the battery is very low and discharging, no matter which program warns of it.
    bool needsAttention() const { return m_needsAttention; }

private:
    /// What is known about one level.
    struct Level
    {
        std::optional<qint64> reachedSince{};
        std::optional<qint64> leftSince{};
        std::optional<double> lowestReached{}; ///< percent; of a level of charging only
        bool isWarnedOf = false;
        bool wasReachedByTime = false;
    };

    Level& operator[](WarningLevel level) { return m_levels[indexOf(level)]; }
    void forgetReadings();
    void follow(const BatteryReading& reading, const WarningSettings& settings);
    void followLevel(WarningLevel level, const LevelSettings& settings, const BatteryReading& reading);
    void rearm(WarningLevel level, const BatteryReading& reading);
    void followAttention(const BatteryReading& reading);
    bool isConfirmed(const std::optional<qint64>& since, qint64 moment) const;
    bool isOutdated(const BatteryReading& reading);
    std::optional<WarningLevel> levelToWarnOf(const BatteryReading& reading, const WarningSettings& settings);
    bool hasWarnedMoreUrgently(WarningLevel level);
    void warn(WarningLevel level, const BatteryReading& reading, const WarningSettings& settings,
              std::vector<WarningAction>& actions);
    void showAgain(const BatteryReading& reading, const WarningSettings& settings,
                   std::vector<WarningAction>& actions);
    WarningAction actionOf(WarningLevel level, const BatteryReading& reading,
                           const WarningSettings& settings);
    void meetBattery(const QString& battery);

    std::array<Level, warningLevels.size()> m_levels;
    RecentReadings m_recent;
    std::optional<qint64> m_lastMoment;
    qint64 m_quietUntil = 0;
    QString m_battery;
    std::optional<WarningLevel> m_shown;
    std::optional<WarningLevel> m_takenBack; ///< what was shown when the battery went
    bool m_needsAttention = false;
};

} // namespace quindle
