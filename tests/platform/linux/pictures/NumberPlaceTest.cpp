#include "platform/linux/pictures/NumberPlace.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

TEST(NumberPlace, TwoFiguresFillTheSquareButForAMargin)
{
    const NumberPlace place = numberPlace({100, 65}, 100, false);
    EXPECT_EQ(place.number, QRectF(1, 4.5, 20, 13));
    EXPECT_TRUE(place.bolt.isEmpty());
}

TEST(NumberPlace, ThreeFiguresAreAsHighAsTwo)
{
    EXPECT_EQ(numberPlace({150, 65}, 100, false).number, QRectF(1, 4.5, 20, 13));
}

TEST(NumberPlace, OneFigureIsNoHigherThanTheSquare)
{
    EXPECT_EQ(numberPlace({40, 80}, 40, false).number, QRectF(6, 1, 10, 20));
}

TEST(NumberPlace, TheBoltStandsBelowTheNumber)
{
    const NumberPlace place = numberPlace({100, 60}, 100, true);
    EXPECT_EQ(place.number, QRectF(1, 1.25, 20, 12)) << "as large as without it";
    EXPECT_EQ(place.bolt, QRectF(7.5, 13.75, 7, 7));
    const NumberPlace high = numberPlace({40, 80}, 40, true);
    EXPECT_EQ(high.number, QRectF(7.875, 1, 6.25, 12.5)) << "it makes room";
    EXPECT_EQ(high.bolt, QRectF(7.5, 14, 7, 7));
}

TEST(NumberPlace, NoInkIsNoTrouble)
{
    const NumberPlace place = numberPlace({}, 0, true);
    EXPECT_TRUE(QRectF(0, 0, 22, 22).contains(place.bolt));
}

TEST(Bolt, LeansFromTheTopRightToTheBottomLeft)
{
    const Mask mask = boltMask(60, 60);
    const auto at = [&mask](int x, int y) {
        return int{mask.coverage[static_cast<std::size_t>(y) * 60 + static_cast<std::size_t>(x)]};
    };
    EXPECT_EQ(at(30, 30), 255);
    EXPECT_EQ(at(10, 36), 255);
    EXPECT_EQ(at(50, 23), 255);
    EXPECT_EQ(at(5, 5), 0);
    EXPECT_EQ(at(55, 55), 0);
    EXPECT_EQ(at(10, 50), 0);
    EXPECT_TRUE(boltMask(0, 0).isEmpty());
}

TEST(Bolt, HasTheSameOutlineInAnyBox)
{
    const auto steps = boltOutline(QRectF(10, 20, 100, 50));
    ASSERT_EQ(steps.size(), 7U);
    EXPECT_EQ(steps[0].command, 'M');
    EXPECT_EQ(steps[1].points, std::vector{QPointF(10, 53)});
    EXPECT_EQ(steps[6].command, 'Z');
}

} // namespace
} // namespace quindle
