#include "records/trend/TrendSentence.h"

#include <QDateTime>
#include <gtest/gtest.h>

#include "tests/records/trend/TrendHistory.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using test::capacitiesOf;
using test::TrendHistory;

namespace {

QString grouped(qint64 count)
{
    QString text = QString::number(count);
    return count < 1000 ? text : text.insert(text.size() - 3, u',');
}

qint64 momentOf(int year, int month, int day = 15)
{
    return QDateTime(QDate(year, month, day), QTime(12, 0), Qt::UTC).toSecsSinceEpoch();
}

TrendTexts textsOf(const std::vector<CapacityPoint>& points)
{
    return trendTexts(trendOf(points).value(), points.back().moment + 3600, grouped);
}

struct SentenceCase
{
    TrendHistory history;
    const char* sentence;
    const char* detail;
};

TEST(TrendSentence, SaysWhatTheHistoryAllows)
{
    const SentenceCase cases[]{
        {{}, "At this pace 80 % around September 2027", "4.9 points a year, from 1,044 days and 291 cycles"},
        {{.cyclesAYear = 0}, "At this pace 80 % around September 2027", "4.9 points a year, from 1,044 days"},
        {{.days = 200}, "At this pace 80 % in late 2027", "4.9 points a year, from 199 days and 55 cycles"},
        {{.firstPercent = 95, .noise = 0, .tellsDesign = false},
         "At this pace 80 % of its first full charge around November 2027",
         "5.2 points a year, from 1,044 days and 291 cycles"},
        {{.days = 60}, "Not enough history yet (needs 60 days)", "60 days so far"},
        {{.days = 1}, "Not enough history yet (needs 60 days)", "1 day so far"},
        {{.perYear = 0}, "No wear to be seen in 1,044 days", "291 cycles"},
        {{.perYear = 0, .cyclesAYear = 0}, "No wear to be seen in 1,044 days", ""},
        {{.perYear = -0.3, .noise = 0.02},
         "At this pace 80 % in more than 20 years",
         "0.3 points a year, from 1,044 days and 291 cycles"},
        {{.perYear = -0.03, .noise = 0.001},
         "At this pace 80 % in more than 20 years",
         "less than 0.1 points a year, from 1,044 days and 291 cycles"},
        {{.firstPercent = 90}, "Already under 80 %", "4.9 points a year, from 1,044 days and 291 cycles"},
        {{.days = 5, .firstPercent = 70}, "Already under 80 %", "5 days so far"},
    };
    for (const SentenceCase& each : cases) {
        const TrendTexts texts = textsOf(capacitiesOf(each.history));
        EXPECT_EQ(texts.sentence, QString::fromLatin1(each.sentence));
        EXPECT_EQ(texts.detail, QString::fromLatin1(each.detail)) << each.sentence;
    }
}

TEST(TrendSentence, SaysNowWhereTheLineIsThereAndTheReadingIsNot)
{
    auto points = capacitiesOf({.firstPercent = 93.9});
    points.back().fullChargeCapacity = 0.801 * 7150;
    EXPECT_EQ(textsOf(points).sentence, QStringLiteral("At this pace 80 % about now"));
}

TEST(TrendSentence, OneIsNotPlural)
{
    TrendEstimate trend{.days = 1, .cycles = 1, .percent = 95, .pace = WearPace{95, -5, -6, -4, 0}};
    EXPECT_TRUE(trendTexts(trend, 0, grouped).detail.endsWith(QStringLiteral("from 1 day and 1 cycle")));
}

struct DateCase
{
    qint64 expected;
    qint64 earliest;
    qint64 latest;
    const char* text;
};

TEST(TrendSentence, DatesAreAsRoughAsTheyAreUncertain)
{
    const DateCase cases[]{
        {momentOf(2027, 9), momentOf(2027, 8), momentOf(2027, 10), "around September 2027"},
        {momentOf(2027, 9), momentOf(2027, 8), momentOf(2027, 11, 14), "around September 2027"},
        {momentOf(2027, 9), momentOf(2027, 7), momentOf(2027, 11), "in late 2027"},
        {momentOf(2027, 3), momentOf(2027, 1), momentOf(2027, 7), "in early 2027"},
        {momentOf(2027, 8), momentOf(2027, 4), momentOf(2027, 11), "in mid-2027"},
        {momentOf(2027, 8), momentOf(2027, 1), momentOf(2028, 6), "around 2027"},
        {momentOf(2028, 8), momentOf(2027, 1), momentOf(2031, 6), "between 2027 and 2031"},
        {momentOf(2030, 8), momentOf(2027, 1), momentOf(2900, 6), "not before 2027"},
    };
    for (const DateCase& each : cases)
        EXPECT_EQ(roughDateText(each.expected, each.earliest, each.latest), QString::fromLatin1(each.text));
}

} // namespace
