#include "app/BatterySample.h"

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "tests/support/FakePlatform.h"

using namespace quindle;

namespace {

struct BatterySampleTest : testing::Test
{
    BatterySampleTest()
    {
        set("CurrentCapacity", qint64{3000});
        set("MaxCapacity", qint64{6000});
        set("Voltage", qint64{12'000});
        set("Amperage", qint64{-1000});
    }

    void set(const char* key, const QVariant& value) { platform.battery()[QLatin1String(key)] = value; }

    void setState(bool isCharging, bool isOnMains, bool isFull)
    {
        set("IsCharging", isCharging);
        set("ExternalConnected", isOnMains);
        set("FullyCharged", isFull);
    }

    std::optional<Sample> sample()
    {
        QDBattery battery(platform.platform, QString());
        battery.open();
        battery.updateData();
        return batterySample(battery, 1'763'806'800);
    }

    FakePlatform platform;
};

TEST_F(BatterySampleTest, IsWhatTheBatteryDoes)
{
    EXPECT_EQ(sample(), (Sample{1'763'806'800, 50, -12, SampleState::Discharging}));
    set("Amperage", qint64{2000});
    setState(true, true, false);
    EXPECT_EQ(sample(), (Sample{1'763'806'800, 50, 24, SampleState::Charging}));
}

TEST_F(BatterySampleTest, HasAState)
{
    struct Case
    {
        bool isCharging;
        bool isOnMains;
        bool isFull;
        SampleState state;
    };
    for (const Case& entry :
         {Case{false, false, false, SampleState::Discharging},
          Case{false, false, true, SampleState::Discharging}, Case{true, true, false, SampleState::Charging},
          Case{true, false, false, SampleState::Charging}, Case{true, true, true, SampleState::Charging},
          Case{false, true, true, SampleState::Full}, Case{false, true, false, SampleState::Unknown}}) {
        setState(entry.isCharging, entry.isOnMains, entry.isFull);
        EXPECT_EQ(sample()->state, entry.state)
            << entry.isCharging << ' ' << entry.isOnMains << ' ' << entry.isFull;
    }
}

TEST_F(BatterySampleTest, HasThePowerThatFlowsOutWhileItIsPluggedIn)
{
    setState(false, true, false);
    EXPECT_EQ(sample()->power, -12);
    set("Amperage", qint64{0});
    EXPECT_EQ(sample()->power, 0);
}

TEST_F(BatterySampleTest, HasNoPowerThatIsNotKnown)
{
    for (const char* key : {"Voltage", "Amperage"}) {
        const QVariantMap before = platform.battery();
        platform.battery().remove(QLatin1String(key));
        EXPECT_EQ(sample()->power, std::nullopt) << key;
        platform.battery() = before;
    }
}

TEST_F(BatterySampleTest, OfMoreThanFullIsFull)
{
    set("CurrentCapacity", qint64{6200});
    EXPECT_EQ(sample()->charge, 100);
}

TEST_F(BatterySampleTest, IsNoneWithoutACharge)
{
    set("MaxCapacity", qint64{0});
    EXPECT_EQ(sample(), std::nullopt);
}

} // namespace
