#include "preferences/panes/PlaceholderTable.h"

#include "facts/ValueTexts.h"
#include "menubar/TitleTemplate.h"

namespace quindle {

namespace {

bool isAlwaysKnown(const TitleValues&)
{
    return true;
}

bool knowsTemperature(const TitleValues& values)
{
    return values.knowsTemperature;
}

bool knowsTime(const TitleValues& values)
{
    return !knownText(values.timeRemaining).isEmpty();
}

bool knowsCharge(const TitleValues& values)
{
    return !figureText(values.stateOfCharge).isEmpty();
}

bool knowsPower(const TitleValues& values)
{
    return values.knowsPower && !figureText(values.wattThroughput).isEmpty();
}

bool knowsCurrent(const TitleValues& values)
{
    return values.knowsCurrent;
}

bool knowsCycles(const TitleValues& values)
{
    return !countText(values.cycleCount, FactPlace::View).isEmpty();
}

} // namespace

const std::vector<Placeholder>& placeholderTable()
{
    static const std::vector<Placeholder> table{
        {QStringLiteral("%t"), QStringLiteral("Temperature"), knowsTemperature},
        {QStringLiteral("%s"), QStringLiteral("Charging or discharging"), isAlwaysKnown},
        {QStringLiteral("%r"), QStringLiteral("Remaining time"), knowsTime},
        {QStringLiteral("%p"), QStringLiteral("Charge in percent"), knowsCharge},
        {QStringLiteral("%w"), QStringLiteral("Power in watts"), knowsPower},
        {QStringLiteral("%mA"), QStringLiteral("Current in milliamperes"), knowsCurrent},
        {QStringLiteral("%l"), QStringLiteral("Charge cycles"), knowsCycles},
    };
    return table;
}

QString presentValue(const Placeholder& placeholder, const TitleValues& values)
{
    return placeholder.isKnown(values) ? titleFromTemplate(placeholder.text, values) : missingValueText();
}

} // namespace quindle
