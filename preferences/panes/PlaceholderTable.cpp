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
        {QStringLiteral("%t"), QT_TRANSLATE_NOOP("Placeholders", "Temperature"), knowsTemperature},
        {QStringLiteral("%s"), QT_TRANSLATE_NOOP("Placeholders", "Charging or discharging"), isAlwaysKnown},
        {QStringLiteral("%r"), QT_TRANSLATE_NOOP("Placeholders", "Remaining time"), knowsTime},
        {QStringLiteral("%p"), QT_TRANSLATE_NOOP("Placeholders", "Charge in percent"), knowsCharge},
        {QStringLiteral("%w"), QT_TRANSLATE_NOOP("Placeholders", "Power in watts"), knowsPower},
        {QStringLiteral("%mA"), QT_TRANSLATE_NOOP("Placeholders", "Current in milliamperes"), knowsCurrent},
        {QStringLiteral("%l"), QT_TRANSLATE_NOOP("Placeholders", "Charge cycles"), knowsCycles},
    };
    return table;
}

QString presentValue(const Placeholder& placeholder, const TitleValues& values)
{
    return placeholder.isKnown(values) ? titleFromTemplate(placeholder.text, values) : missingValueText();
}

} // namespace quindle
