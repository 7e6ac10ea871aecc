// A battery that came after the start was never found, one that went left "nan%" behind, and one whose driver
// was not ready yet was shown as "nan%".

#include "tests/faults/HelperOnSupplies.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct LateBatteryTest : testing::Test, HelperOnSupplies
{
    LateBatteryTest() { tree.add("AC", {{"type", "Mains"}, {"online", "1"}}); }

    QString view() const { return delegate->shownView()->name; }
    QString menuTitle() { return interface.statusMenu().rows().front().text; }
};

TEST_F(LateBatteryTest, OneThatComesIsFoundByTheNextTimer)
{
    launch(QStringLiteral("%p%"));
    EXPECT_EQ(view(), QStringLiteral("noBatteryView"));
    EXPECT_EQ(menuTitle(), QStringLiteral("No battery"));
    tree.add("BAT0", dischargingBattery());
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("50.0%"));
    EXPECT_EQ(menuTitle(), QStringLiteral("50.0%"));
    EXPECT_EQ(view(), QStringLiteral("menuView"));
    tree.write("BAT0", "charge_now", "1500000\n");
    tree.write("BAT0", "capacity", "25\n");
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("25.0%"));
}

TEST_F(LateBatteryTest, OneThatGoesLeavesNoBattery)
{
    tree.add("BAT0", dischargingBattery());
    launch(QStringLiteral("%p%"));
    ASSERT_EQ(title(), QStringLiteral("50.0%"));
    tree.remove("BAT0");
    now += std::chrono::seconds(5);
    others.runLoop.advance(5); // the battery's own timer
    EXPECT_EQ(delegate->myMac().Battery()->StateOfCharge(), 50);
    passTenSeconds();
    EXPECT_EQ(title(), QString());
    EXPECT_EQ(menuTitle(), QStringLiteral("No battery"));
    EXPECT_EQ(view(), QStringLiteral("noBatteryView"));
    EXPECT_EQ(delegate->myMac().Battery(), nullptr);
}

TEST_F(LateBatteryTest, ABatteryThatComesAndGoesLeavesNoTimers)
{
    launch(QStringLiteral("%p%"));
    const std::size_t without = others.runLoop.timers.size();
    for (int time = 0; time < 3; ++time) {
        tree.add("BAT0", dischargingBattery());
        passTenSeconds();
        EXPECT_EQ(title(), QStringLiteral("50.0%"));
        tree.remove("BAT0");
        passTenSeconds();
        EXPECT_EQ(title(), QString());
    }
    std::size_t running = 0;
    for (const auto& timer : others.runLoop.timers)
        running += timer->valid ? 1 : 0;
    EXPECT_EQ(running, without);
}

TEST_F(LateBatteryTest, OneWhoseDriverIsNotReadyIsNoneUntilItIs)
{
    tree.add("BAT0", {{"type", "Battery"},
                      {"present", "1"},
                      {"status", "Unknown"},
                      {"energy_now", "0"},
                      {"voltage_now", "0"}});
    launch(QStringLiteral("%p%"));
    EXPECT_EQ(title(), QString());
    EXPECT_EQ(view(), QStringLiteral("noBatteryView"));
    tree.write("BAT0", "energy_now", "25000000\n");
    tree.write("BAT0", "energy_full", "50000000\n");
    tree.write("BAT0", "status", "Discharging\n");
    sampler.lookAgain(); // files come with the driver's event
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("50.0%"));
}

TEST_F(LateBatteryTest, ACounterWithSwappedBytesGivesWayToThePercentage)
{
    tree.add("BAT0", {{"type", "Battery"},
                      {"status", "Discharging"},
                      {"capacity", "87"},
                      {"charge_now", "56848000"},
                      {"charge_full", "4998000"}});
    launch(QStringLiteral("%p%"));
    EXPECT_EQ(title(), QStringLiteral("87.0%"));
}

TEST_F(LateBatteryTest, APowerWithoutAVoltageIsShownAsTheDriverReportsIt)
{
    tree.add("BAT0", {{"type", "Battery"},
                      {"status", "Discharging"},
                      {"energy_now", "23500000"},
                      {"energy_full", "25000000"},
                      {"power_now", "7100000"}});
    launch(QStringLiteral("%w W"));
    EXPECT_EQ(title(), QStringLiteral("7.1 W"));
}

} // namespace
