// A battery whose reads fail now and then was shown with "0.0%" or "inf%" until the next refresh.

#include <random>

#include "tests/faults/HelperOnSupplies.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct FailedReadShowsZeroTest : testing::Test, HelperOnSupplies
{
    FailedReadShowsZeroTest()
    {
        tree.add("BAT0", dischargingBattery());
        tree.add("AC", {{"type", "Mains"}, {"online", "0"}});
    }

    void launchWithEveryValue() { launch(QStringLiteral("%p% %r %w W %mA mA %t %l %s")); }

    void expectTheSameShown(int refreshes)
    {
        passTenSeconds();
        EXPECT_EQ(title(), QStringLiteral("50.0% 3:00 12.0 W -1000 mA 30.1 12 \u2B07\uFE0E"));
        const QString toolTipBefore = toolTip();
        for (int refresh = 0; refresh < refreshes; ++refresh) {
            passTenSeconds();
            ASSERT_EQ(title(), QStringLiteral("50.0% 3:00 12.0 W -1000 mA 30.1 12 \u2B07\uFE0E")) << refresh;
            ASSERT_EQ(toolTip(), toolTipBefore) << refresh;
        }
    }
};

TEST_F(FailedReadShowsZeroTest, EveryThirdReadFails)
{
    read = [count = 0](auto descriptor, auto... rest) mutable -> ssize_t {
        return ++count % 3 == 0 ? -EIO : readDescriptor(descriptor, rest...);
    };
    launchWithEveryValue();
    expectTheSameShown(500);
}

TEST_F(FailedReadShowsZeroTest, OneReadInThreeFailsAtRandom)
{
    bool isFaulty = false;
    std::mt19937 random(20261121);
    read = [&](auto descriptor, auto... rest) -> ssize_t {
        return isFaulty && random() % 3 == 0 ? -EIO : readDescriptor(descriptor, rest...);
    };
    launchWithEveryValue();
    isFaulty = true;
    expectTheSameShown(500);
}

TEST_F(FailedReadShowsZeroTest, AWholeBatteryThatFailsForTwoRefreshes)
{
    bool isFaulty = false;
    read = [&](auto descriptor, auto... rest) -> ssize_t {
        return isFaulty ? -EIO : readDescriptor(descriptor, rest...);
    };
    launch(QStringLiteral("%p%"));
    EXPECT_EQ(title(), QStringLiteral("50.0%"));
    isFaulty = true;
    passTenSeconds();
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("50.0%"));
    isFaulty = false;
    tree.write("BAT0", "charge_now", "2400000\n");
    tree.write("BAT0", "capacity", "40\n");
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("40.0%"));
}

} // namespace
