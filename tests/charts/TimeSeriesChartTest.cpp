#include "charts/TimeSeriesChart.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

constexpr double day = 86400;

class TimeSeriesChartTest : public testing::Test
{
protected:
    TimeSeriesChart chart{QStringLiteral("Full charge")};
    int changes = 0;

    TimeSeriesChartTest()
    {
        QObject::connect(&chart, &TimeSeriesChart::seenChanged, [this] { ++changes; });
        chart.resize(700, 240);
        chart.setContent(content(0));
        chart.show();
        QApplication::processEvents();
    }

    /// A hundred days with a point at each midnight, from 1 January 1970.
    static ChartContent content(double firstDay)
    {
        ChartContent made;
        made.moments = {firstDay * day, (firstDay + 100) * day};
        made.series.resize(1);
        for (int index = 0; index <= 100; ++index)
            made.series[0].points.push_back({static_cast<qint64>((firstDay + index) * day), 7000.0 - index});
        made.emptyText = QStringLiteral("Nothing yet");
        made.readingText = [](const ChartReading& reading) {
            return QStringLiteral("value %1").arg(reading.point);
        };
        return made;
    }

    double x(double moment) const { return chart.layoutInside(chart.rect()).time.pixel(moment); }
    QPointF at(double moment) const { return {x(moment), 100}; }

    void mouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(type, place, chart.mapToGlobal(place), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button), {});
        QApplication::sendEvent(&chart, &event);
    }

    void drag(double from, double to)
    {
        const QPointF first = at(from);
        const QPointF second = at(to);
        mouse(QEvent::MouseButtonPress, first);
        mouse(QEvent::MouseMove, second);
        mouse(QEvent::MouseButtonRelease, second);
    }

    bool wheel(double moment, int steps, Qt::KeyboardModifiers modifiers = {})
    {
        const QPointF place = at(moment);
        QWheelEvent event(place, chart.mapToGlobal(place), {}, {0, steps * 120}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart, &event);
        return event.isAccepted();
    }

    bool press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&chart, &event);
        return event.isAccepted();
    }

    double readDay() const
    {
        const auto& points = chart.content().series[0].points;
        return static_cast<double>(points[chart.reading().value().point].moment) / day;
    }
};

TEST_F(TimeSeriesChartTest, ShowsTheWholeAtFirst)
{
    EXPECT_EQ(chart.seen(), (AxisSpan{0, 100 * day}));
    EXPECT_FALSE(chart.isZoomed());
    EXPECT_FALSE(chart.reading().has_value());
}

