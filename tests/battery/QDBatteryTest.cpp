#include "battery/QDBattery.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

struct QDBatteryTest : testing::Test
{
    ScopedTimeZone zone{"UTC"};
    FakePlatform computer;
    QDBattery battery{computer.platform, text("MacBookAir6,2")};

    void set(const char* key, const QVariant& value) { computer.battery().insert(text(key), value); }

    void refresh()
    {
        battery.open();
        battery.updateData();
    }

    void expectState(const char* state, const char* caption, const char* remaining, const char* time)
    {
        EXPECT_EQ(battery.BatteryState(), text(state));
        EXPECT_EQ(battery.StateText(), text(caption));
        EXPECT_EQ(battery.RemainingString(), text(remaining));
        EXPECT_EQ(battery.TimeRemaining(), text(time));
    }
};

TEST_F(QDBatteryTest, HasItsFirstValuesUntilTheFirstRefresh)
{
    const std::pair<const char*, QVariant> values[] = {
        {"BatteryID", text("0")},
        {"MacModel", text("MacBookAir6,2")},
        {"PermanentFailureString", text("No Errors")},
        {"BatteryHealth", text("")},
        {"BatteryState", text("")},
        {"StateText", text("Chargin with")}, // with this spelling
        {"TimeRemaining", text("")},
        {"RemainingString", text("Time until empty")},
        {"AdapterConnected", text("Not connected")},
        {"Temperature", text("")},
        {"CustomAge", text("")},
        {"LegacyAgeInMonths", 0},
        {"CycleCount", 0},
        {"DesignCapacity", 0},
        {"CurrentCapacity", 0},
        {"StateOfCharge", 0.0},
        {"WattThroughput", 0.0},
        {"raw", QVariantList()},
    };
    for (const auto& [name, value] : values)
        EXPECT_EQ(battery.property(name), value) << name;
    for (const char* name :
         {"Manufacturer", "ManufacturerRaw", "SerialNumber", "ManufactureDate", "DeviceName", "AdapterWatt"})
        EXPECT_FALSE(battery.property(name).isValid()) << name;
    EXPECT_EQ(computer.registry.calls, 0);
    EXPECT_TRUE(computer.runLoop.timers.empty());
}

TEST_F(QDBatteryTest, OpensOnceAndClosesAndOpensAgain)
{
    computer.battery();
    EXPECT_EQ(battery.open(), kIOReturnSuccess);
    EXPECT_EQ(battery.open(), kIOReturnStillOpen);
    EXPECT_EQ(computer.registry.openHandles.size(), 1);
    EXPECT_EQ(battery.close(), kIOReturnSuccess);
    EXPECT_TRUE(computer.registry.openHandles.isEmpty());
    EXPECT_EQ(battery.close(), FakeRegistry::notOpen);
    EXPECT_EQ(battery.open(), kIOReturnSuccess);
}

constexpr std::pair<const char*, qint64 (QDBattery::*)() const> integerGetters[] = {
    {"ManufactureDate", &QDBattery::manufactureDate},
    {"CurrentCapacity", &QDBattery::currentCapacity},
    {"MaxCapacity", &QDBattery::maxCapactiy},
    {"DesignCapacity", &QDBattery::designCapacity},
    {"CycleCount", &QDBattery::cycleCount},
    {"Voltage", &QDBattery::voltage},
    {"Amperage", &QDBattery::amperage},
    {"InstantAmperage", &QDBattery::instantAmperage},
    {"DesignCycleCount9C", &QDBattery::designCycleCount},
    {"TimeRemaining", &QDBattery::timeRemaining},
    {"AvgTimeToEmpty", &QDBattery::avgTimeToEmpty},
    {"AvgTimeToFull", &QDBattery::avgTimeToFull},
    {"InstantTimeToEmpty", &QDBattery::instantTimeToEmpty},
    {"PermanentFailureStatus", &QDBattery::permanentFailure},
};
constexpr std::pair<const char*, bool (QDBattery::*)() const> booleanGetters[] = {
    {"ExternalConnected", &QDBattery::isACPowered},
    {"IsCharging", &QDBattery::isCharging},
    {"FullyCharged", &QDBattery::isCharged},
};

