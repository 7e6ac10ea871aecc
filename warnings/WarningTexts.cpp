#include "warnings/WarningTexts.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "common/Translation.h"
#include "warnings/WarningRules.h"
#include "warnings/WarningWatch.h"

namespace quindle {

namespace {

using Urgency = Notification::Urgency;

struct LevelWords
{
    const char* title;
    bool saysWhatIsLeft;
    const char* icon; ///< a name that every icon theme is expected to have
    const char* argument;
    Urgency urgency;
};

// In the order of the levels.
constexpr std::array<LevelWords, warningLevels.size()> words{{
    {QT_TRANSLATE_NOOP("Warnings", "Battery low"), true, "battery-low", "low", Urgency::Normal},
    {QT_TRANSLATE_NOOP("Warnings", "Battery very low"), true, "battery-caution", "very-low", Urgency::Normal},
    {QT_TRANSLATE_NOOP("Warnings", "Battery nearly empty"), true, "battery-caution", "nearly-empty",
     Urgency::Critical},
    {QT_TRANSLATE_NOOP("Warnings", "Battery full"), false, "battery", "full", Urgency::Low},
    {QT_TRANSLATE_NOOP("Warnings", "Charge limit reached"), false, "battery", "limit", Urgency::Low},
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
    // An estimate is not more exact than that.
    const int shown = minutes > 10 ? (minutes + 2) / 5 * 5 : minutes;
    return shown == 1 ? translated("Warnings", "About a minute left")
                      : translated("Warnings", "About %1 minutes left", nullptr, shown).arg(shown);
}

QString chargeText(const LevelWords& level, double percent)
{
    const QString text = percentText(percent);
    return level.saysWhatIsLeft ? translated("Warnings", "%1 left", "a percentage").arg(text) : text;
}

} // namespace

Notification notificationOf(const WarningAction& action)
{
    const LevelWords& level = words[indexOf(action.level)];
    return {.title = translated("Warnings", level.title),
            .text = action.minutes ? minutesText(*action.minutes) : chargeText(level, action.percent),
            .iconName = QString::fromLatin1(level.icon),
            .urgency = isCritical(action.level, action.percent) ? Urgency::Critical : level.urgency};
}

QStringList commandArguments(const WarningAction& action)
{
    return {QString::fromLatin1(words[indexOf(action.level)].argument),
            QString::number(wholePercent(action.percent)), QString::fromLatin1(argumentOf(action.state))};
}

} // namespace quindle
