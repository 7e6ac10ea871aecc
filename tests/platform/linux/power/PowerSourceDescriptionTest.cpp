#include <gtest/gtest.h>

#include "platform/linux/power/BatteryRules.h"
#include "platform/linux/power/PowerSourceDescription.h"
#include "tests/platform/linux/power/SupplyTexts.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(PowerSourceDescription, HealthWord)
{
    const auto word = [](const char* full, const char* design, const char* health) {
        const SupplyTexts texts = {{"charge_full", full}, {"charge_full_design", design}, {"health", health}};
        return batteryFrom(attributesFrom(texts)).health;
    };
    EXPECT_EQ(word("3200000", "4000000", ""), QStringLiteral("Good"));
    EXPECT_EQ(word("3199999", "4000000", "Unknown\n"), QStringLiteral("Fair"));
    EXPECT_EQ(word("2000000", "4000000", ""), QStringLiteral("Fair"));
    EXPECT_EQ(word("1999999", "4000000", ""), QStringLiteral("Poor"));
    EXPECT_EQ(word("4500000", "4000000", "Overheat\n"), QStringLiteral("Overheat"));
    EXPECT_EQ(word("4500000", "0", ""), std::nullopt);
    EXPECT_EQ(word("4500000", "", "Unknown"), std::nullopt);
}

TEST(PowerSourceDescription, Battery)
{
    const SupplyTexts battery = {{"charge_now", "1000000"}, {"charge_full", "3000000"},
                                 {"status", "Discharging"}, {"model_name", "FRANGWA"},
                                 {"current_now", "402000"}, {"voltage_now", "17296000"}};
    const SystemPower power = systemPowerFrom({readingFrom(SupplyKind::Battery, battery)});
    SystemTimes times;
    times.averageToEmpty = 150;
    const QVariantMap description = sourceDescriptions(power, times).at(0);
    const QVariantMap expected = {
        {QStringLiteral("Name"), QStringLiteral("FRANGWA")},
        {QStringLiteral("Type"), QStringLiteral("InternalBattery")},
        {QStringLiteral("Transport Type"), QStringLiteral("Internal")},
        {QStringLiteral("Power Source State"), QStringLiteral("Battery Power")},
        {QStringLiteral("Is Present"), true},
        {QStringLiteral("Is Charging"), false},
        {QStringLiteral("Current Capacity"), qint64{33}},
        {QStringLiteral("Max Capacity"), qint64{100}},
        {QStringLiteral("Time to Empty"), qint64{150}},
        {QStringLiteral("Time to Full Charge"), qint64{-1}},
        {QStringLiteral("Current"), qint64{-402}},
        {QStringLiteral("Voltage"), qint64{17296}},
    };
    EXPECT_EQ(description, expected);
}

TEST(PowerSourceDescription, UninterruptibleSupply)
{
    const SupplyTexts supply = {{"capacity", "80"},
                                {"status", "Discharging"},
                                {"time_to_empty_avg", "1200"},
                                {"serial_number", "  A1 "}};
    const SystemPower power = systemPowerFrom({readingFrom(SupplyKind::UninterruptibleSupply, supply)});
    const QVariantMap description = sourceDescriptions(power, {}).at(0);
    EXPECT_EQ(description.value(QStringLiteral("Type")), QStringLiteral("UPS"));
    EXPECT_EQ(description.value(QStringLiteral("Current Capacity")), qint64{80});
    EXPECT_EQ(description.value(QStringLiteral("Power Source State")), QStringLiteral("Battery Power"));
    EXPECT_EQ(description.value(QStringLiteral("Time to Empty")), qint64{20});
    EXPECT_EQ(description.value(QStringLiteral("Hardware Serial Number")), QStringLiteral("A1"));
}

struct WattsCase
{
    const char* type = nullptr;
    const char* modes = nullptr;
    const char* online = nullptr;
    const char* microvolts = nullptr;
    const char* microamps = nullptr;
    std::optional<qint64> watts;
};

TEST(PowerSourceDescription, AdapterWatts)
{
    const WattsCase cases[] = {
        {"USB", "C [PD] PD_PPS\n", "1", "20000000", "3250000", 65},
        {"USB", "C PD [PD_PPS]", "1", "20000000", "2250000", 45},
        {"USB", "PD", "1", "9000000", "3000000", 27},
        {"USB_PD", "", "1", "20000000", "5000000", 100},
        {"USB", "[C] PD PD_PPS", "1", "5000000", "3000000", {}},
        {"USB", "C PD PD_PPS", "1", "5000000", "3000000", {}},
        {"USB", "C [PD", "1", "20000000", "3000000", 60},
        {"USB", "", "1", "20000000", "3250000", {}},
        {"Mains", "", "1", "20000000", "3250000", {}},
        {"USB", "[PD]", "0", "20000000", "3250000", {}},
        {"USB", "[PD]", "", "20000000", "3250000", {}},
        {"USB", "[PD]", "1", "", "3250000", {}},
        {"USB", "[PD]", "1", "0", "3250000", {}},
        {"USB", "[PD]", "1", "9223372036854775807", "9223372036854775807", {}},
    };
    for (const WattsCase& each : cases) {
        SCOPED_TRACE(&each - cases);
        const SupplyTexts supply = {{"type", each.type},
                                    {"usb_type", each.modes},
                                    {"online", each.online},
                                    {"voltage_max", each.microvolts},
                                    {"current_max", each.microamps}};
        EXPECT_EQ(externalSupplyFrom(attributesFrom(supply)).watts, each.watts);
    }
}

} // namespace
