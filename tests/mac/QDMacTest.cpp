#include "mac/QDMac.h"

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "tests/mac/ForbiddenPlatform.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// The demonstration computer's own values, as a platform reports them. The fake clock stands at 2 January
/// 2015.
struct QDMacTest : testing::Test
{
    QDMacTest()
    {
        computer.setComputer(text("MacBookAir4,2"), text("C02MN1TXF5YW")); // of 12 May 2014
        computer.systemFiles.files[text("/System/Library/CoreServices/SystemVersion.plist")] = {
            {text("ProductVersion"), text("10.11.6")}};
    }

    ScopedTimeZone zone{"UTC"};
    FakePlatform computer;
};

TEST_F(QDMacTest, ReadsTheComputerOnce)
{
    const auto mac = QDMac::init(computer.platform);
    EXPECT_EQ(mac->OSXVersion(), text("OS X El Capitan"));
    EXPECT_EQ(mac->Model(), text("MacBookAir4,2"));
    EXPECT_EQ(mac->Serial(), text("C02MN1TXF5YW"));
    EXPECT_EQ(mac->LongModel(), text("(11-inch, Late 2013)")); // the code F5YW is known without asking
    EXPECT_EQ(mac->ManufactureDate().date(), QDate(2014, 5, 12));
    EXPECT_EQ(mac->ManufactureDateString(), text("2014-05-12"));
    EXPECT_EQ(mac->CustomAge(), text("235 days"));
    EXPECT_EQ(mac->Name(), text("Test Computer"));
    EXPECT_EQ(mac->Type(), text("MacBook Air"));
    EXPECT_TRUE(computer.urlSession.asked.isEmpty());
}

TEST_F(QDMacTest, NothingIsKnownOfASilentComputer)
{
    computer.registry.entries.clear();
    computer.systemFiles.files.clear();
    const auto mac = QDMac::init(computer.platform);
    EXPECT_EQ(mac->OSXVersion(), std::nullopt);
    EXPECT_EQ(mac->Model(), std::nullopt);
    EXPECT_EQ(mac->Serial(), std::nullopt);
    EXPECT_EQ(mac->LongModel(), std::nullopt);
    EXPECT_EQ(mac->Type(), text(""));
    EXPECT_EQ(mac->ManufactureDate(), computer.clock.now());
    EXPECT_FALSE(mac->knowsManufactureDate());
    EXPECT_EQ(mac->CustomAge(), text("0 days"));
    EXPECT_EQ(mac->getDataForSaving(false), std::nullopt);
    EXPECT_EQ(mac->generateMacID(), text("852438d026c018c4307b916406f98c62")); // of "nil"
}

TEST_F(QDMacTest, IsNamedBySerialNumberAndWrappedModelReadAnew)
{
    const auto mac = QDMac::init(computer.platform);
    EXPECT_EQ(mac->generateMacID(), text("5fb707dd0f666300c7f8e5cf00917964"));
    computer.expert().remove(text("IOPlatformSerialNumber"));
    EXPECT_EQ(mac->generateMacID(), text("40cd40bb7dd9cfa167c4430b1360dff1"));
}

TEST_F(QDMacTest, TheBatteryIsMadeOnlyWhereThereIsOne)
{
    const auto without = QDMac::init(computer.platform);
    EXPECT_EQ(without->Battery(), nullptr);
    EXPECT_TRUE(computer.runLoop.timers.empty());
    computer.battery().insert(text("CycleCount"), 57);
    const auto with = QDMac::init(computer.platform);
    ASSERT_NE(with->Battery(), nullptr);
    EXPECT_EQ(with->Battery()->CycleCount(), 57);
    EXPECT_EQ(with->Battery()->MacModel(), text("MacBookAir4,2"));
    EXPECT_EQ(computer.runLoop.timers.size(), 1U);
}

TEST_F(QDMacTest, TogglesDaysMonthsYears)
{
    const auto mac = QDMac::init(computer.platform);
    const auto& stored = computer.userDefaults.standardDefaults.values;
    for (const auto& [age, mode] :
         {std::pair("7 months", 1), std::pair("0.6 years", 2), std::pair("235 days", 0)}) {
        mac->toggleAge();
        EXPECT_EQ(mac->CustomAge(), text(age));
        EXPECT_EQ(stored.value(text("QDMacAgeMode")), QVariant(mode));
    }
}

TEST_F(QDMacTest, TheSerialNumbersParts)
{
    struct Row
    {
        const char* serial;
        const char* date;
        const char* code;
    };
    constexpr Row rows[] = {
        {"C02MN1TXF5YW", "MN", "F5YW"},
        {"W80217QP7XJ", "021", "7XJ"},
        {"C02MN1TXF5", "", ""},
        {"C02MN1TXF5YWX", "", ""},
        {"", "", ""},
    };
    const auto mac = QDMac::init(computer.platform);
    for (const Row& row : rows) {
        computer.setComputer(text("MacBookAir4,2"), text(row.serial));
        EXPECT_EQ(mac->getBuildDateSerialString(), text(row.date)) << row.serial;
        EXPECT_EQ(mac->getModelStringFromSerial(), text(row.code)) << row.serial;
    }
}

TEST_F(QDMacTest, TheHardwareImageIsTheModelsInTheSystemsTable)
{
    const auto mac = QDMac::init(computer.platform);
    QVariantMap& table = computer.systemFiles.files[QDMac::privateFrameworksURL()];
    EXPECT_EQ(mac->hardwareImageName(), std::nullopt);
    table.insert(text("MacBookAir4,2"), QVariantMap());
    EXPECT_EQ(mac->hardwareImageName(), std::nullopt);
    table.insert(text("MacBookAir4,2"), QVariantMap{{text("hardwareImageName"), text("air-13")}});
    EXPECT_EQ(mac->hardwareImageName(), text("air-13"));
    computer.setComputer(text("MacBookAir4,1"), text("C02MN1TXF5YW"));
    EXPECT_EQ(mac->hardwareImageName(), std::nullopt);
}

TEST(EmptyComputer, HasOnlyItsInitialValues)
{
    ForbiddenPlatform computer;
    const auto mac = QDMac::initWithHost(computer.platform, text("host"), text("user"), text("word"));
    EXPECT_EQ(mac->ManufactureDate(), computer.clock.now());
    EXPECT_EQ(mac->Battery(), nullptr);
    EXPECT_EQ(mac->ageMode(), 0);
    for (const char* name :
         {"OSXVersion", "Model", "Type", "Name", "LongModel", "ManufactureDateString", "Serial", "CustomAge"})
        EXPECT_FALSE(mac->property(name).isValid()) << name;
}

} // namespace
