#include <array>

#include <benchmark/benchmark.h>

#include "platform/linux/BatteryTimes.h"
#include "platform/linux/LinuxPowerSources.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/SupplyDirectory.h"

using namespace quindle;

namespace {

/// The property reads of one refresh of battery and status item, in their order, repeated ones included.
const std::array refreshKeys = {
    QStringLiteral("Manufacturer"),
    QStringLiteral("Manufacturer"),
    QStringLiteral("DeviceName"),
    QStringLiteral("BatterySerialNumber"),
    QStringLiteral("CycleCount"),
    QStringLiteral("DesignCapacity"),
    QStringLiteral("DesignCapacity"),
    QStringLiteral("CurrentCapacity"),
    QStringLiteral("MaxCapacity"),
    QStringLiteral("Temperature"),
    QStringLiteral("BatterySerialNumber"),
    QStringLiteral("ManufactureDate"),
    QStringLiteral("Voltage"),
    QStringLiteral("Amperage"),
    QStringLiteral("ManufactureDate"),
    QStringLiteral("FullyCharged"),
    QStringLiteral("ExternalConnected"),
    QStringLiteral("IsCharging"),
    QStringLiteral("AvgTimeToFull"),
    QStringLiteral("AvgTimeToFull"),
    QStringLiteral("ExternalConnected"),
    QStringLiteral("IsCharging"),
    QStringLiteral("AvgTimeToEmpty"),
    QStringLiteral("AvgTimeToEmpty"),
    QStringLiteral("ExternalConnected"),
    QStringLiteral("PermanentFailureStatus"),
    // the status item
    QStringLiteral("CurrentCapacity"),
    QStringLiteral("MaxCapacity"),
    QStringLiteral("IsCharging"),
    QStringLiteral("FullyCharged"),
    QStringLiteral("ExternalConnected"),
    QStringLiteral("Temperature"),
    QStringLiteral("Amperage"),
    QStringLiteral("Voltage"),
    QStringLiteral("TimeRemaining"),
    QStringLiteral("AvgTimeToEmpty"),
    QStringLiteral("AvgTimeToFull"),
    QStringLiteral("CycleCount"),
    QStringLiteral("InstantAmperage"),
    QStringLiteral("IsCharging"),
    QStringLiteral("FullyCharged"),
    QStringLiteral("ExternalConnected"),
    QStringLiteral("CurrentCapacity"),
    QStringLiteral("MaxCapacity"),
    QStringLiteral("InstantTimeToEmpty"),
};

void refresh(benchmark::State& state, const char* machine)
{
    // Refreshes are 5 s apart, so each finds the directory due to be read again, and a new sample due.
    std::chrono::milliseconds now{0};
    const auto clock = [&now] { return now; };
    SupplyDirectory supplies(std::string(QUINDLE_TEST_DATA "/sysfs/") + machine + "/class/power_supply",
                             readDescriptor, clock);
    BatteryTimes times(clock);
    LinuxRegistry registry(supplies, times, {});
    LinuxPowerSources sources(supplies, times);
    const RegistryObject battery = registry.serviceMatchingName(QStringLiteral("AppleSmartBattery"));
    for (auto _ : state) {
        now += std::chrono::seconds(5);
        for (const QString& key : refreshKeys)
            benchmark::DoNotOptimize(registry.property(battery, key));
        benchmark::DoNotOptimize(sources.externalAdapterDetails());
        for (int i = 0; i < 2; ++i) {
            const int count = sources.sourceCount().value_or(0);
            for (int source = 0; source < count; ++source)
                benchmark::DoNotOptimize(sources.description(source));
        }
    }
}

BENCHMARK_CAPTURE(refresh, idleOnMains, "thinkpad-t430s");
BENCHMARK_CAPTURE(refresh, discharging, "framework-13-discharging-93");

} // namespace

BENCHMARK_MAIN();
