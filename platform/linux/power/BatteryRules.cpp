#include "platform/linux/power/BatteryRules.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

using OptionalNumber = std::optional<double>;

/// Drivers say "not known" with negative numbers where only positive ones make sense.
OptionalNumber notNegative(OptionalNumber number)
{
    return number && *number >= 0 ? number : std::nullopt;
}

OptionalNumber positive(OptionalNumber number)
{
    return number && *number > 0 ? number : std::nullopt;
}

OptionalNumber quantity(const SupplyAttributes& battery, Attribute attribute)
{
    return notNegative(battery.number(attribute));
}

/// The rated voltage as the driver counts it, in V.
double writtenRatedVoltage(const SupplyAttributes& battery)
{
    constexpr double usualVoltage = 11.4;
    OptionalNumber microvolts = positive(battery.number(Attribute::VoltageMinDesign));
    if (!microvolts)
        microvolts = positive(battery.number(Attribute::VoltageNow));
    return microvolts ? *microvolts / 1e6 : usualVoltage;
}

/// Which attributes tell a battery's charge. Some drivers have one attribute of one kind and one of the
/// other, from different counters: a full charge of one must not be compared with a charge of the other.
struct ChargeAttributes
{
    Attribute now;
    Attribute full;
    Attribute design;
    bool areEnergies;
};

constexpr ChargeAttributes chargeAttributes = {Attribute::ChargeNow, Attribute::ChargeFull,
                                               Attribute::ChargeFullDesign, false};
constexpr ChargeAttributes energyAttributes = {Attribute::EnergyNow, Attribute::EnergyFull,
                                               Attribute::EnergyFullDesign, true};

/// The attributes that tell the full charge; charges where neither does.
const ChargeAttributes& attributesOfFullCharge(const SupplyAttributes& battery)
{
    if (positive(battery.number(Attribute::ChargeFull)))
        return chargeAttributes;
    if (positive(battery.number(Attribute::EnergyFull)))
        return energyAttributes;
    return chargeAttributes;
}

const ChargeAttributes& otherAttributes(const ChargeAttributes& attributes)
{
    return attributes.areEnergies ? chargeAttributes : energyAttributes;
}

/// The factor that makes the driver's units the usual ones. A full charge below 100 mAh is a driver that
/// counts in thousandths: mAh for µAh, mA for µA and usually mV for µV.
double unitFactor(const SupplyAttributes& battery)
{
    constexpr double smallestFullCharge = 100;
    const ChargeAttributes& attributes = attributesOfFullCharge(battery);
    const OptionalNumber written = positive(battery.number(attributes.full));
    if (!written)
        return 1;
    const double milliampHours =
        *written / (attributes.areEnergies ? writtenRatedVoltage(battery) : 1.0) / 1000;
    return milliampHours < smallestFullCharge ? 1000 : 1;
}

/// A driver that counts in mV writes a few thousand, one that counts in µV a few million. Only the former's
/// unit is looked into, because that reads further attributes.
double volts(const SupplyAttributes& battery, double written)
{
    return written < 1 ? written * unitFactor(battery) : written;
}

/// A charge in mAh from one attribute: µAh, or µWh at the rated voltage.
OptionalNumber milliampHours(const SupplyAttributes& battery, Attribute attribute, bool isEnergy)
{
    const OptionalNumber written = quantity(battery, attribute);
    if (!written)
        return std::nullopt;
    return *written * unitFactor(battery) / (isEnergy ? ratedVoltage(battery) : 1.0) / 1000;
}

OptionalNumber writtenFullCharge(const SupplyAttributes& battery)
{
    const ChargeAttributes& attributes = attributesOfFullCharge(battery);
    return milliampHours(battery, attributes.full, attributes.areEnergies);
}

