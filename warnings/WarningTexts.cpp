#include "warnings/WarningTexts.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "warnings/WarningRules.h"
#include "warnings/WarningWatch.h"

namespace quindle {

namespace {

using Urgency = Notification::Urgency;

struct LevelWords
{
    const char* title;
    const char* text; ///< after the charge
    const char* icon; ///< a name that every icon theme is expected to have
    const char* argument;
    Urgency urgency;
};

// In the order of the levels.
constexpr std::array<LevelWords, warningLevels.size()> words{{
    {"Battery low", " left", "battery-low", "low", Urgency::Normal},
    {"Battery very low", " left", "battery-caution", "very-low", Urgency::Normal},
    {"Battery nearly empty", " left", "battery-caution", "nearly-empty", Urgency::Critical},
    {"Battery full", "", "battery", "full", Urgency::Low},
    {"Charge limit reached", "", "battery", "limit", Urgency::Low},
}};

const char* argumentOf(SampleState state)
{
    switch (state) {
    case SampleState::Discharging:
        return "discharging";
    case SampleState::Charging:
        return "charging";
    case SampleState::Full:
        return "full";
    case SampleState::Unknown:
        break;
    }
    return "plugged";
}

int wholePercent(double percent)
{
    return static_cast<int>(std::lround(std::clamp(percent, 0.0, 100.0)));
}

QString percentText(double percent)
{
    return QString::number(wholePercent(percent)) + u'%';
}

/// "About", so above ten minutes in steps of five.
QString minutesText(int minutes)
{
    // An estimate is no more exact than that.
    const int shown = minutes > 10 ? (minutes + 2) / 5 * 5 : minutes;
    return shown == 1 ? QStringLiteral("About a minute left")
                      : QStringLiteral("About %1 minutes left").arg(shown);
}

} // namespace

Notification notificationOf(const WarningAction& action)
{
    const LevelWords& level = words[indexOf(action.level)];
    const QString percent = percentText(action.percent);
    return {.title = QString::fromLatin1(level.title),
            .text = action.minutes ? minutesText(*action.minutes) : percent + QLatin1String(level.text),
            .iconName = QString::fromLatin1(level.icon),
            .urgency = isCritical(action.level, action.percent) ? Urgency::Critical : level.urgency};
}

QStringList commandArguments(const WarningAction& action)
{
    return {QString::fromLatin1(words[indexOf(action.level)].argument),
            QString::number(wholePercent(action.percent)), QString::fromLatin1(argumentOf(action.state))};
}

} // namespace quindle
