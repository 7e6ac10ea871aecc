#include <gtest/gtest.h>

#include "platform/linux/power/BatteryRules.h"
#include "platform/linux/power/BatteryTimes.h"
#include "tests/platform/linux/power/SupplyTexts.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

using Texts = SupplyTexts;

/// The system's power as it would be with these supplies, whether or not their drivers are ready.
class System
{
public:
    explicit System(const std::vector<Texts>& batteries, const std::vector<Texts>& externals = {})
    {
        for (const Texts& texts : batteries)
            m_power.batteries.push_back(batteryFrom(attributesFrom(texts)));
        for (const Texts& texts : externals)
            m_power.externals.push_back(externalSupplyFrom(attributesFrom(texts)));
    }

    const SystemPower& power() const { return m_power; }
    Batteries batteries() const { return m_power.batteries; }

private:
    SystemPower m_power;
};

const Texts twelveVolts = {{"energy_now", "12000000"},         {"energy_full", "24000000"},
                           {"energy_full_design", "36000000"}, {"cycle_count", "5"},
                           {"voltage_min_design", "12000000"}, {"status", "Discharging"},
                           {"power_now", "12000000"},          {"voltage_now", "12000000"}};
const Texts sixVolts = {{"charge_now", "3000000"},         {"charge_full", "4000000"},
                        {"charge_full_design", "5000000"}, {"cycle_count", "9"},
                        {"voltage_min_design", "6000000"}, {"status", "Discharging"},
                        {"current_now", "500000"},         {"voltage_now", "6500000"}};

TEST(CombinedBattery, AddsEnergiesAtTheFirstVoltage)
{
    const System system({twelveVolts, sixVolts});
    EXPECT_DOUBLE_EQ(combinedCharge(system.batteries()).value(), 1000 + 1500);
    EXPECT_DOUBLE_EQ(combinedFullCharge(system.batteries()).value(), 2000 + 2000);
    EXPECT_DOUBLE_EQ(combinedDesignCharge(system.batteries()).value(), 3000 + 2500);
    EXPECT_DOUBLE_EQ(combinedAverageCurrent(system.batteries()).value(), -1000 - 250);
    EXPECT_DOUBLE_EQ(combinedVoltage(system.batteries()).value(), 12000);
    EXPECT_DOUBLE_EQ(combinedCycleCount(system.batteries()).value(), 9);
}

TEST(CombinedBattery, OneThatReportsTooLittleIsLeftOutOfTheSum)
{
    const System system({{{"capacity", "10"}}, sixVolts, {{"charge_full", "900000"}}});
    EXPECT_DOUBLE_EQ(combinedCharge(system.batteries()).value(), 3000 * 6 / 11.4);
    EXPECT_DOUBLE_EQ(combinedFullCharge(system.batteries()).value(), 4000 * 6 / 11.4);
}

TEST(CombinedBattery, PercentagesAloneGiveTheirMean)
{
    const System system({Texts{{"capacity", "10"}}, Texts{{"capacity", "30"}, {"voltage_now", "3700000"}}});
    EXPECT_DOUBLE_EQ(combinedCharge(system.batteries()).value(), 40);
    EXPECT_DOUBLE_EQ(combinedFullCharge(system.batteries()).value(), 200);
    EXPECT_EQ(combinedDesignCharge(system.batteries()), std::nullopt);
}

TEST(CombinedBattery, OneWithoutDesignChargeCountsAsNew)
{
    Texts unknownDesign = sixVolts;
    unknownDesign.erase("charge_full_design");
    EXPECT_DOUBLE_EQ(combinedDesignCharge(System({twelveVolts, unknownDesign}).batteries()).value(),
                     3000 + 2000);
}

struct FlagCase
{
    std::vector<Texts> batteries;
    std::vector<Texts> externals;
    bool external;
    std::optional<bool> charging;
    std::optional<bool> full;
};

Texts status(const char* text)
{
    return {{"status", text}};
}

Texts online(const char* text)
{
    return {{"online", text}};
}

TEST(CombinedBattery, Flags)
{
    const FlagCase cases[] = {
        {{status("Discharging")}, {online("1")}, false, false, false},
        {{status("Discharging")}, {}, false, false, false},
        {{status("Charging")}, {online("0")}, false, true, false},
        {{status("Charging")}, {}, true, true, false},
        {{status("Full")}, {online("0")}, false, false, true},
        {{status("Full")}, {online("0"), online("1")}, true, false, true},
        {{status("Full")}, {Texts()}, true, false, true},
        {{status("Full")}, {Texts(), online("0")}, false, false, true},
        {{status("Unknown")}, {online("1")}, true, false, false},
        {{status("Full"), status("Charging")}, {online("1")}, true, true, false},
        {{status("Full"), status("Full")}, {online("1")}, true, false, true},
        {{status("Full"), Texts()}, {online("1")}, true, false, true},
        {{status("Full"), status("Discharging")}, {online("1")}, false, false, false},
        {{Texts()}, {}, true, std::nullopt, std::nullopt},
    };
    for (const FlagCase& each : cases) {
        SCOPED_TRACE(&each - cases);
        const System system(each.batteries, each.externals);
        EXPECT_EQ(isExternallyPowered(system.power()), each.external);
        EXPECT_EQ(anyCharges(system.batteries()), each.charging);
        EXPECT_EQ(allAreFull(system.batteries()), each.full);
    }
}

