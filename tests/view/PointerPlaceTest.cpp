#include "view/PointerPlace.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

TEST(PointerPlace, FollowsTheScaleOfItsScreen)
{
    // A screen of 1920 by 1080 pixels, and to the right of it one of 3840 by 2160 shown at twice the size.
    const std::vector<ScaledScreen> screens{{QRect(0, 0, 1920, 1080), 1}, {QRect(1920, 0, 1920, 1080), 2}};
    const std::pair<QPoint, QPoint> cases[]{
        {{0, 0}, {0, 0}},
        {{1919, 1079}, {1919, 1079}},
        {{1920, 0}, {1920, 0}},
        {{1920 + 400, 300}, {1920 + 200, 150}},
        {{1920 + 3839, 2159}, {1920 + 1919, 1079}},
    };
    for (const auto& [point, place] : cases)
        EXPECT_EQ(pointerPlace(point, screens), place) << point.x() << ' ' << point.y();
}

TEST(PointerPlace, WithFractions)
{
    EXPECT_EQ(pointerPlace({150, 300}, {{QRect(0, 0, 1280, 720), 1.5}}), QPoint(100, 200));
}

TEST(PointerPlace, APointOnNoScreenStays)
{
    EXPECT_EQ(pointerPlace({-50, 20}, {{QRect(0, 0, 800, 600), 1}}), QPoint(-50, 20));
    EXPECT_EQ(pointerPlace({3, 4}, {}), QPoint(3, 4));
}

} // namespace
