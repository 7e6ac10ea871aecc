#include "mac/DemoMac.h"

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "mac/SerialNumberDecoding.h"
#include "tests/mac/ForbiddenPlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

TEST(DemoMode, ShowsItsValuesAndTouchesNothing)
{
    ForbiddenPlatform computer;
    const auto mac = QDMac::initWithDemoMode(computer.platform, true);
    EXPECT_EQ(mac->OSXVersion(), u("El Capitan"));
    EXPECT_EQ(mac->Model(), u("MacBookAir4,2"));
    EXPECT_EQ(mac->Type(), u("MacBook Air"));
    EXPECT_EQ(mac->Name(), u("Demo Computer"));
    EXPECT_EQ(mac->LongModel(), u("(13-inch, Late 2013)"));
    EXPECT_EQ(mac->Serial(), u("C02MN1TXF5YW"));
    EXPECT_EQ(mac->ManufactureDate().date(), QDate(2014, 5, 12));
    EXPECT_EQ(buildDate(*mac->Serial())->date(), mac->ManufactureDate().date());
    EXPECT_FALSE(mac->followBattery());
}

TEST(DemoMode, TheBatteryIsThere)
{
    ForbiddenPlatform computer;
    const auto mac = QDMac::initWithDemoMode(computer.platform, false);
    const QDBattery* battery = mac->Battery();
    ASSERT_NE(battery, nullptr);
    const std::pair<const char*, QVariant> values[] = {
        {"FullChargeCapacity", 4865},
        {"CycleCount", 293},
        {"BatteryHealth", u("Good")},
        {"StateOfCharge", 61.0},
        {"StateOfHealth", 89.0},
        {"Temperature", u("78.5 °F")},
        {"StateText", u("Discharging with")},
        {"WattThroughput", 4.61},
        {"CurrentCapacity", 2967},
        {"TimeRemaining", u("4:41")},
    };
    for (const auto& [name, value] : values)
        EXPECT_EQ(battery->property(name), value) << name;
    EXPECT_EQ(battery->property("ManufactureDate").toDateTime().date(), QDate(2014, 4, 4));
}

} // namespace
