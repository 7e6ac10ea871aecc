#include "preferences/PlaceholderTable.h"

namespace quindle {

const std::vector<Placeholder>& placeholderTable()
{
    static const std::vector<Placeholder> table{
        {QStringLiteral("%t"), QStringLiteral("Temperature")},
        {QStringLiteral("%s"), QStringLiteral("Charging or discharging")},
        {QStringLiteral("%r"), QStringLiteral("Remaining time")},
        {QStringLiteral("%p"), QStringLiteral("Charge in percent")},
        {QStringLiteral("%w"), QStringLiteral("Power in watts")},
        {QStringLiteral("%mA"), QStringLiteral("Current in milliamperes")},
        {QStringLiteral("%l"), QStringLiteral("Charge cycles")},
    };
    return table;
}

} // namespace quindle
