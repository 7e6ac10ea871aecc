#include "platform/linux/power/PowerSourceDescription.h"

#include <cmath>

namespace quindle {

namespace {

void insertPresent(QVariantMap& description, const QString& key, const std::optional<QString>& text)
{
    if (text)
        description.insert(key, *text);
}

void insertPresent(QVariantMap& description, const QString& key, std::optional<double> number)
{
    constexpr double limit = 9e18; // absurd figures stay within 64 bits
    if (number && std::abs(*number) < limit)
        description.insert(key, QVariant::fromValue<qint64>(std::llround(*number)));
}

std::optional<double> chargePercentage(const SupplyAttributes& source)
{
    const std::optional<double> now = charge(source);
    const std::optional<double> full = fullCharge(source);
    if (!now || !full || *full == 0)
        return std::nullopt;
    return *now / *full * 100;
}

/// What every source has.
QVariantMap sourceDescription(const SupplyAttributes& source, const QString& type, bool isExternallyPowered,
                              const SourceTimes& times)
{
    QVariantMap description;
    description.insert(QStringLiteral("Type"), type);
    description.insert(QStringLiteral("Name"),
                       readableAttribute(source, Attribute::ModelName).value_or(type));
    description.insert(QStringLiteral("Power Source State"),
                       isExternallyPowered ? QStringLiteral("AC Power") : QStringLiteral("Battery Power"));
    description.insert(QStringLiteral("Is Present"), true);
    description.insert(QStringLiteral("Is Charging"), chargingState(source) == ChargingState::Charging);
    description.insert(QStringLiteral("Max Capacity"), qint64{100});
    description.insert(QStringLiteral("Time to Empty"), qint64{times.toEmpty.value_or(-1)});
    description.insert(QStringLiteral("Time to Full Charge"), qint64{times.toFull.value_or(-1)});
    insertPresent(description, QStringLiteral("Current Capacity"), chargePercentage(source));
    insertPresent(description, QStringLiteral("Hardware Serial Number"),
                  readableAttribute(source, Attribute::SerialNumber));
    return description;
}

/// The port's present mode: the word in brackets, or the only one. Older kernels write it into the type.
bool isPowerDelivery(const SupplyAttributes& supply)
{
    std::string_view modes = trimmed(supply.text(Attribute::UsbType).value_or(std::string_view()));
    const std::size_t bracket = modes.find('[');
    if (bracket != std::string_view::npos)
        modes = modes.substr(bracket + 1, modes.find(']', bracket) - bracket - 1);
    else if (modes.find(' ') != std::string_view::npos)
        return false; // several modes that it could have, and none that it has
    if (!modes.empty())
        return modes.starts_with("PD");
    return trimmed(supply.text(Attribute::Type).value_or(std::string_view())).starts_with("USB_PD");
}

} // namespace

QVariantMap batteryDescription(const SupplyAttributes& battery, bool isExternallyPowered,
                               const SourceTimes& times)
{
    QVariantMap description =
        sourceDescription(battery, QStringLiteral("InternalBattery"), isExternallyPowered, times);
    description.insert(QStringLiteral("Transport Type"), QStringLiteral("Internal"));
    insertPresent(description, QStringLiteral("BatteryHealth"), healthWord(battery));
    insertPresent(description, QStringLiteral("Current"), averageCurrent(battery));
    insertPresent(description, QStringLiteral("Voltage"), presentVoltage(battery));
    return description;
}

QVariantMap uninterruptibleDescription(const SupplyAttributes& supply)
{
    const bool isExternallyPowered = chargingState(supply) != ChargingState::Discharging;
    const SourceTimes times = {plausibleMinutes(supply, Attribute::TimeToEmptyAvg),
                               plausibleMinutes(supply, Attribute::TimeToFullAvg)};
    return sourceDescription(supply, QStringLiteral("UPS"), isExternallyPowered, times);
}

std::optional<QString> healthWord(const SupplyAttributes& battery)
{
    std::optional<QString> told = readableAttribute(battery, Attribute::Health);
    if (told && *told != QLatin1String("Unknown"))
        return told;
    const std::optional<double> full = fullCharge(battery);
    const std::optional<double> design = designCharge(battery);
    if (!full || !design || *full <= 0 || *design <= 0)
        return std::nullopt;
    const double percent = *full / *design * 100;
    if (percent >= 80)
        return QStringLiteral("Good");
    return percent >= 50 ? QStringLiteral("Fair") : QStringLiteral("Poor");
}

std::optional<qint64> adapterWatts(const SupplyAttributes& supply)
{
    constexpr double highestWatts = 10000;
    const std::optional<double> microvolts = supply.number(Attribute::VoltageMax);
    const std::optional<double> microamps = supply.number(Attribute::CurrentMax);
    if (!(supply.number(Attribute::Online).value_or(0) > 0) || !microvolts || !microamps ||
        !isPowerDelivery(supply))
        return std::nullopt;
    const double watts = std::round(*microvolts * *microamps / 1e12);
    if (!(watts >= 1 && watts <= highestWatts))
        return std::nullopt;
    return static_cast<qint64>(watts);
}

} // namespace quindle
