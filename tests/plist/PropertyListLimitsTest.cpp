#include "plist/PropertyListLimits.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

constexpr quint64 million = quint64{1024} * 1024;

TEST(PropertyListLimits, OneValueForEachByteAndSomeMore)
{
    PropertyListLimits limits(1000);
    EXPECT_TRUE(limits.spend(1000));
    EXPECT_TRUE(limits.spend(quint64{64} * 1024));
    EXPECT_FALSE(limits.spend(1));
    EXPECT_FALSE(PropertyListLimits(0).spend(~quint64{0}));
}

TEST(PropertyListLimits, WhatIsPutIntoAContainerAddsUp)
{
    const PropertyListLimits limits(0);
    Extent whole{.height = 1};
    EXPECT_TRUE(limits.put({.weight = 3, .height = 0}, whole));
    EXPECT_TRUE(limits.put({.weight = 5, .height = 7}, whole));
    EXPECT_TRUE(limits.put({}, whole));
    EXPECT_EQ(whole.weight, 10u);
    EXPECT_EQ(whole.height, 8);
}

TEST(PropertyListLimits, UnfoldedWeightIsBounded)
{
    const auto isWithin = [](quint64 size, quint64 weight) {
        Extent whole{.height = 1};
        return PropertyListLimits(size).put({.weight = weight - 1}, whole);
    };
    EXPECT_TRUE(isWithin(0, 4 * million));
    EXPECT_FALSE(isWithin(0, 4 * million + 1));
    EXPECT_TRUE(isWithin(1000, 4 * million + 64'000));
    EXPECT_FALSE(isWithin(1000 * million, 69 * million));
}

TEST(PropertyListLimits, HeightIsBounded)
{
    const PropertyListLimits limits(0);
    Extent whole{.height = 1};
    EXPECT_TRUE(limits.put({.height = mostPropertyListLevels - 1}, whole));
    EXPECT_FALSE(limits.put({.height = mostPropertyListLevels}, whole));
}

} // namespace
