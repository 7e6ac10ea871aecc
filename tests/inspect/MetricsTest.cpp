#include "inspect/Metrics.h"

#include <QLocale>

#include <gtest/gtest.h>

#include "tests/facts/FactComputer.h"

using namespace quindle;

namespace {

struct Metrics : testing::Test, test::FactComputer
{
    std::string metrics()
    {
        make();
        return metricsText(*mac).toStdString();
    }

    /// The values alone.
    std::string values()
    {
        std::string lines;
        for (const QByteArray& line : QByteArray::fromStdString(metrics()).split('\n'))
            if (!line.isEmpty() && !line.startsWith("# "))
                lines += line.toStdString() + '\n';
        return lines;
    }
};

TEST_F(Metrics, AreAllThatIsKnown)
{
    EXPECT_EQ(
        metrics(),
        "# HELP quindle_battery_info What the battery is, and what computer it is in; always 1.\n"
        "# TYPE quindle_battery_info gauge\n"
        "quindle_battery_info{manufacturer=\"Simplo\",device=\"bq20z451\",computer=\"MacBookAir6,2\"} 1\n"
        "# HELP quindle_battery_charge_ratio Charge held, as a share of the full charge.\n"
        "# TYPE quindle_battery_charge_ratio gauge\n"
        "quindle_battery_charge_ratio 0.6667\n"
        "# HELP quindle_battery_health_ratio Full charge, as a share of the design capacity.\n"
        "# TYPE quindle_battery_health_ratio gauge\n"
        "quindle_battery_health_ratio 0.8392\n"
        "# HELP quindle_battery_full_charge_coulombs Charge that the battery holds when it is full.\n"
        "# TYPE quindle_battery_full_charge_coulombs gauge\n"
        "quindle_battery_full_charge_coulombs 21600\n"
        "# HELP quindle_battery_design_capacity_coulombs Charge that it held when it was new.\n"
        "# TYPE quindle_battery_design_capacity_coulombs gauge\n"
        "quindle_battery_design_capacity_coulombs 25740\n"
        "# HELP quindle_battery_cycles Charge cycles that the battery has counted.\n"
        "# TYPE quindle_battery_cycles gauge\n"
        "quindle_battery_cycles 1293\n"
        "# HELP quindle_battery_power_watts Power into the battery, negative while it discharges.\n"
        "# TYPE quindle_battery_power_watts gauge\n"
        "quindle_battery_power_watts -12.4\n"
        "# HELP quindle_battery_temperature_celsius Temperature of the battery.\n"
        "# TYPE quindle_battery_temperature_celsius gauge\n"
        "quindle_battery_temperature_celsius 30\n"
        "# HELP quindle_battery_state 1 for what the battery does, 0 for what else it could do.\n"
        "# TYPE quindle_battery_state gauge\n"
        "quindle_battery_state{state=\"discharging\"} 1\n"
        "quindle_battery_state{state=\"charging\"} 0\n"
        "quindle_battery_state{state=\"full\"} 0\n"
        "quindle_battery_state{state=\"unknown\"} 0\n"
        "# EOF\n");
}

TEST_F(Metrics, WithoutABatteryAreNone)
{
    removeBattery();
    EXPECT_EQ(metrics(), "# EOF\n");
}

TEST_F(Metrics, HaveNoLineForWhatIsNotKnown)
{
    platform.battery() = {{QStringLiteral("CurrentCapacity"), 4000}, {QStringLiteral("MaxCapacity"), 0}};
    platform.registry.entries.erase(QStringLiteral("IOPlatformExpertDevice"));
    EXPECT_EQ(values(), "quindle_battery_info 1\n"
                        "quindle_battery_state{state=\"discharging\"} 1\n"
                        "quindle_battery_state{state=\"charging\"} 0\n"
                        "quindle_battery_state{state=\"full\"} 0\n"
                        "quindle_battery_state{state=\"unknown\"} 0\n");
}

TEST_F(Metrics, HaveAPowerAndATemperatureOfNothing)
{
    setBattery("Amperage", 0);
    setBattery("Temperature", 2731.5);
    const std::string lines = values();
    EXPECT_NE(lines.find("power_watts 0\n"), std::string::npos) << lines;
    EXPECT_NE(lines.find("temperature_celsius 0\n"), std::string::npos) << lines;
}

TEST_F(Metrics, AreCelsiusWhateverIsShown)
{
    platform.userDefaults.standardDefaults.values[QStringLiteral("QDBatteryTemperatureMode")] = qint64{1};
    platform.userDefaults.suiteDefaults.values[QStringLiteral("temperatureSettingIndex")] = qint64{1};
    EXPECT_NE(values().find("temperature_celsius 30\n"), std::string::npos);
}

TEST_F(Metrics, SayWhatTheBatteryDoes)
{
    plugIn();
    EXPECT_NE(values().find("{state=\"charging\"} 1\n"), std::string::npos);
    EXPECT_NE(values().find("power_watts 12.4\n"), std::string::npos);
    fillUp();
    EXPECT_NE(values().find("{state=\"full\"} 1\n"), std::string::npos);
    holdBack();
    EXPECT_NE(values().find("{state=\"unknown\"} 1\n"), std::string::npos);
}

TEST_F(Metrics, HoldNoSerialNumber)
{
    const std::string text = metrics();
    EXPECT_EQ(text.find("D867D0E10AB1234"), std::string::npos);
    EXPECT_EQ(text.find("C02MN1TXF5YW"), std::string::npos);
}

TEST_F(Metrics, EscapeWhatFirmwareWrote)
{
    setBattery("Manufacturer", QStringLiteral("a\"b\\c\nd \u00e9"));
    EXPECT_NE(values().find("manufacturer=\"a\\\"b\\\\c\\nd \u00e9\""), std::string::npos) << values();
}

TEST_F(Metrics, KnowNoLocale)
{
    const std::string before = metrics();
    const QLocale locale;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(metrics(), before);
    QLocale::setDefault(locale);
}

TEST_F(Metrics, OfTheDemonstrationHaveNoTemperature)
{
    makeDemo();
    const std::string text = metricsText(*mac).toStdString();
    EXPECT_NE(text.find("charge_ratio 0.61\n"), std::string::npos) << text;
    EXPECT_NE(text.find("power_watts -4.61\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("temperature"), std::string::npos) << text;
}

} // namespace
