#include "platform/linux/power/RegistryValues.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QLatin1String>

namespace quindle {

namespace {

using Value = QVariant (*)(const SystemPower&, BatteryTimes&);

QVariant wholeNumber(std::optional<double> number)
{
    if (!number)
        return {};
    constexpr double limit = 9e18; // absurd figures stay within 64 bits
    return QVariant::fromValue<qint64>(std::llround(std::clamp(*number, -limit, limit)));
}

QVariant truth(std::optional<bool> value)
{
    return value ? QVariant(*value) : QVariant();
}

template <std::optional<double> (*rule)(Batteries)>
QVariant combined(const SystemPower& power, BatteryTimes& /*times*/)
{
    return wholeNumber(rule(power.batteries));
}

template <std::optional<bool> (*rule)(Batteries)>
QVariant flag(const SystemPower& power, BatteryTimes& /*times*/)
{
    return truth(rule(power.batteries));
}

/// Texts and date are the first battery's, so that they name one battery.
template <Attribute attribute>
QVariant firstText(const SystemPower& power, BatteryTimes& /*times*/)
{
    const std::optional<QString> text = readableAttribute(*power.batteries.front(), attribute);
    return text ? QVariant(*text) : QVariant();
}

QVariant firstDate(const SystemPower& power, BatteryTimes& /*times*/)
{
    const std::optional<qint64> packed = packedManufactureDate(*power.batteries.front());
    return packed ? QVariant::fromValue(*packed) : QVariant();
}

QVariant kelvins(const SystemPower& power, BatteryTimes& /*times*/)
{
    const std::optional<double> tenths = combinedTemperature(power.batteries);
    return tenths ? QVariant(*tenths) : QVariant();
}

QVariant external(const SystemPower& power, BatteryTimes& times)
{
    times.notePower(power);
    return isExternallyPowered(power);
}

template <BatteryTime time>
QVariant minutes(const SystemPower& power, BatteryTimes& times)
{
    constexpr qint64 notKnown = 65535;
    const std::optional<int> known = times.minutes(time, power);
    return QVariant::fromValue<qint64>(known ? *known : notKnown);
}

struct Row
{
    QLatin1String key;
    Value value = nullptr;
};

const std::array rows = {
    Row{QLatin1String("Amperage"), combined<combinedAverageCurrent>},
    Row{QLatin1String("AvgTimeToEmpty"), minutes<BatteryTime::AverageToEmpty>},
    Row{QLatin1String("AvgTimeToFull"), minutes<BatteryTime::AverageToFull>},
    Row{QLatin1String("BatterySerialNumber"), firstText<Attribute::SerialNumber>},
    Row{QLatin1String("CurrentCapacity"), combined<combinedCharge>},
    Row{QLatin1String("CycleCount"), combined<combinedCycleCount>},
    Row{QLatin1String("DesignCapacity"), combined<combinedDesignCharge>},
    Row{QLatin1String("DeviceName"), firstText<Attribute::ModelName>},
    Row{QLatin1String("ExternalConnected"), external},
    Row{QLatin1String("FullyCharged"), flag<allAreFull>},
    Row{QLatin1String("InstantAmperage"), combined<combinedInstantCurrent>},
    Row{QLatin1String("InstantTimeToEmpty"), minutes<BatteryTime::InstantToEmpty>},
    Row{QLatin1String("IsCharging"), flag<anyCharges>},
    Row{QLatin1String("ManufactureDate"), firstDate},
    Row{QLatin1String("Manufacturer"), firstText<Attribute::Manufacturer>},
    Row{QLatin1String("MaxCapacity"), combined<combinedFullCharge>},
    Row{QLatin1String("Temperature"), kelvins},
    Row{QLatin1String("TimeRemaining"), minutes<BatteryTime::Remaining>},
    Row{QLatin1String("Voltage"), combined<combinedVoltage>},
};

} // namespace

QVariant registryValue(const QString& key, const SystemPower& power, BatteryTimes& times)
{
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& each) { return key == each.key; });
    if (row == rows.end() || power.batteries.empty())
        return {};
    return row->value(power, times);
}

QVariantMap registryValues(const SystemPower& power, BatteryTimes& times)
{
    QVariantMap values;
    if (power.batteries.empty())
        return values;
    for (const Row& row : rows) {
        const QVariant value = row.value(power, times);
        if (value.isValid())
            values.insert(row.key, value);
    }
    return values;
}

} // namespace quindle
