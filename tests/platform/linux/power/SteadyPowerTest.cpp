#include <cerrno>
#include <map>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/linux/power/PowerSampler.h"
#include "tests/platform/linux/power/Patience.h"
#include "tests/platform/linux/power/RegistryKeys.h"
#include "tests/platform/linux/power/SupplyTree.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

const SupplyTree::Texts steadyBattery{{"type", "Battery"},         {"status", "Discharging"},
                                      {"charge_now", "2000000"},   {"charge_full", "4000000"},
                                      {"current_now", "-1000000"}, {"voltage_min_design", "11000000"},
                                      {"cycle_count", "7"}};

struct SteadyPowerTest : testing::Test
{
    SteadyPowerTest() { tree.add("BAT0", steadyBattery); }

    QVariantMap sample(PowerSampler& sampler)
    {
        sampler.expire();
        return sampler.sample()->batteryEntry;
    }

    /// A sample every 10 seconds for that long.
    void pass(std::chrono::seconds time)
    {
        for (const auto end = now + time; now < end;) {
            now += 10s;
            sample(steady);
        }
    }

    PowerSampler samplerHere()
    {
        return PowerSampler(
            tree.path(),
            [this](int file, const char* name, char* buffer, std::size_t size) {
                return name == failing ? ssize_t{-EIO} : readDescriptor(file, name, buffer, size);
            },
            [this] { return now; }, endlessPatience);
    }

    SupplyTree tree;
    std::chrono::milliseconds now{0};
    std::string failing;
    PowerSampler steady = samplerHere();
};

TEST_F(SteadyPowerTest, WhenNothingHasChangedAsLongAsEstimatesLookBack)
{
    sample(steady);
    pass(50s);
    EXPECT_FALSE(steady.isSteady());
    pass(10s);
    EXPECT_TRUE(steady.isSteady());
    tree.write("BAT0", "charge_now", "1990000\n");
    pass(10s);
    EXPECT_FALSE(steady.isSteady());
}

TEST_F(SteadyPowerTest, SoonerWhereNothingIsEstimated)
{
    tree.write("BAT0", "status", "Full\n");
    sample(steady);
    pass(10s);
    EXPECT_FALSE(steady.isSteady());
    pass(10s);
    EXPECT_TRUE(steady.isSteady());
}

TEST_F(SteadyPowerTest, NeverWhereAnEstimateMovesOnWithTheClock)
{
    tree.remove("BAT0");
    auto withoutCurrent = steadyBattery;
    withoutCurrent.erase("current_now");
    tree.add("BAT0", withoutCurrent);
    sample(steady);
    pass(200s);
    EXPECT_FALSE(steady.isSteady());
}

TEST_F(SteadyPowerTest, NotWhileAValueStandsIn)
{
    sample(steady);
    pass(100s);
    ASSERT_TRUE(steady.isSteady());
    failing = "cycle_count";
    pass(10s);
    EXPECT_FALSE(steady.isSteady());
    pass(100s);
    EXPECT_FALSE(steady.isSteady());
}

TEST_F(SteadyPowerTest, ExpectsTheFirstTimeSoonAfterAStartOrAPlug)
{
    std::vector<std::chrono::milliseconds> expected;
    steady.setTimeExpected([&](std::chrono::milliseconds in) { expected.push_back(in); });
    EXPECT_EQ(sample(steady).value(timeToEmptyKey), QVariant(qint64{65535}));
    ASSERT_EQ(expected, std::vector<std::chrono::milliseconds>{5s});
    now += expected.back();
    EXPECT_EQ(sample(steady).value(timeToEmptyKey), QVariant(qint64{120}));
    pass(20s);
    EXPECT_EQ(expected.size(), 1U);
    tree.write("BAT0", "status", "Charging\n");
    sample(steady);
    EXPECT_EQ(expected.size(), 2U);
    tree.write("BAT0", "status", "Full\n");
    sample(steady);
    EXPECT_EQ(expected.size(), 2U) << "there will be none";
}

TEST_F(SteadyPowerTest, StillMomentsCountAsSamples)
{
    PowerSampler resting = samplerHere();
    std::vector<std::chrono::milliseconds> moments;
    resting.setStillMoments([&] { return std::exchange(moments, {}); });
    sample(resting);
    sample(steady);
    for (int tick = 1; tick <= 5; ++tick) {
        pass(10s);
        moments.push_back(now);
    }
    tree.write("BAT0", "current_now", "-3000000\n");
    pass(10s);
    EXPECT_EQ(sample(resting), sample(steady)); // an average over a minute
    EXPECT_TRUE(moments.empty());
}

TEST_F(SteadyPowerTest, AValueStandsInFromTheLastStillMomentOn)
{
    std::vector<std::chrono::milliseconds> moments;
    steady.setStillMoments([&] { return std::exchange(moments, {}); });
    ASSERT_EQ(sample(steady).value(cyclesKey), QVariant(qint64{7}));
    now = 50s;
    moments = {40s, 50s};
    now = 60s;
    failing = "cycle_count";
    EXPECT_EQ(sample(steady).value(cyclesKey), QVariant(qint64{7}));
    now = 80s;
    EXPECT_FALSE(sample(steady).value(cyclesKey).isValid());
}

} // namespace
