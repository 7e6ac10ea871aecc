#include "charts/LinearScale.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

TEST(LinearScale, GoesThereAndBack)
{
    const LinearScale scale({100, 200}, {10, 60});
    EXPECT_DOUBLE_EQ(scale.pixel(100), 10);
    EXPECT_DOUBLE_EQ(scale.pixel(150), 35);
    EXPECT_DOUBLE_EQ(scale.pixel(220), 70) << "also outside";
    EXPECT_DOUBLE_EQ(scale.value(35), 150);
    EXPECT_DOUBLE_EQ(scale.value(0), 80);
}

TEST(LinearScale, RunsUpwardsWherePixelsRunDown)
{
    const LinearScale scale({0, 100}, {300, 100});
    EXPECT_DOUBLE_EQ(scale.pixel(0), 300);
    EXPECT_DOUBLE_EQ(scale.pixel(100), 100);
    EXPECT_DOUBLE_EQ(scale.value(200), 50);
}

TEST(LinearScale, WithoutALengthIsInTheMiddle)
{
    EXPECT_DOUBLE_EQ(LinearScale({5, 5}, {0, 10}).pixel(5), 5);
    EXPECT_DOUBLE_EQ(LinearScale({5, 5}, {0, 10}).pixel(99), 5);
    EXPECT_DOUBLE_EQ(LinearScale({5, 9}, {3, 3}).value(3), 5);
}

} // namespace