/// The percentage; above 100 counts as 100.
OptionalNumber percentage(const SupplyAttributes& battery)
{
    const OptionalNumber percent = quantity(battery, Attribute::Capacity);
    return percent ? OptionalNumber(std::min(*percent, 100.0)) : std::nullopt;
}

/// The charge as the driver tells it. A percentage of the full charge is nearer to the truth than a charge
/// from the other kind of attributes.
OptionalNumber writtenCharge(const SupplyAttributes& battery, double full)
{
    const ChargeAttributes& attributes = attributesOfFullCharge(battery);
    if (const OptionalNumber now = milliampHours(battery, attributes.now, attributes.areEnergies))
        return now;
    if (const OptionalNumber percent = percentage(battery))
        return *percent * full / 100;
    const ChargeAttributes& others = otherAttributes(attributes);
    return milliampHours(battery, others.now, others.areEnergies);
}

/// A worn battery, or one just charged, may count above its own full charge.
double notAboveFull(double charge, double full)
{
    return std::min(charge, full);
}

/// A counter that has lost its place differs widely from the percentage, which the gauge corrects by voltage.
double believingPercentage(double charge, double full, OptionalNumber percent)
{
    constexpr double widestDifference = 20;
    if (percent && std::abs(charge - *percent * full / 100) > widestDifference * full / 100)
        return *percent * full / 100;
    return charge;
}

/// The current's amount as the driver tells it, or from power and voltage.
OptionalNumber currentAmount(const SupplyAttributes& battery, Attribute attribute, Attribute substitute)
{
    OptionalNumber microamps = battery.number(attribute);
    if (!microamps)
        microamps = battery.number(substitute);
    if (microamps)
        return std::abs(*microamps) * unitFactor(battery) / 1000;
    const OptionalNumber microwatts = battery.number(Attribute::PowerNow);
    if (!microwatts)
        return std::nullopt;
    const OptionalNumber millivolts = positive(presentVoltage(battery));
    if (!millivolts)
        return std::nullopt;
    return std::abs(*microwatts) * unitFactor(battery) / *millivolts;
}

/// Drivers differ in the sign they give a current; the status tells its direction.
OptionalNumber directed(const SupplyAttributes& battery, OptionalNumber amount)
{
    if (!amount)
        return std::nullopt;
    return chargingState(battery) == ChargingState::Discharging ? -*amount : *amount;
}

bool isWithin(OptionalNumber number, double lowest, double highest)
{
    return number && *number >= lowest && *number <= highest;
}

} // namespace

std::optional<ChargingState> chargingState(const SupplyAttributes& battery)
{
    const std::optional<std::string_view> text = battery.text(Attribute::Status);
    if (!text)
        return std::nullopt;
    const std::string_view word = trimmed(*text);
    if (word == "Charging")
        return ChargingState::Charging;
    if (word == "Discharging")
        return ChargingState::Discharging;
    if (word == "Not charging")
        return ChargingState::NotCharging;
    if (word == "Full")
        return ChargingState::Full;
    return ChargingState::Unknown;
}

double ratedVoltage(const SupplyAttributes& battery)
{
    return volts(battery, writtenRatedVoltage(battery));
}

bool tellsPercentageOnly(const SupplyAttributes& battery)
{
    return !positive(writtenFullCharge(battery)) && percentage(battery).has_value();
}

std::optional<double> fullCharge(const SupplyAttributes& battery)
{
    const OptionalNumber full = writtenFullCharge(battery);
    if (!positive(full) && percentage(battery))
        return 100;
    return full;
}

std::optional<double> charge(const SupplyAttributes& battery)
{
    const OptionalNumber full = positive(writtenFullCharge(battery));
    if (!full) {
        const OptionalNumber percent = percentage(battery);
        return percent ? percent : writtenCharge(battery, 0);
    }
    const OptionalNumber written = writtenCharge(battery, *full);
    if (!written)
        return std::nullopt;
    return believingPercentage(notAboveFull(*written, *full), *full, percentage(battery));
}

