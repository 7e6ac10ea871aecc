#include "settings/WarningSettings.h"

#include "common/NumberConversion.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

struct LevelKeys
{
    const Setting<bool>& isOn;
    const Setting<qint64>& percent;
    const Setting<QStringView>& command;
    PercentRange range;
};

// In the order of the levels. Nobody wants to hear that half a charge is low, or none full.
constexpr std::array<LevelKeys, warningLevels.size()> levelKeys{{
    {Keys::warnLow, Keys::warnLowPercent, Keys::warnLowCommand, {1, 99}},
    {Keys::warnVeryLow, Keys::warnVeryLowPercent, Keys::warnVeryLowCommand, {1, 99}},
    {Keys::warnNearlyEmpty, Keys::warnNearlyEmptyPercent, Keys::warnNearlyEmptyCommand, {1, 99}},
    {Keys::warnFull, Keys::warnFullPercent, Keys::warnFullCommand, {50, 100}},
    {Keys::warnLimit, Keys::warnLimitPercent, Keys::warnLimitCommand, {0, 99}},
}};

const LevelKeys& keysOf(WarningLevel level)
{
    return levelKeys[indexOf(level)];
}

const QString onText = QStringLiteral("on");
const QString offText = QStringLiteral("off");

int percentIn(const UserDefaults& own, const LevelKeys& level)
{
    const qint64 usual = *level.percent.missing;
    const qint64 stored = convertToInteger(own.object(level.percent.name())).value_or(usual);
    return static_cast<int>(stored < level.range.least || stored > level.range.most ? usual : stored);
}

} // namespace

PercentRange percentRange(WarningLevel level)
{
    return keysOf(level).range;
}

WarningSettings warningSettings(const UserDefaults& own)
{
    WarningSettings settings;
    for (const WarningLevel level : warningLevels) {
        const LevelKeys& names = keysOf(level);
        settings[level] = {
            .isOn = convertToBoolean(own.object(names.isOn.name())).value_or(*names.isOn.missing),
            .percent = percentIn(own, names),
            .command = convertToText(own.object(names.command.name())).value_or(QString()),
        };
    }
    return settings;
}

WarningsChoice warningsChoice(const UserDefaults& own)
{
    const auto choice = convertToText(own.object(Keys::warnings.name()));
    if (choice == onText)
        return WarningsChoice::On;
    return choice == offText ? WarningsChoice::Off : WarningsChoice::Automatic;
}

void setWarningsChoice(UserDefaults& own, WarningsChoice choice)
{
    const QString text = choice == WarningsChoice::On    ? onText
                         : choice == WarningsChoice::Off ? offText
                                                         : QStringLiteral("automatic");
    own.setObject(Keys::warnings.name(), text);
}

void setWarningOn(UserDefaults& own, WarningLevel level, bool isOn)
{
    own.setObject(keysOf(level).isOn.name(), isOn);
}

void setWarningPercent(UserDefaults& own, WarningLevel level, int percent)
{
    own.setInteger(keysOf(level).percent.name(), percent);
}

void setWarningCommand(UserDefaults& own, WarningLevel level, const QString& command)
{
    own.setObject(keysOf(level).command.name(), command);
}

} // namespace quindle
