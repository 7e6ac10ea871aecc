#include "warnings/WarningWatch.h"

#include <algorithm>
#include <utility>

#include "warnings/WarningRules.h"

namespace quindle {

namespace {

using Kind = WarningAction::Kind;

// Two refreshes for one change come within milliseconds, and say no more than one does.
constexpr qint64 secondsToAgree = 5;
constexpr qint64 quietSeconds = 60;
// Seconds between two refreshes of a computer that is awake; those that find nothing new are skipped for a
// minute at most.
constexpr qint64 longestPause = 150;

/// Since when it has been true, if it is.
void keepSince(std::optional<qint64>& since, bool isSo, qint64 moment)
{
    if (!isSo)
        since.reset();
    else if (!since)
        since = moment;
}

} // namespace

std::vector<WarningAction> WarningWatch::take(const BatteryReading& reading, const WarningSettings& settings)
{
    // Even without notice from the login manager, which not every system has.
    const bool hasSlept =
        !m_lastMoment || reading.moment < *m_lastMoment || reading.moment - *m_lastMoment > longestPause;
    if (hasSlept)
        wake(reading.moment);
    m_lastMoment = reading.moment;
    std::vector<WarningAction> actions;
    if (reading.battery != m_battery) {
        actions = loseBattery();
        meetBattery(reading.battery);
    }
    follow(reading, settings);
    if (isOutdated(reading)) {
        m_shown.reset();
        actions.push_back({.kind = Kind::Withdraw});
    }
    if (const auto level = levelToWarnOf(reading, settings))
        warn(*level, reading, settings, actions);
    showAgain(reading, settings, actions);
    return actions;
}

void WarningWatch::wake(qint64 moment)
{
    m_lastMoment = moment;
    m_quietUntil = moment + quietSeconds;
    forgetReadings();
}

/// A reading from before a gap confirms none from after it.
void WarningWatch::forgetReadings()
{
    m_recent.forget();
    for (Level& level : m_levels) {
        level.reachedSince.reset();
        level.leftSince.reset();
    }
}

std::vector<WarningAction> WarningWatch::loseBattery()
{
    forgetReadings();
    m_needsAttention = false;
    if (!m_shown)
        return {};
    m_takenBack = std::exchange(m_shown, std::nullopt);
    return {{.kind = Kind::Withdraw}};
}

/// The level of another battery says nothing about this one. A battery that is full when first seen is no
/// news.
void WarningWatch::meetBattery(const QString& battery)
{
    m_battery = battery;
    m_takenBack.reset();
    for (const WarningLevel level : warningLevels)
        (*this)[level] = {.isWarnedOf = !isOfDischarge(level)};
}

void WarningWatch::follow(const BatteryReading& reading, const WarningSettings& settings)
{
    m_recent.add(reading);
    for (const WarningLevel level : warningLevels)
        followLevel(level, settings[level], reading);
    followAttention(reading);
}

void WarningWatch::followLevel(WarningLevel level, const LevelSettings& settings,
                               const BatteryReading& reading)
{
    Level& known = (*this)[level];
    const auto minutes = m_recent.steadyMinutes();
    const bool reached = isReached(level, settings, reading, minutes);
    if (reached && !isOfDischarge(level))
        known.lowestReached = std::min(known.lowestReached.value_or(reading.percent), reading.percent);
    keepSince(known.reachedSince, reached, reading.moment);
    keepSince(known.leftSince, isLeft(level, settings, reading, minutes, known.lowestReached),
              reading.moment);
    if (isConfirmed(known.leftSince, reading.moment))
        rearm(level, reading);
}

/// Estimates of the time come and go with the load, so a level that an estimate has reached counts as warned
/// of until the battery is charged.
void WarningWatch::rearm(WarningLevel level, const BatteryReading& reading)
{
    Level& known = (*this)[level];
    if (known.wasReachedByTime && isDischarging(reading))
        return;
    known.isWarnedOf = false;
    known.wasReachedByTime = false;
    known.lowestReached.reset();
    if (m_takenBack == level)
        m_takenBack.reset();
}

void WarningWatch::followAttention(const BatteryReading& reading)
{
    const Level& veryLow = (*this)[WarningLevel::VeryLow];
    if (!isDischarging(reading) || isConfirmed(veryLow.leftSince, reading.moment))
        m_needsAttention = false;
    else if (isConfirmed(veryLow.reachedSince, reading.moment))
        m_needsAttention = true;
}

/// One odd reading says nothing, nor does any while the charge jumps.
bool WarningWatch::isConfirmed(const std::optional<qint64>& since, qint64 moment) const
{
    return since && moment - *since >= secondsToAgree && !m_recent.hasJumped();
}

/// Whether what is shown no longer holds: the state is not its level's, or the level has been left.
bool WarningWatch::isOutdated(const BatteryReading& reading)
{
    return m_shown && (isOfDischarge(*m_shown) != isDischarging(reading) || !(*this)[*m_shown].isWarnedOf);
}

std::optional<WarningLevel> WarningWatch::levelToWarnOf(const BatteryReading& reading,
                                                        const WarningSettings& settings)
{
    const bool isQuiet = reading.moment < m_quietUntil;
    std::optional<WarningLevel> found;
    for (const WarningLevel level : warningLevels) {
        const Level& known = (*this)[level];
        const bool isNews = !known.isWarnedOf && isConfirmed(known.reachedSince, reading.moment) &&
                            !hasWarnedMoreUrgently(level);
        if (isNews && settings[level].isOn && (!isQuiet || level == WarningLevel::NearlyEmpty))
            found = level;
    }
    return found;
}

bool WarningWatch::hasWarnedMoreUrgently(WarningLevel level)
{
    for (const WarningLevel other : warningLevels)
        if (isOfDischarge(other) && other > level && (*this)[other].isWarnedOf)
            return true;
    return false;
}

void WarningWatch::warn(WarningLevel level, const BatteryReading& reading, const WarningSettings& settings,
                        std::vector<WarningAction>& actions)
{
    Level& known = (*this)[level];
    known.isWarnedOf = true;
    known.wasReachedByTime = isOfDischarge(level) && reading.percent > settings[level].percent;
    WarningAction action = actionOf(level, reading, settings);
    m_shown = level;
    m_takenBack.reset();
    actions.push_back(action);
    if (settings[level].command.isEmpty())
        return;
    action.kind = Kind::Run;
    actions.push_back(action);
}

/// The battery was away for a moment, and its command has run.
void WarningWatch::showAgain(const BatteryReading& reading, const WarningSettings& settings,
                             std::vector<WarningAction>& actions)
{
    // As at a plug, nothing comes back that its state has ended.
    if (m_takenBack && isOfDischarge(*m_takenBack) != isDischarging(reading))
        m_takenBack.reset();
    if (!m_takenBack || !isConfirmed((*this)[*m_takenBack].reachedSince, reading.moment))
        return;
    if (settings[*m_takenBack].isOn) {
        actions.push_back(actionOf(*m_takenBack, reading, settings));
        m_shown = m_takenBack;
    }
    m_takenBack.reset();
}

WarningAction WarningWatch::actionOf(WarningLevel level, const BatteryReading& reading,
                                     const WarningSettings& settings)
{
    return {.kind = m_shown ? Kind::Replace : Kind::Show,
            .level = level,
            .percent = reading.percent,
            .state = reading.state,
            .minutes = minutesToShow(level, settings[level], m_recent.steadyMinutes())};
}

} // namespace quindle
