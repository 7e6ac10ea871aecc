#include "charts/ChartLayout.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

ChartContent someContent()
{
    ChartContent content;
    content.moments = {0, 1000};
    content.series.resize(1);
    content.series[0].points = {{0, 10}, {500, 20}, {1000, 110}};
    return content;
}

TEST(ChartLayout, ReachesOverWhatIsSeen)
{
    const ChartContent content = someContent();
    const AxisSpan all = valuesSeen(content, content.moments);
    EXPECT_DOUBLE_EQ(all.from, 10 - 6);
    EXPECT_DOUBLE_EQ(all.to, 110 + 6);
    EXPECT_DOUBLE_EQ(valuesSeen(content, {0, 600}).to, 20 + 0.6);
}

TEST(ChartLayout, ReachesOverReferenceLinesAndProjection)
{
    ChartContent content = someContent();
    content.lines = {{200, QStringLiteral("Design")}};
    content.projection = ChartProjection{{1000, 110}, {2000, 60}, 105, 115, -40, 80, ChartInk::Wear};
    EXPECT_GT(valuesSeen(content, {0, 600}).to, 200);
    EXPECT_GT(valuesSeen(content, {0, 600}).from, -40) << "the projection is not seen";
    EXPECT_LT(valuesSeen(content, {0, 2000}).from, -40);
}

TEST(ChartLayout, AlwaysHasALength)
{
    EXPECT_EQ(valuesSeen({}, {0, 1}), (AxisSpan{0, 1}));
    ChartContent content = someContent();
    content.series[0].points = {{0, 50}, {10, 50}};
    EXPECT_EQ(valuesSeen(content, {0, 10}), (AxisSpan{47, 53}));
    content.valuesIncludeZero = true;
    EXPECT_EQ(valuesSeen(content, {0, 10}), (AxisSpan{-3, 53}));
    content.values = AxisSpan{0, 100};
    EXPECT_EQ(valuesSeen(content, {0, 10}), (AxisSpan{0, 100}));
}

TEST(ChartLayout, NumbersAndMomentsFitBesideThePlot)
{
    ChartContent content = someContent();
    content.lines = {{200, QStringLiteral("Design")}};
    const QFontMetricsF metrics{QFont()};
    const QRectF area(10, 20, 500, 200);
    const ChartLayout layout = chartLayout(content, content.moments, area, metrics, QLocale::c());
    EXPECT_TRUE(area.contains(layout.plot));
    EXPECT_GE(layout.plot.left() - area.left(), metrics.horizontalAdvance(QStringLiteral("00,000")));
    EXPECT_GE(area.bottom() - layout.plot.bottom(), metrics.height());
    EXPECT_GE(layout.value.pixel(200) - area.top(), metrics.height()) << "room for the label";
    EXPECT_EQ(layout.at(0, 0).x(), layout.plot.left());
    EXPECT_EQ(layout.at(1000, 0).x(), layout.plot.right());
    EXPECT_GE(layout.valueTicks.values.size(), 2U);
}

TEST(ChartLayout, MakesRoomForLongNumbers)
{
    ChartContent content = someContent();
    content.tickText = [](double, int) { return QStringLiteral("1,000,000,000"); };
    const QFontMetricsF metrics{QFont()};
    const ChartLayout layout = chartLayout(content, content.moments, {0, 0, 500, 200}, metrics, QLocale::c());
    EXPECT_GE(layout.plot.left(), metrics.horizontalAdvance(QStringLiteral("1,000,000,000")));
}

TEST(ChartLayout, SurvivesAnAreaWithoutRoom)
{
    const ChartLayout layout =
        chartLayout(someContent(), {0, 1000}, {0, 0, 1, 1}, QFontMetricsF(QFont()), QLocale::c());
    EXPECT_GE(layout.plot.width(), 1);
    EXPECT_GE(layout.plot.height(), 1);
}

TEST(ChartLayout, TheCardStaysInsideThePlotAndBesideThePoint)
{
    const QRectF plot(100, 50, 400, 200);
    const QSizeF card(80, 40);
    EXPECT_EQ(cardBeside({200, 200}, card, 10, plot), QRectF(210, 150, 80, 40)) << "above and behind";
    EXPECT_EQ(cardBeside({450, 200}, card, 10, plot), QRectF(360, 150, 80, 40)) << "before it at the end";
    EXPECT_EQ(cardBeside({200, 60}, card, 10, plot), QRectF(210, 70, 80, 40)) << "below it at the top";
    EXPECT_TRUE(plot.contains(cardBeside({100, 250}, card, 10, plot)));
}

} // namespace
