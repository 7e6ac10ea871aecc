#include "application/pages/HistoryPage.h"

#include <algorithm>
#include <iterator>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "charts/TimeSeriesChart.h"
#include "tests/records/trend/TrendHistory.h"
#include "tests/support/FullDisk.h"
#include "tests/support/QtPrinters.h"
#include "widgets/PlainLabel.h"
#include "widgets/controls/SegmentedControl.h"

using namespace quindle;
using test::capacitiesOf;

namespace {

constexpr qint64 now = 1'795'000'000;
constexpr qint64 day = 86400;

class HistoryPageTest : public testing::Test
{
protected:
    HistoryPage page;
    std::vector<std::pair<qint64, qint64>> wanted;

    HistoryPageTest()
    {
        QObject::connect(&page, &HistoryPage::samplesWanted,
                         [this](qint64 from, qint64 to) { wanted.emplace_back(from, to); });
        page.resize(760, 610);
        page.show();
        QApplication::processEvents();
    }

    static std::vector<Sample> samples(int hours)
    {
        std::vector<Sample> made;
        for (qint64 moment = now - hours * 3600; moment <= now; moment += 60)
            made.push_back(
                {moment, 90 - static_cast<double>(made.size()) / 100, -9.5, SampleState::Discharging});
        return made;
    }

    void show(int hours = 20)
    {
        page.setCapacities(capacitiesOf({.noise = 0}));
        page.setNow(now);
        page.setSamples(samples(hours));
        QApplication::processEvents();
    }

    QString text(const char* label) const
    {
        return page.findChild<PlainLabel*>(QLatin1String(label))->text();
    }
    SegmentedControl& ranges() const { return *page.findChildren<SegmentedControl*>().first(); }
    SegmentedControl& quantities() const { return *page.findChildren<SegmentedControl*>().last(); }
    TimeSeriesChart& wear() const { return *page.findChildren<TimeSeriesChart*>().first(); }
    TimeSeriesChart& charge() const { return *page.findChildren<TimeSeriesChart*>().last(); }

    static void choose(SegmentedControl& control, int tag)
    {
        control.selectSegmentWithTag(tag);
        Q_EMIT control.action();
    }