TEST_F(QDBatteryTest, NothingIsReadWithoutABattery)
{
    EXPECT_EQ(battery.open(), kIOReturnNotFound);
    EXPECT_EQ(battery.serialNumber(), text(""));
    EXPECT_FALSE(battery.serialNumber().isNull());
    EXPECT_EQ(battery.deviceName(), std::nullopt);
    EXPECT_EQ(battery.manufacturer_unsafe(), std::nullopt);
    EXPECT_EQ(battery.manufacturer(false), std::nullopt);
    for (const auto& [key, getter] : integerGetters)
        EXPECT_EQ((battery.*getter)(), 0) << key;
    for (const auto& [key, getter] : booleanGetters)
        EXPECT_FALSE((battery.*getter)()) << key;
    EXPECT_TRUE(battery.getRawData().isEmpty());
    EXPECT_TRUE(std::isnan(battery.charge()));
    EXPECT_EQ(battery.avgTimeToEmptyFormatted(), text("0:00"));
    EXPECT_EQ(battery.temperatureValue(TemperatureUnit::Fahrenheit), 0.0);
}

TEST_F(QDBatteryTest, EachGetterHasItsKey)
{
    computer.battery();
    battery.open();
    for (const auto& [key, getter] : integerGetters) {
        computer.battery() = {{text(key), 125}};
        EXPECT_EQ((battery.*getter)(), 125) << key;
    }
    for (const auto& [key, getter] : booleanGetters) {
        computer.battery() = {{text(key), true}};
        EXPECT_TRUE((battery.*getter)()) << key;
    }
}

TEST_F(QDBatteryTest, ValuesOfAnotherTypeAreFatal)
{
    constexpr const char* message = " has an unexpected type in the registry";
    set("CycleCount", text("300"));
    set("IsCharging", 2);
    set("BatterySerialNumber", 5);
    set("Temperature", text("warm"));
    battery.open();
    EXPECT_DEATH(battery.cycleCount(), std::string("CycleCount") + message);
    EXPECT_DEATH(battery.isCharging(), std::string("IsCharging") + message);
    EXPECT_DEATH(battery.serialNumber(), std::string("BatterySerialNumber") + message);
    EXPECT_DEATH(battery.getCustomTemperature(), std::string("Temperature") + message);
}

TEST_F(QDBatteryTest, StoredModesOutsideTheirRangeAreFatal)
{
    MemoryUserDefaults& settings = computer.userDefaults.standardDefaults;
    for (const char* key : {"QDBatteryTemperatureMode", "QDBatteryAgeMode"}) {
        for (const int number : {-1, 3}) {
            settings.values = {{text(key), number}};
            EXPECT_DEATH(battery.loadSettings(), std::string(key) + ": " + std::to_string(number));
        }
        settings.values = {{text(key), 2}};
        battery.loadSettings();
    }
    EXPECT_EQ(battery.ageMode(), AgeFieldMode::Years);
    settings.values.clear();
    battery.loadSettings();
    EXPECT_EQ(battery.temperatureMode(), TemperatureUnit::Celsius);
    EXPECT_EQ(battery.ageMode(), AgeFieldMode::Days);
}

TEST_F(QDBatteryTest, TheRatedCapacityCountsForHealth)
{
    set("DesignCapacity", 7300);
    set("MaxCapacity", 5720);
    set("CurrentCapacity", 1430);
    refresh();
    EXPECT_EQ(battery.ReportedDesignCapacity(), 7300);
    EXPECT_EQ(battery.ActualDesignCapacity(), 7150);
    EXPECT_EQ(battery.DesignCapacity(), 7150);
    EXPECT_EQ(battery.StateOfHealth(), 80.0);
    EXPECT_EQ(battery.StateOfCharge(), 25.0);
}

TEST_F(QDBatteryTest, AnIdleBatteryOnTheAdapterKeepsItsTexts)
{
    set("AvgTimeToEmpty", 65535);
    refresh();
    expectState("Discharging...", "Discharging with", "Calculating...", "");
    set("ExternalConnected", true);
    refresh();
    expectState("Discharging...", "Discharging with", "Calculating...", "");
    EXPECT_EQ(battery.AdapterConnected(), text("Connected"));
}

TEST_F(QDBatteryTest, ChargingIsStrongerThanFull)
{
    set("ExternalConnected", true);
    set("FullyCharged", true);
    refresh();
    expectState("Charged", "Battery usage", "Battery fully charged", "");
    set("IsCharging", true);
    set("AvgTimeToFull", 95);
    refresh();
    expectState("Charging...", "Charging with", "Time until full", "1:35");
}

