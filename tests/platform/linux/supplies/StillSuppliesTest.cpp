#include <string>

#include <QFile>
#include <gtest/gtest.h>

#include "platform/linux/supplies/StillSupplies.h"
#include "tests/platform/linux/power/SupplyTree.h"

using namespace quindle;

namespace {

const SupplyTree::Texts stillBattery{{"type", "Battery"},
                                     {"uevent", "POWER_SUPPLY_CHARGE_NOW=1000"},
                                     {"charge_now", "1000"},
                                     {"charge_control_end_threshold", "80"}};

/// Counts the reads, and fails those of one file.
struct StillSuppliesTest : testing::Test
{
    StillSuppliesTest() { tree.add("BAT0", stillBattery); }

    SupplyTree tree;
    int limitReads = 0;
    std::string failing;
    StillSupplies supplies{tree.path(), [this](int file, const char* name, char* buffer, std::size_t size) {
                               if (failing == name)
                                   return ssize_t{-EIO};
                               limitReads += std::string(name) == "charge_control_end_threshold" ? 1 : 0;
                               return readDescriptor(file, name, buffer, size);
                           }};
};

TEST_F(StillSuppliesTest, AreStillUntilTheUeventSaysSomethingElse)
{
    ASSERT_TRUE(supplies.begin());
    for (int look = 0; look < 10; ++look)
        EXPECT_TRUE(supplies.isStill());
    tree.write("BAT0", "uevent", "POWER_SUPPLY_CHARGE_NOW=1001");
    EXPECT_FALSE(supplies.isStill());
    EXPECT_FALSE(supplies.isStill()); // until it begins anew
    ASSERT_TRUE(supplies.begin());
    EXPECT_TRUE(supplies.isStill());
}

TEST_F(StillSuppliesTest, AnyFileOfACollectedFolderCounts)
{
    ASSERT_TRUE(supplies.begin());
    tree.write("BAT0", "charge_now", "1001");
    EXPECT_FALSE(supplies.isStill());
}

TEST_F(StillSuppliesTest, ASupplyThatComesOrGoesCounts)
{
    ASSERT_TRUE(supplies.begin());
    tree.add("AC", {{"type", "Mains"}, {"uevent", "POWER_SUPPLY_ONLINE=1"}});
    EXPECT_FALSE(supplies.isStill());
    ASSERT_TRUE(supplies.begin());
    tree.remove("AC");
    EXPECT_FALSE(supplies.isStill());
}

TEST_F(StillSuppliesTest, AFileThatFailsCounts)
{
    ASSERT_TRUE(supplies.begin());
    failing = "uevent";
    EXPECT_FALSE(supplies.isStill());
    EXPECT_FALSE(supplies.begin());
}

TEST_F(StillSuppliesTest, TheChargeLimitIsReadEveryThirdTime)
{
    ASSERT_TRUE(supplies.begin());
    limitReads = 0;
    for (int look = 0; look < 9; ++look)
        EXPECT_TRUE(supplies.isStill());
    EXPECT_EQ(limitReads, 3);
}

TEST_F(StillSuppliesTest, ADevicesBatteryIsNotRead)
{
    tree.add("mouse", {{"type", "Battery"}, {"scope", "Device"}, {"uevent", "POWER_SUPPLY_CAPACITY=5"}});
    StillSupplies withMouse(tree.path(), [](int file, const char* name, char* buffer, std::size_t size) {
        const ssize_t result = readDescriptor(file, name, buffer, size);
        EXPECT_FALSE(std::string(buffer, static_cast<std::size_t>(result)).find("CAPACITY") !=
                     std::string::npos);
        return result;
    });
    ASSERT_TRUE(withMouse.begin());
    EXPECT_TRUE(withMouse.isStill());
}

TEST_F(StillSuppliesTest, WhatCannotBeWatchedIsNotStill)
{
    EXPECT_FALSE(supplies.isStill()); // nothing was begun
    EXPECT_FALSE(StillSupplies("/nowhere").begin());
    tree.add("BAT1", {{"type", "Battery"}, {"charge_now", "1000"}}); // no uevent
    EXPECT_FALSE(supplies.begin());
}

TEST(StillSupplies, TooManyAreNotWatched)
{
    const SupplyTree tree;
    for (int number = 0; number < 17; ++number)
        tree.add("BAT" + std::to_string(number), stillBattery);
    EXPECT_FALSE(StillSupplies(tree.path()).begin());
}

} // namespace