    QPushButton& button(const char* text) const
    {
        for (QPushButton* each : page.findChildren<QPushButton*>()) {
            if (each->text().remove(u'&').startsWith(QLatin1String(text)))
                return *each;
        }
        throw std::runtime_error(text);
    }
};

TEST_F(HistoryPageTest, SaysHowTheBatteryIs)
{
    show();
    EXPECT_EQ(text("healthFigure"), QStringLiteral("84.0"));
    EXPECT_EQ(text("trendSentence"), QStringLiteral("At this pace 80 % around September 2027"));
    EXPECT_EQ(text("trendDetail"), QStringLiteral("4.9 points a year, from 1,044 days and 291 cycles"));
    EXPECT_EQ(wear().content().series.size(), 1U);
}

TEST_F(HistoryPageTest, AsksForTheSamplesOfTheRange)
{
    page.setNow(now);
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(wanted.back(), std::pair(now - day, now));
    choose(ranges(), static_cast<int>(HistoryRange::Month));
    EXPECT_EQ(wanted.back(), std::pair(now - 30 * day, now));
    EXPECT_EQ(page.range(), HistoryRange::Month);
    choose(ranges(), static_cast<int>(HistoryRange::All));
    EXPECT_EQ(wanted.back(), std::pair(qint64(0), now));
}

TEST_F(HistoryPageTest, ShowsTheRange)
{
    show();
    EXPECT_EQ(text("sampleHeading"), QStringLiteral("Charge, last 24 hours"));
    EXPECT_EQ(charge().content().moments, (AxisSpan{double(now - day), double(now)}));
    EXPECT_EQ(charge().accessibleName(), text("sampleHeading"));
    choose(ranges(), static_cast<int>(HistoryRange::Week));
    page.setSamples(samples(100));
    EXPECT_EQ(charge().content().moments.length(), 7.0 * day);
    choose(ranges(), static_cast<int>(HistoryRange::All));
    page.setSamples(samples(300));
    EXPECT_EQ(charge().content().moments.length(), 300.0 * 3600) << "from the first one";
    EXPECT_EQ(text("sampleHeading"), QStringLiteral("Charge, whole history"));
}

TEST_F(HistoryPageTest, ANewRangeEndsAZoom)
{
    show();
    charge().setSeen({double(now - 3600), double(now)});
    choose(ranges(), static_cast<int>(HistoryRange::Week));
    page.setSamples(samples(100));
    EXPECT_FALSE(charge().isZoomed());
}

TEST_F(HistoryPageTest, TabGoesFromTheTopToTheBottom)
{
    show();
    const QWidget* const expected[] = {
        ranges().segment(0),     &wear(),          &charge(), quantities().segment(0),
        &button("Save Picture"), &button("Export")};
    std::vector<const QWidget*> reached;
    for (const QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain())
        if (std::find(std::begin(expected), std::end(expected), next) != std::end(expected))
            reached.push_back(next);
    EXPECT_TRUE(std::equal(reached.begin(), reached.end(), std::begin(expected), std::end(expected)));
}

TEST_F(HistoryPageTest, SwitchesToPower)
{
    show();
    choose(quantities(), 1);
    EXPECT_EQ(text("sampleHeading"), QStringLiteral("Power, last 24 hours"));
    EXPECT_EQ(charge().content().series[0].points.front().value, 9.5);
}

TEST_F(HistoryPageTest, SaysThatThereIsNoHistoryYet)
{
    page.setNow(now);
    EXPECT_EQ(text("trendSentence"), QStringLiteral("No history yet"));
    EXPECT_FALSE(page.findChild<PlainLabel*>(QStringLiteral("healthFigure"))->isVisible());
    EXPECT_FALSE(button("Save Picture").isEnabled());
    EXPECT_FALSE(button("Export").isEnabled());
    show();
    EXPECT_TRUE(page.findChild<PlainLabel*>(QStringLiteral("healthFigure"))->isVisible());
    EXPECT_TRUE(button("Save Picture").isEnabled());
    EXPECT_TRUE(button("Export").isEnabled());
}

TEST_F(HistoryPageTest, FitsTheSmallestWindow)
{
    show();
    page.resize(470, 420);
    QApplication::processEvents();
    EXPECT_LE(page.content().width(), page.viewport()->width());
    EXPECT_LE(ranges().geometry().right(), page.content().width());
    EXPECT_FALSE(page.grab().isNull());
}

TEST_F(HistoryPageTest, EverythingIsReachedByTheKeyboard)
{
    show();
    for (const QWidget* control :
         {static_cast<QWidget*>(&wear()), static_cast<QWidget*>(&charge()),
          static_cast<QWidget*>(&button("Save")), static_cast<QWidget*>(&button("Export")),
          ranges().segment(0), quantities().segment(0)})
        EXPECT_NE(control->focusPolicy() & Qt::TabFocus, 0) << control->metaObject()->className();
}

TEST_F(HistoryPageTest, SavesAPictureOfWhatIsSeenAtTwiceTheSize)
{
    show();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.png"));
    page.savePicture(path);
    const QImage picture(path);
    EXPECT_EQ(picture.size(), page.pictureSize() * 2);
    QImage bare(picture.size(), picture.format());
    bare.fill(picture.pixelColor(2, 2));
    EXPECT_NE(picture, bare);
    EXPECT_EQ(text("message"), QStringLiteral("Saved"));
}

TEST_F(HistoryPageTest, SavesADrawing)
{
    show();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("drawing.SVG"));
    page.savePicture(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray drawing = file.readAll();
    EXPECT_TRUE(drawing.startsWith("<?xml"));
    EXPECT_TRUE(drawing.contains("At this pace 80 % around September 2027"));
    EXPECT_TRUE(drawing.contains("<polyline")) << "lines are lines";
}

TEST_F(HistoryPageTest, WhatIsHiddenIsNotInThePictureEither)
{
    page.setNow(now);
    page.setSamples(samples(20));
    QApplication::processEvents();
    const auto* sign = page.findChild<PlainLabel*>(QStringLiteral("healthSign"));
    ASSERT_FALSE(sign->isVisible());
    QImage picture(page.pictureSize(), QImage::Format_RGB32);
    const auto painted = [&] {
        QPainter painter(&picture);
        page.paintPicture(painter);
        painter.end();
        return picture.copy();
    };
    const QImage withSign = painted();
    page.findChild<PlainLabel*>(QStringLiteral("healthSign"))->setText(QString());
    EXPECT_EQ(withSign, painted());
}

TEST_F(HistoryPageTest, SavesTheNumbersThatAreSeen)
{
    show();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("table.csv"));
    charge().setSeen({double(now - 3600), double(now)});
    page.saveTable(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 62) << "headings, and a sample a minute with both ends";
}

TEST_F(HistoryPageTest, AFullDiskLeavesThePreviousTable)
{
    show();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("table.csv"));
    charge().setSeen({double(now - 3600), double(now)});
    page.saveTable(path);
    const qint64 size = QFileInfo(path).size();
    ASSERT_GT(size, 16);
    {
        const FullDisk disk(16);
        page.saveTable(path);
    }
    EXPECT_EQ(QFileInfo(path).size(), size);
    EXPECT_TRUE(text("message").startsWith(path + QStringLiteral(": "))) << text("message").toStdString();
}

TEST_F(HistoryPageTest, SaysWhyItCannotSave)
{
    show();
    page.saveTable(QStringLiteral("/nonexistent/table.csv"));
    EXPECT_TRUE(text("message").startsWith(QStringLiteral("/nonexistent/table.csv: ")))
        << text("message").toStdString();
}

} // namespace