TEST_F(QDBatteryTest, TheHealthWordIsTheFirstSourcesOrStays)
{
    const auto source = [](const char* health) { return QVariantMap{{text("BatteryHealth"), text(health)}}; };
    computer.battery();
    computer.powerSources.sources = {source("Fair"), source("Good")};
    refresh();
    EXPECT_EQ(battery.BatteryHealth(), text("Fair"));
    EXPECT_EQ(battery.raw().size(), 2);
    computer.powerSources.sources = {QVariantMap(), source("Good")};
    battery.updateData();
    EXPECT_EQ(battery.BatteryHealth(), text("Fair"));
    computer.powerSources.sources->clear();
    battery.updateData();
    EXPECT_EQ(battery.BatteryHealth(), text("Fair"));
}

TEST_F(QDBatteryTest, TogglesItsUnitsAndStoresThem)
{
    MemoryUserDefaults& settings = computer.userDefaults.standardDefaults;
    set("Temperature", 3031);
    set("ManufactureDate", 17506); // 2 March 2014
    refresh();
    EXPECT_EQ(battery.Temperature(), text("30.0 °C"));
    battery.toggleTemperatureMode();
    EXPECT_EQ(battery.Temperature(), text("85.9 °F"));
    EXPECT_EQ(settings.values.value(text("QDBatteryTemperatureMode")), QVariant(1));
    QDBattery afterARestart(computer.platform, QString());
    afterARestart.open();
    afterARestart.updateData();
    EXPECT_EQ(afterARestart.Temperature(), text("85.9 °F"));
    settings.values.insert(text("QDBatteryTemperatureMode"), 2);
    battery.loadSettings();
    battery.toggleTemperatureMode();
    EXPECT_EQ(battery.Temperature(), text("303.1 K"));

    // The fake clock stands at 2 January 2015: ten whole months.
    for (const auto& [age, mode] : {std::pair("10 months", 1), std::pair("0.8 years", 2)}) {
        battery.toggleAge();
        EXPECT_EQ(battery.CustomAge(), text(age));
        EXPECT_EQ(settings.values.value(text("QDBatteryAgeMode")), QVariant(mode));
    }
    battery.toggleAge();
    EXPECT_EQ(battery.ageMode(), AgeFieldMode::Days);
}

TEST_F(QDBatteryTest, IsNamedBySerialNumberAndPackedDate)
{
    set("Manufacturer", text("SMP"));
    refresh();
    EXPECT_EQ(battery.Manufacturer(), text("Simplo"));
    EXPECT_EQ(battery.ManufacturerRaw(), text("SMP"));
    EXPECT_EQ(battery.manufacturer(false), text("Simplo"));
    EXPECT_EQ(battery.manufacturer(true), text("SMP"));
    EXPECT_EQ(battery.BatteryID(), text("cfcd208495d565ef66e7dff9f98764da")); // of "0"
    set("BatterySerialNumber", text("9G3310DDWAQ"));
    set("ManufactureDate", 17506);
    refresh();
    EXPECT_EQ(battery.BatteryID(), text("8f52f112925cf0e5d7d69c9a0992b23e")); // of "9G3310DDWAQ17506"
}

TEST_F(QDBatteryTest, TheAdapterGivesItsRatingOrNothing)
{
    refresh();
    EXPECT_EQ(battery.AdapterWatt(), std::nullopt);
    computer.powerSources.adapter = QVariantMap();
    EXPECT_EQ(battery.adapterWatt(), std::nullopt);
    computer.powerSources.adapter = QVariantMap{{text("Watts"), 60}};
    EXPECT_EQ(battery.adapterWatt(), text("60 Watts"));
}

TEST_F(QDBatteryTest, ASecondTimerRunsBesideTheFirst)
{
    battery.invokeTimer();
    battery.invokeTimer();
    ASSERT_EQ(computer.runLoop.timers.size(), 2U);
    for (const auto& timer : computer.runLoop.timers) {
        EXPECT_EQ(timer->interval, 5.0);
        EXPECT_EQ(timer->tolerance, 5.0);
        EXPECT_TRUE(timer->valid);
    }
    int refreshes = 0;
    QObject::connect(&battery, &QDBattery::changed, &battery, [&] { ++refreshes; });
    computer.runLoop.advance(5.0);
    EXPECT_EQ(refreshes, 2);
}

} // namespace