TEST_F(TimeSeriesChartTest, ThePointerReadsTheNearestPoint)
{
    mouse(QEvent::MouseMove, at(30.3 * day), Qt::NoButton);
    EXPECT_EQ(readDay(), 30);
    EXPECT_EQ(chart.accessibleDescription(),
              QStringLiteral(u"31 January 1970: value 30; 1 January 1970 \u2013 11 April 1970"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&chart, &leave);
    EXPECT_FALSE(chart.reading().has_value());
    EXPECT_EQ(chart.accessibleDescription(), QStringLiteral(u"1 January 1970 \u2013 11 April 1970"));
}

TEST_F(TimeSeriesChartTest, ThePointerReadsNothingInAGap)
{
    ChartContent open = content(0);
    open.series[0].points.erase(open.series[0].points.begin() + 20, open.series[0].points.begin() + 80);
    chart.setContent(open);
    mouse(QEvent::MouseMove, at(50 * day), Qt::NoButton);
    EXPECT_FALSE(chart.reading().has_value());
    mouse(QEvent::MouseMove, at(20 * day), Qt::NoButton);
    EXPECT_EQ(readDay(), 19);
}

TEST_F(TimeSeriesChartTest, TheWheelZoomsAroundThePointer)
{
    const double before = x(30 * day);
    EXPECT_TRUE(wheel(30 * day, 1));
    EXPECT_NEAR(chart.seen().length(), 80 * day, 1);
    EXPECT_NEAR(x(30 * day), before, 0.5);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(wheel(30 * day, -2));
    EXPECT_FALSE(chart.isZoomed());
    EXPECT_FALSE(wheel(30 * day, -1)) << "there is nothing more: the page may scroll";
}

TEST_F(TimeSeriesChartTest, TheWheelStopsAtTheShortest)
{
    for (int step = 0; step < 200; ++step)
        wheel(30 * day, 1);
    EXPECT_DOUBLE_EQ(chart.seen().length(), chart.content().shortest);
    EXPECT_FALSE(wheel(30 * day, 1));
}

TEST_F(TimeSeriesChartTest, TheWheelWithShiftMoves)
{
    drag(40 * day, 60 * day);
    EXPECT_TRUE(wheel(50 * day, 1, Qt::ShiftModifier));
    EXPECT_NEAR(chart.seen().from, 38 * day, day / 10);
    EXPECT_NEAR(chart.seen().length(), 20 * day, day / 10);
}

TEST_F(TimeSeriesChartTest, ADragZoomsAndADoubleClickShowsAllAgain)
{
    drag(60 * day, 40 * day);
    EXPECT_NEAR(chart.seen().from, 40 * day, day / 10);
    EXPECT_NEAR(chart.seen().to, 60 * day, day / 10);
    EXPECT_EQ(changes, 1);
    mouse(QEvent::MouseButtonDblClick, at(50 * day));
    EXPECT_FALSE(chart.isZoomed());
    EXPECT_EQ(changes, 2);
}

TEST_F(TimeSeriesChartTest, AClickThatTremblesDoesNotZoom)
{
    const QPointF place = at(50 * day);
    mouse(QEvent::MouseButtonPress, place);
    mouse(QEvent::MouseMove, place + QPointF(2, 0));
    mouse(QEvent::MouseButtonRelease, place + QPointF(2, 0));
    EXPECT_EQ(changes, 0);
}

TEST_F(TimeSeriesChartTest, ArrowKeysReadAndZoomKeysZoomAroundTheReading)
{
    press(Qt::Key_Left);
    EXPECT_EQ(readDay(), 100) << "begins at the end";
    press(Qt::Key_Left);
    EXPECT_EQ(readDay(), 99);
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(readDay(), 89);
    press(Qt::Key_Right);
    EXPECT_EQ(readDay(), 90);
    const double before = x(90 * day);
    press(Qt::Key_Plus);
    EXPECT_NEAR(chart.seen().length(), 80 * day, 1);
    EXPECT_NEAR(x(90 * day), before, 0.5);
    press(Qt::Key_Minus);
    EXPECT_FALSE(chart.isZoomed());
    press(Qt::Key_Plus);
    press(Qt::Key_0);
    EXPECT_FALSE(chart.isZoomed());
}

TEST_F(TimeSeriesChartTest, AReadingMovesWhatIsSeen)
{
    drag(40 * day, 60 * day);
    press(Qt::Key_Home);
    EXPECT_EQ(readDay(), 0);
    EXPECT_EQ(chart.seen().from, 0);
    EXPECT_NEAR(chart.seen().length(), 20 * day, day / 10);
    press(Qt::Key_End);
    EXPECT_EQ(readDay(), 100);
    EXPECT_EQ(chart.seen().to, 100 * day);
}

TEST_F(TimeSeriesChartTest, APointerThatPassesDoesNotEndTheReadingOfTheKeys)
{
    press(Qt::Key_Left);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&chart, &leave);
    EXPECT_EQ(readDay(), 100);
}

TEST_F(TimeSeriesChartTest, EscapeEndsTheReadingAndIsThenTheWindows)
{
    press(Qt::Key_Left);
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_FALSE(chart.reading().has_value());
    EXPECT_FALSE(press(Qt::Key_Escape));
}

TEST_F(TimeSeriesChartTest, TabReadsTheLastPoint)
{
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&chart, &in);
    EXPECT_EQ(readDay(), 100);
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&chart, &out);
    EXPECT_FALSE(chart.reading().has_value());
}

TEST_F(TimeSeriesChartTest, NewContentKeepsZoomAndReadingWhereItHasThem)
{
    drag(40 * day, 60 * day);
    press(Qt::Key_Left);
    const AxisSpan seen = chart.seen();
    const double read = readDay();
    chart.setContent(content(10));
    EXPECT_EQ(chart.seen(), seen);
    EXPECT_EQ(readDay(), read);
    chart.setContent(content(500));
    EXPECT_EQ(chart.seen(), (AxisSpan{500 * day, 600 * day}));
    EXPECT_FALSE(chart.reading().has_value());
}

TEST_F(TimeSeriesChartTest, IsAChartToAssistivePrograms)
{
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&chart);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Chart);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Full charge"));
    EXPECT_TRUE(accessible->state().focusable);
    ChartContent empty = content(0);
    empty.series.clear();
    chart.setContent(empty);
    EXPECT_EQ(accessible->text(QAccessible::Description), QStringLiteral("Nothing yet"));
}

TEST_F(TimeSeriesChartTest, WithoutPointsTakesEveryEvent)
{
    chart.setContent({});
    mouse(QEvent::MouseMove, {100, 100}, Qt::NoButton);
    mouse(QEvent::MouseButtonPress, {100, 100});
    mouse(QEvent::MouseMove, {300, 100});
    mouse(QEvent::MouseButtonRelease, {300, 100});
    for (const int key :
         {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Plus, Qt::Key_Minus})
        press(key);
    EXPECT_FALSE(chart.reading().has_value());
    EXPECT_EQ(chart.seen(), (AxisSpan{0, 0}));
    EXPECT_FALSE(chart.grab().isNull());
}

TEST_F(TimeSeriesChartTest, ShowsTheReading)
{
    const QImage before = chart.grab().toImage();
    press(Qt::Key_Left);
    EXPECT_NE(chart.grab().toImage(), before);
}

} // namespace
