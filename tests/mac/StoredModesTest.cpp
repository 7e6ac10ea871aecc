#include "mac/StoredModes.h"

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

struct StoredModesTest : testing::Test
{
    StoredModesTest()
    {
        computer.setComputer(latin("MacBookAir4,2"), latin("C02MN1TXF5YW"));
        computer.battery() = {{latin("Temperature"), qint64{3031}},
                              {latin("ManufactureDate"), qint64{17506}}};
        mac = QDMac::init(computer.platform);
    }

    QVariantMap& stored() { return computer.userDefaults.standardDefaults.values; }

    bool follow() { return followStoredModes(*mac, computer.userDefaults.standardDefaults); }

    FakePlatform computer;
    std::unique_ptr<QDMac> mac;
};

TEST_F(StoredModesTest, AnotherProcessHasStoredAreShown)
{
    const QString celsius = mac->Battery()->Temperature();
    stored() = {{latin("QDBatteryTemperatureMode"), qint64{1}},
                {latin("QDBatteryAgeMode"), qint64{2}},
                {latin("QDMacAgeMode"), qint64{2}}};
    EXPECT_TRUE(follow());
    EXPECT_EQ(mac->Battery()->temperatureMode(), TemperatureUnit::Fahrenheit);
    EXPECT_NE(mac->Battery()->Temperature(), celsius);
    EXPECT_EQ(mac->Battery()->ageMode(), AgeFieldMode::Years);
    EXPECT_EQ(mac->ageMode(), 2);
    EXPECT_TRUE(mac->CustomAge().value_or(QString()).endsWith(latin("years")));
    EXPECT_TRUE(computer.userDefaults.standardDefaults.writes.isEmpty())
        << "could undo a further click there";
}

TEST_F(StoredModesTest, OfItsOwnChangeNothing)
{
    mac->toggleAge();
    mac->Battery()->toggleTemperatureMode();
    const QStringList writes = computer.userDefaults.standardDefaults.writes;
    int changes = 0;
    QObject::connect(mac->Battery(), &QDBattery::changed, [&changes] { ++changes; });
    EXPECT_FALSE(follow());
    EXPECT_EQ(computer.userDefaults.standardDefaults.writes, writes);
    EXPECT_EQ(changes, 0);
}

TEST_F(StoredModesTest, NumbersThatAreNoModesAreLeftAlone)
{
    stored() = {{latin("QDBatteryTemperatureMode"), qint64{1}},
                {latin("QDBatteryAgeMode"), qint64{3}},
                {latin("QDMacAgeMode"), qint64{-1}}};
    EXPECT_FALSE(follow());
    EXPECT_EQ(mac->Battery()->temperatureMode(), TemperatureUnit::Celsius) << "reading both is fatal";
    EXPECT_EQ(mac->ageMode(), 0);
}

TEST_F(StoredModesTest, WithoutABatteryTheComputersIsFollowed)
{
    computer.registry.entries.erase(latin("AppleSmartBattery"));
    mac = QDMac::init(computer.platform);
    ASSERT_FALSE(mac->Battery());
    stored() = {{latin("QDMacAgeMode"), qint64{1}}};
    EXPECT_TRUE(follow());
    EXPECT_EQ(mac->ageMode(), 1);
}

TEST_F(StoredModesTest, FromANumberThatIsNoModeTheComputersComesBack)
{
    stored() = {{latin("QDMacAgeMode"), qint64{5}}};
    mac = QDMac::init(computer.platform);
    ASSERT_EQ(mac->ageMode(), 5);
    stored() = {{latin("QDMacAgeMode"), qint64{0}}};
    EXPECT_TRUE(follow());
    EXPECT_EQ(mac->ageMode(), 0);
}

} // namespace
