#include "view/HueAdjust.h"

#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "menubar/ProgressIndicator.h"

using namespace quindle;

namespace {

QColor turned(double angle, const QColor& color)
{
    HueFilter filter;
    filter.setInputAngle(angle);
    return filtered(color, filter);
}

TEST(HueAdjust, TurnsByRadians)
{
    const QColor blue = QColor::fromHsv(240, 200, 210, 120);
    // 4 rad is 229.18 degrees, -16 rad 163.27 and 241 rad 128.28 past whole turns.
    const std::pair<double, int> cases[]{{0, 240}, {4, 109}, {-16, 43}, {241, 8}, {std::numbers::pi, 60}};
    for (const auto& [angle, hue] : cases)
        EXPECT_NEAR(turned(angle, blue).hsvHue(), hue, 1) << angle;
}

TEST(HueAdjust, KeepsEverythingElse)
{
    const QColor color = QColor::fromHsv(240, 200, 210, 120);
    const QColor other = turned(4, color);
    EXPECT_NEAR(other.hsvSaturation(), 200, 1);
    EXPECT_EQ(other.value(), 210);
    EXPECT_EQ(other.alpha(), 120);
    EXPECT_EQ(other.spec(), color.spec());
}

TEST(HueAdjust, WholeTurnsMakeNoDifference)
{
    const QColor color = QColor::fromHsv(200, 200, 210);
    EXPECT_EQ(turned(2 * std::numbers::pi, color).hsvHue(), 200);
    EXPECT_EQ(turned(-40 * std::numbers::pi, color).hsvHue(), 200);
}

TEST(HueAdjust, GreysStay)
{
    for (const QColor& grey : {QColor(Qt::black), QColor(Qt::white), QColor(90, 90, 90, 40), QColor()})
        EXPECT_EQ(turned(4, grey), grey);
}

TEST(HueAdjust, NoAngleTurnsNothing)
{
    const QColor color(10, 20, 200);
    EXPECT_EQ(turned(std::numeric_limits<double>::quiet_NaN(), color), color);
    EXPECT_EQ(turned(std::numeric_limits<double>::infinity(), color), color);
}

} // namespace
