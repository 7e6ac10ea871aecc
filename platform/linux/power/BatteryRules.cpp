#include "platform/linux/power/BatteryRules.h"

#include <algorithm>
#include <cmath>

#include "platform/linux/power/ChargeRules.h"
#include "platform/linux/power/DriverFigures.h"

namespace quindle {

namespace {

std::optional<ChargingState> chargingState(const SupplyAttributes& attributes)
{
    const std::optional<std::string_view> text = attributes.text(Attribute::Status);
    if (!text)
        return std::nullopt;
    const std::string_view word = trimmed(*text);
    if (word == "Charging")
        return ChargingState::Charging;
    if (word == "Discharging")
        return ChargingState::Discharging;
    if (word == "Not charging")
        return ChargingState::NotCharging;
    // "Unknown" is an answer, not a missing one: some controllers report it for a battery that rests on the
    // adapter (thinkpad-t430s).
    return word == "Full" ? ChargingState::Full : ChargingState::Unknown;
}

bool isWithin(std::optional<double> number, double lowest, double highest)
{
    return number && *number >= lowest && *number <= highest;
}

/// Tenths of a kelvin. Below -60 or above 150 °C the sensor is missing or the unit is another one. No
/// recorded computer has such a value; SBS gauges write -2731 (absolute zero) where they measure nothing.
std::optional<double> temperature(std::optional<double> tenthsOfCelsius)
{
    if (!isWithin(tenthsOfCelsius, -600, 1500))
        return std::nullopt;
    return *tenthsOfCelsius + 2731.5;
}

/// Missing unless year, month and day are there and could be a date.
std::optional<qint64> packedDate(const SupplyAttributes& attributes)
{
    const std::optional<double> year = attributes.number(Attribute::ManufactureYear);
    const std::optional<double> month = attributes.number(Attribute::ManufactureMonth);
    const std::optional<double> day = attributes.number(Attribute::ManufactureDay);
    // The packed form counts years from 1980, so it has no place for earlier ones.
    if (!isWithin(year, 1980, 9999) || !isWithin(month, 1, 12) || !isWithin(day, 1, 31))
        return std::nullopt;
    return static_cast<qint64>((*year - 1980) * 512 + *month * 32 + *day);
}

/// Whole minutes of an attribute in seconds. Drivers say "not known" with 0, less, or a time of 10 days and
/// more: SBS gauges write 3932100 s, which is their 65535 minutes (chromebook-lazor-limozeen).
std::optional<int> plausibleMinutes(const SupplyAttributes& attributes, Attribute attribute)
{
    constexpr double tenDays = 10.0 * 24 * 60 * 60;
    const std::optional<double> seconds = attributes.number(attribute);
    if (!seconds || *seconds <= 0 || *seconds >= tenDays)
        return std::nullopt;
    return static_cast<int>(*seconds / 60);
}

std::optional<bool> isFull(const Battery& battery)
{
    if (!battery.state)
        return std::nullopt;
    // A battery that is held below its limit says "Not charging" too (thinkpad-two-batteries-both-held, at 80
    // and 7 %), so that word alone does not mean full.
    if (*battery.state != ChargingState::NotCharging)
        return *battery.state == ChargingState::Full;
    return battery.charge && battery.fullCharge && *battery.charge >= *battery.fullCharge;
}

std::optional<QString> healthWord(const Battery& battery, std::optional<QString> reported)
{
    constexpr double leastOfGood = 0.8; // as the word for a Mac's battery changes at 80 %
    // thinkpad-two-batteries-both-held is "Fair" and thinkpad-worn-to-a-third "Poor".
    constexpr double leastOfFair = 0.5;
    // SBS gauges that do not assess their health write "Unknown" (chromebook-lazor-limozeen).
    if (reported && *reported != QLatin1String("Unknown"))
        return reported;
    if (!battery.fullCharge || !battery.designCharge)
        return std::nullopt;
    const double share = *battery.fullCharge / *battery.designCharge;
    if (share >= leastOfGood)
        return QStringLiteral("Good");
    return share >= leastOfFair ? QStringLiteral("Fair") : QStringLiteral("Poor");
}

/// A driver with several ways of charging follows its threshold in the way "Custom" only; the one in force is
/// in brackets, or alone in a uevent. The other ways ("Long_Life") have no known percentage.
bool followsThreshold(const SupplyAttributes& attributes)
{
    const std::optional<std::string_view> types = attributes.text(Attribute::ChargeTypes);
    return !types || types->find("[Custom]") != std::string_view::npos || trimmed(*types) == "Custom";
}

std::optional<int> chargeLimit(const SupplyAttributes& attributes)
{
    const std::optional<double> percent = attributes.number(Attribute::ChargeControlEndThreshold);
    // Drivers write 100 for no limit.
    if (!isWithin(percent, 1, 99) || !followsThreshold(attributes))
        return std::nullopt;
    return static_cast<int>(*percent);
}

} // namespace

Battery batteryFrom(const SupplyAttributes& attributes)
{
    const DriverFigures figures = driverFigures(attributes);
    Battery battery;
    // In this order: currents take their sign from the state and their rated voltage from the charges, which
    // "full" and the health word compare too.
    battery.state = chargingState(attributes);
    setCharges(battery, figures);
    setVoltageAndCurrents(battery, figures);
    battery.temperature = temperature(figures.tenthsOfCelsius);
    battery.cycleCount = figures.cycleCount;
    battery.isFull = isFull(battery);
    battery.averageMinutesToEmpty = plausibleMinutes(attributes, Attribute::TimeToEmptyAvg);
    battery.presentMinutesToEmpty = plausibleMinutes(attributes, Attribute::TimeToEmptyNow);
    battery.averageMinutesToFull = plausibleMinutes(attributes, Attribute::TimeToFullAvg);
    battery.presentMinutesToFull = plausibleMinutes(attributes, Attribute::TimeToFullNow);
    battery.manufactureDate = packedDate(attributes);
    battery.manufacturer = readableAttribute(attributes, Attribute::Manufacturer);
    battery.deviceName = readableAttribute(attributes, Attribute::ModelName);
    battery.serialNumber = readableAttribute(attributes, Attribute::SerialNumber);
    battery.health = healthWord(battery, readableAttribute(attributes, Attribute::Health));
    battery.chargeLimit = chargeLimit(attributes);
    return battery;
}

bool isReady(const Battery& battery)
{
    return battery.fullCharge.has_value();
}

std::optional<QString> readableAttribute(const SupplyAttributes& supply, Attribute attribute)
{
    const std::optional<std::string_view> text = supply.text(attribute);
    return text ? readableText(*text) : std::nullopt;
}

} // namespace quindle