std::optional<double> designCharge(const SupplyAttributes& battery)
{
    if (tellsPercentageOnly(battery))
        return std::nullopt; // it would stand beside a full charge of 100
    const ChargeAttributes& attributes = attributesOfFullCharge(battery);
    if (const OptionalNumber design = milliampHours(battery, attributes.design, attributes.areEnergies))
        return design;
    const ChargeAttributes& others = otherAttributes(attributes);
    return milliampHours(battery, others.design, others.areEnergies);
}

std::optional<double> presentVoltage(const SupplyAttributes& battery)
{
    const OptionalNumber microvolts = quantity(battery, Attribute::VoltageNow);
    return microvolts ? OptionalNumber(volts(battery, *microvolts * 1e-6) * 1000) : std::nullopt;
}

std::optional<double> averageCurrent(const SupplyAttributes& battery)
{
    return directed(battery, currentAmount(battery, Attribute::CurrentAvg, Attribute::CurrentNow));
}

std::optional<double> instantCurrent(const SupplyAttributes& battery)
{
    return directed(battery, currentAmount(battery, Attribute::CurrentNow, Attribute::CurrentAvg));
}

std::optional<double> chargeRate(const SupplyAttributes& battery)
{
    const OptionalNumber current = averageCurrent(battery);
    if (!attributesOfFullCharge(battery).areEnergies)
        return current;
    if (const OptionalNumber microwatts = battery.number(Attribute::PowerNow))
        return directed(battery, std::abs(*microwatts) * unitFactor(battery) / 1000 / ratedVoltage(battery));
    const OptionalNumber millivolts = presentVoltage(battery);
    return current && millivolts ? OptionalNumber(*current * *millivolts / 1000 / ratedVoltage(battery))
                                 : current;
}

std::optional<double> temperature(const SupplyAttributes& battery)
{
    // Below -60 or above 150 °C it is a sensor that is not there or a driver with another unit.
    const OptionalNumber tenthsOfCelsius = battery.number(Attribute::Temp);
    if (!isWithin(tenthsOfCelsius, -600, 1500))
        return std::nullopt;
    return *tenthsOfCelsius + 2731.5;
}

std::optional<double> cycleCount(const SupplyAttributes& battery)
{
    return quantity(battery, Attribute::CycleCount);
}

std::optional<qint64> packedManufactureDate(const SupplyAttributes& battery)
{
    const OptionalNumber year = battery.number(Attribute::ManufactureYear);
    const OptionalNumber month = battery.number(Attribute::ManufactureMonth);
    const OptionalNumber day = battery.number(Attribute::ManufactureDay);
    if (!isWithin(year, 1980, 9999) || !isWithin(month, 1, 12) || !isWithin(day, 1, 31))
        return std::nullopt;
    return static_cast<qint64>((*year - 1980) * 512 + *month * 32 + *day);
}

std::optional<bool> isFull(const SupplyAttributes& battery)
{
    const std::optional<ChargingState> state = chargingState(battery);
    if (!state)
        return std::nullopt;
    if (*state != ChargingState::NotCharging)
        return *state == ChargingState::Full;
    const OptionalNumber now = charge(battery);
    const OptionalNumber full = positive(fullCharge(battery));
    return now && full && *now >= *full;
}

std::optional<QString> readableAttribute(const SupplyAttributes& supply, Attribute attribute)
{
    const std::optional<std::string_view> text = supply.text(attribute);
    return text ? readableText(*text) : std::nullopt;
}

std::optional<int> plausibleMinutes(const SupplyAttributes& battery, Attribute attribute)
{
    constexpr double tenDays = 10.0 * 24 * 60 * 60;
    const OptionalNumber seconds = battery.number(attribute);
    if (!seconds || *seconds <= 0 || *seconds >= tenDays)
        return std::nullopt;
    return static_cast<int>(*seconds / 60);
}

} // namespace quindle
