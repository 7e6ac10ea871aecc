#include <cmath>
#include <string>

#include "platform/linux/power/BatteryRules.h"
#include "platform/linux/power/PowerSourceDescription.h"
#include "platform/linux/power/RegistryValues.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

namespace {

/// Lines "attribute=value", as in a uevent but for capitals and prefix; an empty line ends a supply. Other
/// bytes are taken as a driver might write them.
SupplyReadings suppliesFromBytes(const QByteArray& bytes)
{
    SupplyReadings readings;
    std::string uevent;
    for (const QByteArray& line : (bytes + "\n\n").split('\n')) {
        if (!line.isEmpty()) {
            const qsizetype sign = std::max<qsizetype>(line.indexOf('='), 0);
            uevent += "POWER_SUPPLY_" + line.first(sign).toUpper().toStdString() +
                      line.sliced(sign).toStdString() + '\n';
        } else if (!uevent.empty()) {
            const SupplyAttributes attributes =
                attributesFromUevent("POWER_SUPPLY_NAME=\n" + std::exchange(uevent, {})).value();
            readings.push_back({"supply",
                                supplyKind(attributes.text(Attribute::Type).value_or(""),
                                           attributes.text(Attribute::Scope).value_or("")),
                                attributes,
                                {}});
        }
    }
    return readings;
}

bool isMissingOrWithin(std::optional<double> number, double lowest, double highest)
{
    return !number || (*number >= lowest && *number <= highest);
}

void checkBattery(const Battery& battery)
{
    constexpr double most = 1e30; // no figure is infinite or not a number
    const std::optional<double> full = battery.fullCharge;
    expect(isMissingOrWithin(full, 0, most));
    expect(isMissingOrWithin(battery.charge, 0, full ? *full * (1 + 1e-9) : most));
    expect(isMissingOrWithin(battery.designCharge, 0, most));
    expect(battery.ratedVoltage > 0 && std::isfinite(battery.ratedVoltage));
    expect(isMissingOrWithin(battery.averageCurrent, -most, most));
    expect(isMissingOrWithin(battery.chargeRate, -most, most));
    expect(isMissingOrWithin(battery.temperature, 2131.5, 4231.5));
    expect(!battery.chargeLimit || (*battery.chargeLimit >= 1 && *battery.chargeLimit <= 99));
}

void checkDescription(const QVariantMap& description)
{
    const QVariant percent = description.value(QStringLiteral("Current Capacity"));
    expect(!percent.isValid() || (percent.toLongLong() >= 0 && percent.toLongLong() <= 100));
    expect(!description.value(QStringLiteral("Name")).toString().isEmpty());
}

/// What the models divide by is never 0: percentages are numbers.
void checkEntry(const QVariantMap& entry)
{
    expect(entry.isEmpty() || entry.value(QStringLiteral("MaxCapacity")).toLongLong() > 0);
    const QVariant design = entry.value(QStringLiteral("DesignCapacity"));
    expect(!design.isValid() || design.toLongLong() > 0);
    if (entry.isEmpty())
        return;
    for (const char* key : {"AvgTimeToEmpty", "AvgTimeToFull", "InstantTimeToEmpty", "TimeRemaining"}) {
        const qint64 minutes = entry.value(QString::fromLatin1(key)).toLongLong();
        expect(minutes >= 0 && (minutes < 10 * 24 * 60 || minutes == 65535));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const SystemPower power = systemPowerFrom(suppliesFromBytes(fuzzBytes(data, size)));
    for (const Battery& battery : power.batteries)
        checkBattery(battery);
    for (const Battery& supply : power.uninterruptibles)
        checkBattery(supply);
    for (const ExternalSupply& supply : power.externals)
        expect(!supply.watts || (*supply.watts >= 1 && *supply.watts <= 10000));
    BatteryTimes times;
    for (std::chrono::milliseconds now{}; now < std::chrono::seconds(160); now += std::chrono::seconds(40)) {
        const SystemTimes known = times.follow(power, now);
        checkEntry(registryEntry(power, known));
        for (const QVariantMap& description : sourceDescriptions(power, known))
            checkDescription(description);
    }
    return 0;
}
