#include <gtest/gtest.h>

#include "platform/linux/power/BatteryTimes.h"
#include "tests/platform/linux/power/MapAttributes.h"

using namespace quindle;

namespace {

using Texts = MapAttributes::Texts;

/// Owns supplies and shows them as the system's.
class System
{
public:
    explicit System(const std::vector<Texts>& batteries, const std::vector<Texts>& externals = {})
    {
        for (const Texts& texts : batteries)
            m_batteries.push_back(keep(texts));
        for (const Texts& texts : externals)
            m_externals.push_back(keep(texts));
    }

    SystemPower power() const { return {m_batteries, m_externals}; }
    Batteries batteries() const { return m_batteries; }

private:
    const SupplyAttributes* keep(const Texts& texts)
    {
        return m_owned.emplace_back(std::make_unique<MapAttributes>(texts)).get();
    }

    std::vector<std::unique_ptr<MapAttributes>> m_owned;
    std::vector<const SupplyAttributes*> m_batteries;
    std::vector<const SupplyAttributes*> m_externals;
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

TEST(CombinedBattery, OneThatTellsTooLittleIsLeftOutOfTheSum)
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

struct TimesTest : testing::Test
{
    std::optional<int> minutes(BatteryTime time, const System& system)
    {
        return times.minutes(time, system.power());
    }

    std::chrono::milliseconds now{0};
    BatteryTimes times = BatteryTimes([this] { return now; });
};

Texts with(Texts texts, const Texts& more)
{
    texts.insert(more.begin(), more.end());
    return texts;
}

TEST_F(TimesTest, DriversTimesAreTakenAtOnceInTheirOwnDirection)
{
    const Texts told = {
        {"time_to_empty_avg", "7200"}, {"time_to_empty_now", "3600"}, {"time_to_full_avg", "1800"}};
    const System discharging({with(status("Discharging"), told)});
    EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, discharging), 120);
    EXPECT_EQ(minutes(BatteryTime::InstantToEmpty, discharging), 60);
    EXPECT_EQ(minutes(BatteryTime::AverageToFull, discharging), std::nullopt);
    EXPECT_EQ(minutes(BatteryTime::Remaining, discharging), 120);
    const System charging({with(status("Charging"), told)});
    EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, charging), std::nullopt);
    EXPECT_EQ(minutes(BatteryTime::AverageToFull, charging), 30);
    EXPECT_EQ(minutes(BatteryTime::Remaining, charging), 30);
    const System full({with(status("Full"), told)});
    EXPECT_EQ(minutes(BatteryTime::Remaining, full), std::nullopt);
}

TEST_F(TimesTest, EstimateNeedsAWhileAndStartsAnewOnPlugAndUnplug)
{
    const System discharging({sixVolts}, {online("0")});
    for (const int second : {0, 10}) {
        now = std::chrono::seconds(second);
        EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, discharging), std::nullopt);
    }
    now = std::chrono::seconds(20);
    EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, discharging), 360);
    EXPECT_EQ(minutes(BatteryTime::Remaining, discharging), 360);
    times.notePower(System({status("Not charging")}, {online("1")}).power());
    EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, discharging), std::nullopt);
}

TEST_F(TimesTest, SeveralBatteriesAreEstimatedTogether)
{
    const System both({with(twelveVolts, {{"time_to_empty_avg", "600"}}), sixVolts});
    EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, both), std::nullopt);
    now = std::chrono::seconds(30);
    EXPECT_EQ(minutes(BatteryTime::AverageToEmpty, both), 120); // 2500 mAh at 1250 mA
}

} // namespace
