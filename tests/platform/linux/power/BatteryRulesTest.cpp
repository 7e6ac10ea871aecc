#include <gtest/gtest.h>

#include "platform/linux/power/BatteryRules.h"
#include "tests/platform/linux/power/SupplyTexts.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Figure = std::optional<double>;

Battery battery(const SupplyTexts& texts)
{
    return batteryFrom(attributesFrom(texts));
}

struct ChargeCase
{
    const char* what;
    SupplyTexts texts;
    Figure charge;
    Figure full;
    Figure design;
};

class ChargeTest : public testing::TestWithParam<ChargeCase>
{
};

void expectFigure(Figure actual, Figure expected)
{
    ASSERT_EQ(actual.has_value(), expected.has_value());
    if (expected) {
        EXPECT_NEAR(*actual, *expected, 0.001);
    }
}

TEST_P(ChargeTest, Gives)
{
    SCOPED_TRACE(GetParam().what);
    const Battery told = battery(GetParam().texts);
    expectFigure(told.charge, GetParam().charge);
    expectFigure(told.fullCharge, GetParam().full);
    expectFigure(told.designCharge, GetParam().design);
    EXPECT_EQ(isReady(told), GetParam().full.has_value());
}

const ChargeCase chargeCases[] = {
    {"nothing", {}, {}, {}, {}},
    {"charges",
     {{"charge_now", "3670000"}, {"charge_full", "3956000"}, {"charge_full_design", "3915000"}},
     3670,
     3956,
     3915},
    {"energies at the rated voltage",
     {{"energy_now", "24000000"},
      {"energy_full", "48000000"},
      {"energy_full_design", "60000000"},
      {"voltage_min_design", "12000000"},
      {"voltage_now", "13000000"}},
     2000,
     4000,
     5000},
    {"energies at the present voltage",
     {{"energy_now", "24000000"},
      {"energy_full", "48000000"},
      {"voltage_min_design", "0"},
      {"voltage_now", "12000000"}},
     2000,
     4000,
     {}},
    {"energies without any voltage",
     {{"energy_now", "11400000"}, {"energy_full", "22800000"}},
     1000,
     2000,
     {}},
    {"charges are preferred to energies",
     {{"charge_now", "2924000"},
      {"charge_full", "3898000"},
      {"energy_now", "1"},
      {"energy_full", "99000000"},
      {"voltage_min_design", "10800000"}},
     2924,
     3898,
     {}},
    {"a design charge of the other kind",
     {{"charge_now", "2000000"},
      {"charge_full", "4000000"},
      {"energy_full_design", "60000000"},
      {"voltage_min_design", "12000000"}},
     2000,
     4000,
     5000},
    {"above full counts as full", {{"charge_now", "4539000"}, {"charge_full", "4538000"}}, 4538, 4538, {}},
    {"twice the full charge counts as full",
     {{"charge_now", "8000000"}, {"charge_full", "4000000"}, {"capacity", "85"}},
     4000,
     4000,
     {}},
    {"more than twice is a broken counter: bytes swapped",
     {{"charge_now", "56848000"}, {"charge_full", "4998000"}, {"capacity", "87"}},
     4348.26,
     4998,
     {}},
    {"more than twice and no percentage",
     {{"charge_now", "9000000"}, {"charge_full", "4000000"}},
     4000,
     4000,
     {}},
    {"percentage of the full charge", {{"charge_full", "4000000"}, {"capacity", "30"}}, 1200, 4000, {}},
    {"percentage before the other counter",
     {{"charge_full", "5186000"},
      {"energy_now", "59006400"},
      {"voltage_now", "12911000"},
      {"capacity", "100"}},
     5186,
     5186,
     {}},
    {"the other counter where there is no percentage",
     {{"charge_full", "5000000"}, {"energy_now", "24000000"}, {"voltage_now", "12000000"}},
     2000,
     5000,
     {}},
    {"percentage only", {{"capacity", "43"}, {"charge_full_design", "2750000"}}, 43, 100, {}},
    {"a full charge of 0",
     {{"capacity", "43"}, {"charge_full", "0"}, {"charge_now", "900000"}, {"charge_full_design", "2750000"}},
     43,
     100,
     {}},
    {"a full charge of 0 and no percentage", {{"charge_full", "0"}, {"charge_now", "900000"}}, {}, {}, {}},
    {"a charge only", {{"charge_now", "900000"}}, {}, {}, {}},
    {"a driver that is not ready", {{"status", "Unknown"}, {"energy_now", "0"}}, {}, {}, {}},
    {"a design charge of 0 is none",
     {{"charge_now", "2000000"}, {"charge_full", "4000000"}, {"charge_full_design", "0"}},
     2000,
     4000,
     {}},
    {"percentage above 100", {{"capacity", "104"}}, 100, 100, {}},
    {"negative percentage is none", {{"capacity", "-1"}}, {}, {}, {}},
    {"negative charge is none",
     {{"charge_now", "-5"}, {"charge_full", "4000000"}, {"capacity", "50"}},
     2000,
     4000,
     {}},
    {"20 points away: the charge is believed",
     {{"charge_now", "2000000"}, {"charge_full", "4000000"}, {"capacity", "70"}},
     2000,
     4000,
     {}},
    {"21 points away: the percentage is believed",
     {{"charge_now", "2000000"}, {"charge_full", "4000000"}, {"capacity", "71"}},
     2840,
     4000,
     {}},
    {"21 points below",
     {{"charge_now", "2000000"}, {"charge_full", "4000000"}, {"capacity", "29"}},
     1160,
     4000,
     {}},
    {"counts in mAh",
     {{"charge_now", "2000"}, {"charge_full", "4000"}, {"charge_full_design", "5000"}},
     2000,
     4000,
     5000},
    {"100 mAh is no thousandth", {{"charge_now", "50000"}, {"charge_full", "100000"}}, 50, 100, {}},
    {"just below is one", {{"charge_now", "50000"}, {"charge_full", "99999"}}, 50000, 99999, {}},
    {"counts in mWh, voltages in µV",
     {{"energy_now", "24000"}, {"energy_full", "48000"}, {"voltage_min_design", "12000000"}},
     2000,
     4000,
     {}},
    {"counts in mWh, voltages in mV",
     {{"energy_now", "24000"}, {"energy_full", "48000"}, {"voltage_min_design", "12000"}},
     2000,
     4000,
     {}},
    {"counts in mWh without a voltage", {{"energy_now", "11400"}, {"energy_full", "22800"}}, 1000, 2000, {}},
};

