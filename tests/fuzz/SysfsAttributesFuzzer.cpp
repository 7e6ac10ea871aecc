#include <cmath>
#include <vector>

#include "platform/linux/power/PowerSourceDescription.h"
#include "platform/linux/power/RegistryValues.h"
#include "platform/linux/power/SupplyDirectory.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/platform/linux/power/MapAttributes.h"

using namespace quindle;

namespace {

/// Lines "attribute=value"; an empty line ends a supply. Other bytes stand as a driver might write them.
std::vector<MapAttributes> suppliesFromBytes(const QByteArray& bytes)
{
    std::vector<MapAttributes> supplies;
    MapAttributes::Texts texts;
    for (const QByteArray& line : (bytes + "\n\n").split('\n')) {
        if (line.isEmpty() && !texts.empty())
            supplies.emplace_back(std::exchange(texts, {}));
        const qsizetype sign = line.indexOf('=');
        if (sign > 0)
            texts[line.first(sign).toStdString()] = line.sliced(sign + 1).toStdString() + '\n';
    }
    return supplies;
}

SupplyKind kindOf(const SupplyAttributes& supply)
{
    return supplyKind(supply.text(Attribute::Type).value_or(""), supply.text(Attribute::Scope).value_or(""));
}

bool isMissingOrWithin(std::optional<double> number, double lowest, double highest)
{
    return !number || (*number >= lowest && *number <= highest);
}

void checkBattery(const SupplyAttributes& battery)
{
    constexpr double most = 1e30; // no figure is infinite or not a number
    const std::optional<double> full = fullCharge(battery);
    expect(isMissingOrWithin(full, 0, most));
    expect(isMissingOrWithin(charge(battery), 0, full && *full > 0 ? *full * (1 + 1e-9) : most));
    expect(isMissingOrWithin(designCharge(battery), 0, most));
    expect(ratedVoltage(battery) > 0 && std::isfinite(ratedVoltage(battery)));
    expect(isMissingOrWithin(averageCurrent(battery), -most, most));
    expect(isMissingOrWithin(chargeRate(battery), -most, most));
    expect(isMissingOrWithin(temperature(battery), 2131.5, 4231.5));

    const QVariantMap description = batteryDescription(battery, false, {});
    const QVariant percent = description.value(QStringLiteral("Current Capacity"));
    expect(!percent.isValid() || (percent.toLongLong() >= 0 && percent.toLongLong() <= 100));
    expect(!description.value(QStringLiteral("Name")).toString().isEmpty());
}

void checkRegistry(const SystemPower& power)
{
    std::chrono::milliseconds now{};
    BatteryTimes times([&now] { return now; });
    for (int sample = 0; sample < 4; ++sample, now += std::chrono::seconds(40)) {
        const QVariantMap values = registryValues(power, times);
        expect(values.isEmpty() == power.batteries.empty());
        for (const char* key : {"AvgTimeToEmpty", "AvgTimeToFull", "InstantTimeToEmpty", "TimeRemaining"}) {
            const qint64 minutes = values.value(QString::fromLatin1(key)).toLongLong();
            expect(minutes >= 0 && (minutes < 10 * 24 * 60 || minutes == 65535));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<MapAttributes> supplies = suppliesFromBytes(fuzzBytes(data, size));
    std::vector<const SupplyAttributes*> batteries;
    std::vector<const SupplyAttributes*> externals;
    for (const MapAttributes& supply : supplies) {
        const SupplyKind kind = kindOf(supply);
        if (kind == SupplyKind::Battery) {
            batteries.push_back(&supply);
            checkBattery(supply);
        } else if (kind == SupplyKind::External) {
            externals.push_back(&supply);
            const std::optional<qint64> watts = adapterWatts(supply);
            expect(!watts || (*watts >= 1 && *watts <= 10000));
        } else if (kind == SupplyKind::UninterruptibleSupply) {
            expect(!uninterruptibleDescription(supply).isEmpty());
        }
    }
    checkRegistry({batteries, externals});
    return 0;
}