Texts with(Texts texts, const Texts& more)
{
    texts.insert(more.begin(), more.end());
    return texts;
}

TEST(BatteryTimes, DriversTimesAreTakenAtOnceInTheirOwnDirection)
{
    const Texts told = {
        {"time_to_empty_avg", "7200"}, {"time_to_empty_now", "3600"}, {"time_to_full_avg", "1800"}};
    BatteryTimes times;
    const SystemTimes discharging = times.follow(System({with(status("Discharging"), told)}).power(), 0s);
    EXPECT_EQ(discharging.averageToEmpty, 120);
    EXPECT_EQ(discharging.presentToEmpty, 60);
    EXPECT_EQ(discharging.averageToFull, std::nullopt);
    EXPECT_EQ(discharging.remaining, 120);
    const SystemTimes charging = times.follow(System({with(status("Charging"), told)}).power(), 1s);
    EXPECT_EQ(charging.averageToEmpty, std::nullopt);
    EXPECT_EQ(charging.averageToFull, 30);
    EXPECT_EQ(charging.remaining, 30);
    const SystemTimes full = times.follow(System({with(status("Full"), told)}).power(), 2s);
    EXPECT_EQ(full.remaining, std::nullopt);
}

TEST(BatteryTimes, EstimateNeedsAWhileAndStartsAnewOnPlugAndUnplug)
{
    const System discharging({sixVolts}, {online("0")});
    BatteryTimes times;
    EXPECT_EQ(times.follow(discharging.power(), 0s).averageToEmpty, std::nullopt);
    EXPECT_EQ(times.follow(discharging.power(), 4s).averageToEmpty, std::nullopt);
    const SystemTimes known = times.follow(discharging.power(), 20s);
    EXPECT_EQ(known.averageToEmpty, 360);
    EXPECT_EQ(known.remaining, 360);
    times.follow(System({status("Not charging")}, {online("1")}).power(), 20s);
    EXPECT_EQ(times.follow(discharging.power(), 20s).averageToEmpty, std::nullopt);
}

TEST(BatteryTimes, SeveralBatteriesAreEstimatedTogether)
{
    const System both({with(twelveVolts, {{"time_to_empty_avg", "600"}}), sixVolts});
    BatteryTimes times;
    EXPECT_EQ(times.follow(both.power(), 0s).averageToEmpty, std::nullopt);
    EXPECT_EQ(times.follow(both.power(), 30s).averageToEmpty, 120); // 2500 mAh at 1250 mA
}

TEST(SystemPower, ABatteryWhoseDriverIsNotReadyIsNone)
{
    const auto countOf = [](const Texts& texts) {
        return systemPowerFrom({readingFrom(SupplyKind::Battery, texts)}).batteries.size();
    };
    const Texts starting = {{"status", "Unknown"}, {"energy_now", "0"}, {"voltage_now", "0"}};
    EXPECT_EQ(countOf(starting), 0U);
    EXPECT_EQ(countOf(with(starting, {{"energy_full", "0"}})), 0U);
    EXPECT_EQ(countOf(with(starting, {{"capacity", "0"}})), 1U);
    EXPECT_EQ(countOf(with(starting, {{"energy_full", "50000000"}})), 1U);
    EXPECT_EQ(countOf(Texts{{"charge_now", "900000"}}), 0U);
    EXPECT_EQ(countOf({}), 0U);
}

TEST(CombinedBattery, EnergiesAreKnownWhereAllBatteriesCountThem)
{
    Battery one;
    one.ratedVoltage = 11.4;
    one.isFromEnergies = true;
    Battery other = one;
    other.ratedVoltage = 15;
    EXPECT_EQ(combinedVoltageOfEnergies({}), std::nullopt);
    EXPECT_EQ(combinedVoltageOfEnergies(std::vector{one, other}), 11.4);
    other.isFromEnergies = false;
    EXPECT_EQ(combinedVoltageOfEnergies(std::vector{one, other}), std::nullopt);
}

TEST(SystemPower, AFullChargeThatRoundsToNothingIsNoBattery)
{
    const Texts texts = {{"energy_full", "1"}, {"energy_now", "1"}, {"voltage_min_design", "100000000"}};
    EXPECT_TRUE(systemPowerFrom({readingFrom(SupplyKind::Battery, texts)}).batteries.empty());
}

} // namespace