INSTANTIATE_TEST_SUITE_P(BatteryRules, ChargeTest, testing::ValuesIn(chargeCases));

struct CurrentCase
{
    const char* what;
    SupplyTexts texts;
    Figure average;
    Figure present;
    Figure voltage;
};

class CurrentTest : public testing::TestWithParam<CurrentCase>
{
};

TEST_P(CurrentTest, Gives)
{
    SCOPED_TRACE(GetParam().what);
    const Battery told = battery(GetParam().texts);
    expectFigure(told.averageCurrent, GetParam().average);
    expectFigure(told.presentCurrent, GetParam().present);
    expectFigure(told.voltage, GetParam().voltage);
}

const CurrentCase currentCases[] = {
    {"nothing", {{"status", "Discharging"}}, {}, {}, {}},
    {"positive while discharging", {{"status", "Discharging"}, {"current_now", "402000"}}, -402, -402, {}},
    {"negative while discharging", {{"status", "Discharging"}, {"current_now", "-402000"}}, -402, -402, {}},
    {"negative while charging", {{"status", "Charging"}, {"current_now", "-402000"}}, 402, 402, {}},
    {"without status", {{"current_now", "-402000"}}, 402, 402, {}},
    {"average and present one",
     {{"status", "Discharging\n"}, {"current_avg", "-24000"}, {"current_now", "-26000"}},
     -24,
     -26,
     {}},
    {"average only", {{"status", "Full"}, {"current_avg", "24000"}}, 24, 24, {}},
    {"power by voltage",
     {{"status", "Discharging"}, {"power_now", "24000000"}, {"voltage_now", "12000000"}},
     -2000,
     -2000,
     12000},
    {"power without voltage: the rated one stands in for both",
     {{"status", "Discharging"}, {"power_now", "24000000"}, {"voltage_min_design", "12000000"}},
     -2000,
     -2000,
     12000},
    {"power without any voltage: the usual one",
     {{"status", "Discharging"}, {"power_now", "7100000"}},
     -622.807,
     -622.807,
     11400},
    {"power by a voltage of 0",
     {{"power_now", "24000000"}, {"voltage_now", "0"}, {"voltage_min_design", "12000000"}},
     2000,
     2000,
     12000},
    {"a current needs no voltage", {{"power_now", "24000000"}, {"current_now", "1000000"}}, 1000, 1000, {}},
    {"counts in mA",
     {{"status", "Charging"}, {"current_now", "1500"}, {"charge_full", "4000"}},
     1500,
     1500,
     {}},
};

INSTANTIATE_TEST_SUITE_P(BatteryRules, CurrentTest, testing::ValuesIn(currentCases));

TEST(BatteryRules, ChargeRateOfEnergiesIsAtTheRatedVoltage)
{
    const SupplyTexts energies = {{"status", "Discharging"},
                                  {"energy_full", "48000000"},
                                  {"power_now", "24000000"},
                                  {"voltage_min_design", "12000000"},
                                  {"voltage_now", "15000000"}};
    expectFigure(battery(energies).chargeRate, -2000);
    expectFigure(battery(energies).averageCurrent, -1600);
    const SupplyTexts withCurrent = {{"status", "Charging"},
                                     {"energy_full", "48000000"},
                                     {"current_now", "1600000"},
                                     {"voltage_min_design", "12000000"},
                                     {"voltage_now", "15000000"}};
    expectFigure(battery(withCurrent).chargeRate, 2000);
    expectFigure(battery({{"charge_full", "4000000"}, {"current_now", "1600000"}}).chargeRate, 1600);
}

