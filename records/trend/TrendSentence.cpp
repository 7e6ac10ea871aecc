#include "records/trend/TrendSentence.h"

#include <algorithm>
#include <cmath>

#include <QDateTime>
#include <QLocale>

#include "common/NumberTexts.h"
#include "common/Translation.h"

namespace quindle {

namespace {

constexpr double wornPercent = 80;
constexpr double yearSeconds = 365.25 * 86400;
constexpr double farYears = 20; // past any battery's life

QDate dayOf(qint64 moment)
{
    return QDateTime::fromSecsSinceEpoch(moment, Qt::UTC).date();
}

QString yearText(qint64 moment)
{
    return QString::number(dayOf(moment).year());
}

using CountText = std::function<QString(qint64)>;

/// Without a translation the month is English, whatever the locale of dates is.
QString monthText(qint64 moment)
{
    return shownLocale().toString(dayOf(moment),
                                  translated("Dates", "MMMM yyyy", "as date formats write it"));
}

QString thirdOfYearText(qint64 moment)
{
    const int month = dayOf(moment).month();
    const QString third = month <= 4   ? translated("Trend", "in early %1", "a year")
                          : month <= 8 ? translated("Trend", "in mid-%1", "a year")
                                       : translated("Trend", "in late %1", "a year");
    return third.arg(yearText(moment));
}

QString daysText(qint64 count, const CountText& countText)
{
    return count == 1 ? translated("Trend", "1 day")
                      : translated("Trend", "%1 days", nullptr, count).arg(countText(count));
}

QString cyclesText(qint64 count, const CountText& countText)
{
    return count == 1 ? translated("Trend", "1 cycle")
                      : translated("Trend", "%1 cycles", nullptr, count).arg(countText(count));
}

QString paceText(const WearPace& pace)
{
    const double points = std::abs(pace.perYear);
    if (points < 0.05)
        return translated("Trend", "less than %1 points a year").arg(withDecimalSign(QStringLiteral("0.1")));
    return translated("Trend", "%1 points a year").arg(withDecimalSign(fixedText(points, 1)));
}

/// "4.9 points a year, from 1,044 days and 293 cycles"
QString paceWithBasis(const TrendEstimate& trend, const CountText& countText)
{
    const QString pace = paceText(*trend.pace);
    const QString days = daysText(trend.days, countText);
    if (trend.cycles <= 0)
        return translated("Trend", "%1, from %2", "a pace, days").arg(pace, days);
    return translated("Trend", "%1, from %2 and %3", "a pace, days, cycles")
        .arg(pace, days, cyclesText(trend.cycles, countText));
}

/// The goal: of the design capacity, unless that is not known.
QString wornText(const TrendEstimate& trend)
{
    return trend.knowsDesign ? translated("Trend", "80 %")
                             : translated("Trend", "80 % of its first full charge");
}

QString whenWorn(const TrendEstimate& trend, qint64 now)
{
    const WearMoment years = yearsUntil(*trend.pace, wornPercent);
    const auto moment = [&](double after) {
        return trend.lastMoment + static_cast<qint64>(std::clamp(after, 0.0, 1000.0) * yearSeconds);
    };
    if (moment(years.expected) <= now)
        return translated("Trend", "about now");
    if (years.expected > farYears)
        return translated("Trend", "in more than 20 years");
    return roughDateText(moment(years.expected), moment(years.earliest), moment(years.latest));
}

QString sentenceOf(const TrendEstimate& trend, qint64 now, const CountText& countText)
{
    if (trend.percent < wornPercent)
        return translated("Trend", "Already under %1").arg(wornText(trend));
    if (!trend.pace)
        return translated("Trend", "Not enough history yet (needs 60 days)");
    if (!trend.pace->isWear())
        return translated("Trend", "No wear to be seen in %1", "days").arg(daysText(trend.days, countText));
    return translated("Trend", "At this pace %1 %2", "a percentage, when")
        .arg(wornText(trend), whenWorn(trend, now));
}

QString detailOf(const TrendEstimate& trend, const CountText& countText)
{
    if (!trend.pace)
        return translated("Trend", "%1 so far", "days").arg(daysText(trend.daysRecorded, countText));
    if (trend.pace->isWear())
        return paceWithBasis(trend, countText);
    return trend.cycles > 0 ? cyclesText(trend.cycles, countText) : QString();
}

} // namespace

TrendTexts trendTexts(const TrendEstimate& trend, qint64 now, const std::function<QString(qint64)>& countText)
{
    return {.sentence = sentenceOf(trend, now, countText), .detail = detailOf(trend, countText)};
}

QString roughDateText(qint64 expected, qint64 earliest, qint64 latest)
{
    constexpr double farthest = 2 * farYears;
    const double years = static_cast<double>(latest - earliest) / yearSeconds;
    if (years <= 0.25)
        return translated("Trend", "around %1", "a month with its year").arg(monthText(expected));
    if (years <= 8.0 / 12)
        return thirdOfYearText(expected);
    if (years <= 2)
        return translated("Trend", "around %1", "a year").arg(yearText(expected));
    if (years > farthest)
        return translated("Trend", "not before %1", "a year").arg(yearText(earliest));
    return translated("Trend", "between %1 and %2", "years").arg(yearText(earliest), yearText(latest));
}

} // namespace quindle
