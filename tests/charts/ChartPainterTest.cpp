#include "charts/ChartPainter.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

constexpr QRect area(0, 0, 600, 240);

ChartLook testLook()
{
    return {.font = QFont(),
            .background = Qt::white,
            .text = Qt::black,
            .quiet = QColor(0x60, 0x60, 0x60),
            .grid = QColor(0xf0, 0xf0, 0xf0),
            .wear = QColor(0, 160, 0),
            .charge = QColor(0, 0, 200)};
}

ChartLayout layoutOf(const ChartContent& content)
{
    return chartLayout(content, content.moments, area, QFontMetricsF(QFont()), QLocale::c());
}

template <typename Paint>
QImage painted(Paint paint)
{
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
    return image;
}

QImage picture(const ChartContent& content)
{
    return painted([&](QPainter& painter) { paintChart(painter, content, layoutOf(content), testLook()); });
}

/// A line at 50 % of a fixed axis.
ChartContent level(std::vector<ChartPoint> points)
{
    ChartContent content;
    content.moments = {0, 1000};
    content.values = AxisSpan{0, 100};
    content.series.push_back({.name = {}, .points = std::move(points), .gaps = {}});
    return content;
}

bool isInk(const QColor& colour)
{
    return colour.blue() > 150 && colour.red() < 120;
}

QColor colourAt(const QImage& image, const ChartContent& content, double moment, double value)
{
    return image.pixelColor(layoutOf(content).at(moment, value).toPoint());
}

TEST(ChartPainter, DrawsALineAndLeavesItsGapsOpen)
{
    ChartContent content = level({{0, 42}, {300, 42}, {700, 42}, {1000, 42}});
    EXPECT_TRUE(isInk(colourAt(picture(content), content, 500, 42)));
    content.series[0].gaps = {1};
    const QImage open = picture(content);
    EXPECT_FALSE(isInk(colourAt(open, content, 500, 42)));
    EXPECT_TRUE(isInk(colourAt(open, content, 150, 42)));
    EXPECT_TRUE(isInk(colourAt(open, content, 850, 42)));
}

TEST(ChartPainter, LeavesTheAxesWhereTheyAreAmongTextsFromRightToLeft)
{
    ChartContent content = level({{0, 50}, {1000, 50}});
    const QImage mirrored = painted([&](QPainter& painter) {
        painter.setLayoutDirection(Qt::RightToLeft);
        paintChart(painter, content, layoutOf(content), testLook());
    });
    const auto isEmptyBesideThePlot = [&](const QImage& image) {
        // Without the labels below the axis of time.
        const QRect beside(0, 0, static_cast<int>(layoutOf(content).plot.left()) - 1,
                           static_cast<int>(layoutOf(content).plot.bottom()) - 20);
        return image.copy(beside) == painted([](QPainter&) {}).copy(beside);
    };
    EXPECT_FALSE(isEmptyBesideThePlot(picture(content)));
    EXPECT_FALSE(isEmptyBesideThePlot(mirrored)) << "the figures of the axis";
}

TEST(ChartPainter, DrawsAPointThatIsAlone)
{
    ChartContent content = level({{0, 42}, {500, 42}, {1000, 42}});
    content.series[0].gaps = {0, 1};
    EXPECT_TRUE(isInk(colourAt(picture(content), content, 500, 42)));
}

TEST(ChartPainter, ShadesOnlyTheSpans)
{
    ChartContent content = level({{0, 10}, {1000, 10}});
    content.shaded = {{200, 400}, {900, 5000}};
    const QImage image = picture(content);
    EXPECT_EQ(colourAt(image, content, 100, 77), QColor(Qt::white));
    EXPECT_NE(colourAt(image, content, 300, 77), QColor(Qt::white));
    EXPECT_NE(colourAt(image, content, 950, 77), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(static_cast<int>(layoutOf(content).plot.right()) + 3, area.center().y()),
              QColor(Qt::white));
}

TEST(ChartPainter, ShadesNothingWhereItWouldBeABlur)
{
    ChartContent content = level({{0, 10}, {1000, 10}});
    content.shaded = {{200, 400}};
    content.shadedUpTo = 999;
    EXPECT_EQ(colourAt(picture(content), content, 300, 77), QColor(Qt::white));
}

TEST(ChartPainter, DrawsTheBandOfAProjection)
{
    ChartContent content = level({{0, 80}, {500, 60}});
    content.projection = ChartProjection{{500, 60}, {1000, 40}, 58, 62, 20, 60, ChartInk::Wear};
    const QImage image = picture(content);
    EXPECT_NE(colourAt(image, content, 950, 50), QColor(Qt::white));
    EXPECT_NE(colourAt(image, content, 950, 30), QColor(Qt::white));
    EXPECT_EQ(colourAt(image, content, 950, 70), QColor(Qt::white));
    EXPECT_EQ(colourAt(image, content, 600, 30), QColor(Qt::white));
}

TEST(ChartPainter, DrawsALineThatTurnsAllTheTimeAsItsMean)
{
    ChartContent content = level({});
    for (qint64 moment = 0; moment <= 1000; ++moment) // about two for each pixel
        content.series[0].points.push_back({moment, moment % 2 == 0 ? 20.0 : 80.0});
    content.moments = {0, 1000};
    const QImage image = picture(content);
    bool hasMean = false;
    for (double value = 40; value <= 60; ++value)
        hasMean = hasMean || isInk(colourAt(image, content, 500, value));
    EXPECT_TRUE(hasMean);
    EXPECT_FALSE(isInk(colourAt(image, content, 500, 70))) << "light";
    EXPECT_NE(colourAt(image, content, 500, 70), QColor(Qt::white));
    EXPECT_EQ(colourAt(image, content, 500, 90), QColor(Qt::white));
}

TEST(ChartPainter, SaysWhyThereIsNothing)
{
    ChartContent content = level({});
    const QImage bare = picture(content);
    content.emptyText = QStringLiteral("Nothing was recorded");
    EXPECT_NE(picture(content), bare);
    content.series[0].points = {{0, 10}};
    const QImage full = picture(content);
    content.emptyText.clear();
    EXPECT_EQ(picture(content), full);
}

TEST(ChartPainter, PutsACardBesideAReading)
{
    const ChartContent content = level({{0, 10}, {1000, 10}});
    const QImage image = painted([&](QPainter& painter) {
        paintReading(painter, content, layoutOf(content), testLook(), {0, 0}, QLocale::c());
    });
    EXPECT_NE(colourAt(image, content, 0, 90), QColor(Qt::white)) << "the line";
    EXPECT_TRUE(isInk(image.pixelColor(layoutOf(content).at(0, 10).toPoint()))) << "the dot";
    QRegion written;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = static_cast<int>(layoutOf(content).plot.left()) + 10; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                written += QRect(x, y, 1, 1);
        }
    }
    EXPECT_GT(written.boundingRect().width(), 40) << "the card";
}

} // namespace