TEST(BatteryRules, APercentageHasNoChargeRate)
{
    const Battery percentage = battery({{"capacity", "80"}, {"current_now", "1600000"}});
    expectFigure(percentage.averageCurrent, 1600);
    expectFigure(percentage.chargeRate, {});
}

TEST(BatteryRules, Voltage)
{
    expectFigure(battery({}).voltage, {});
    expectFigure(battery({{"voltage_now", "17296000"}}).voltage, 17296);
    expectFigure(battery({{"voltage_now", "12000"}, {"charge_full", "4000"}}).voltage, 12000);
    // The voltage is in the usual unit although the charges are not.
    expectFigure(battery({{"voltage_now", "12000000"}, {"charge_full", "4000"}}).voltage, 12000);
    expectFigure(battery({{"voltage_now", "-1"}}).voltage, {});
}

TEST(BatteryRules, Temperature)
{
    const std::pair<const char*, Figure> cases[] = {{"198", 2929.5}, {"0", 2731.5},    {"-600", 2131.5},
                                                    {"-601", {}},    {"1500", 4231.5}, {"1501", {}},
                                                    {"x", {}}};
    for (const auto& [text, expected] : cases) {
        SCOPED_TRACE(text);
        expectFigure(battery({{"temp", text}}).temperature, expected);
    }
}

TEST(BatteryRules, ManufactureDate)
{
    const auto packed = [](const char* year, const char* month, const char* day) {
        return battery({{"manufacture_year", year}, {"manufacture_month", month}, {"manufacture_day", day}})
            .manufactureDate;
    };
    EXPECT_EQ(packed("2014", "3", "2"), 17506);
    EXPECT_EQ(packed("2024", "08", "24"), 44 * 512 + 8 * 32 + 24);
    EXPECT_EQ(packed("0", "0", "0"), std::nullopt);
    EXPECT_EQ(packed("2024", "13", "1"), std::nullopt);
    EXPECT_EQ(packed("2024", "12", "32"), std::nullopt);
    EXPECT_EQ(packed("2024", "12", ""), std::nullopt);
}

TEST(BatteryRules, Full)
{
    const SupplyTexts full = {{"charge_now", "4000000"}, {"charge_full", "4000000"}};
    const auto isFullWith = [&](const char* status, SupplyTexts texts) {
        texts["status"] = status;
        return battery(texts).isFull;
    };
    EXPECT_EQ(battery(full).isFull, std::nullopt);
    EXPECT_EQ(isFullWith("Full", {}), true);
    EXPECT_EQ(isFullWith("Unknown", full), false);
    EXPECT_EQ(isFullWith("Charging", full), false);
    EXPECT_EQ(isFullWith("Not charging", full), true);
    EXPECT_EQ(isFullWith("Not charging", {{"charge_now", "3999999"}, {"charge_full", "4000000"}}), false);
    EXPECT_EQ(isFullWith("Not charging", {{"charge_now", "4000001"}, {"charge_full", "4000000"}}), true);
    EXPECT_EQ(isFullWith("Not charging", {{"capacity", "100"}}), true);
    EXPECT_EQ(isFullWith("Not charging", {}), false);
}

TEST(BatteryRules, PlausibleMinutes)
{
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"3600", 60},      {"3659", 60},   {"0", {}},      {"-60", {}},
        {"863999", 14399}, {"864000", {}}, {"3932100", {}}};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(battery({{"time_to_full_avg", text}}).averageMinutesToFull, expected) << text;
}

TEST(BatteryRules, ChargeLimit)
{
    const auto limit = [](const char* threshold, const char* types) {
        SupplyTexts texts = {{"charge_control_end_threshold", threshold}};
        if (types)
            texts["charge_types"] = types;
        return battery(texts).chargeLimit;
    };
    EXPECT_EQ(limit("80\n", nullptr), 80);
    EXPECT_EQ(limit("1", nullptr), 1);
    EXPECT_EQ(limit("99", nullptr), 99);
    for (const char* none : {"100", "0", "-1", "", "off"})
        EXPECT_EQ(limit(none, nullptr), std::nullopt) << none;
    EXPECT_EQ(limit("80", "Standard Fast [Custom]\n"), 80);
    EXPECT_EQ(limit("80", "Custom"), 80);
    EXPECT_EQ(limit("80", "[Standard] Fast Custom\n"), std::nullopt);
    EXPECT_EQ(limit("80", "Long_Life"), std::nullopt);
    EXPECT_EQ(battery({{"charge_types", "[Long_Life]"}}).chargeLimit, std::nullopt);
}

} // namespace
