#include "records/trend/TrendSentence.h"

#include <algorithm>
#include <cmath>

#include <QDateTime>
#include <QLocale>

#include "common/NumberTexts.h"

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

QString thirdOfYearText(qint64 moment)
{
    const int month = dayOf(moment).month();
    const QString third = month <= 4   ? QStringLiteral("early ")
                          : month <= 8 ? QStringLiteral("mid-")
                                       : QStringLiteral("late ");
    return QStringLiteral("in ") + third + yearText(moment);
}

QString countOf(qint64 count, const QString& unit, const std::function<QString(qint64)>& countText)
{
    return countText(count) + u' ' + unit + (count == 1 ? QString() : QStringLiteral("s"));
}

/// "from 1,044 days and 293 cycles"
QString basisText(const TrendEstimate& trend, const std::function<QString(qint64)>& countText)
{
    QString days = QStringLiteral("from ") + countOf(trend.days, QStringLiteral("day"), countText);
    if (trend.cycles <= 0)
        return days;
    return days + QStringLiteral(" and ") + countOf(trend.cycles, QStringLiteral("cycle"), countText);
}

QString paceText(const WearPace& pace)
{
    const double points = std::abs(pace.perYear);
    if (points < 0.05)
        return QStringLiteral("less than 0.1 points a year");
    return fixedText(points, 1) + QStringLiteral(" points a year");
}

/// The goal: of the design capacity, unless that is not known.
QString wornText(const TrendEstimate& trend)
{
    const QString percent = QStringLiteral("80 %");
    return trend.knowsDesign ? percent : percent + QStringLiteral(" of its first full charge");
}

QString paceSentence(const TrendEstimate& trend, qint64 now)
{
    const QString start = QStringLiteral("At this pace ") + wornText(trend) + u' ';
    const WearMoment years = yearsUntil(*trend.pace, wornPercent);
    const auto moment = [&](double after) {
        return trend.lastMoment + static_cast<qint64>(std::clamp(after, 0.0, 1000.0) * yearSeconds);
    };
    if (moment(years.expected) <= now)
        return start + QStringLiteral("about now");
    if (years.expected > farYears)
        return start + QStringLiteral("in more than 20 years");
    return start + roughDateText(moment(years.expected), moment(years.earliest), moment(years.latest));
}

QString sentenceOf(const TrendEstimate& trend, qint64 now, const std::function<QString(qint64)>& countText)
{
    if (trend.percent < wornPercent)
        return QStringLiteral("Already under ") + wornText(trend);
    if (!trend.pace)
        return QStringLiteral("Not enough history yet (needs 60 days)");
    if (!trend.pace->isWear())
        return QStringLiteral("No wear to be seen in ") +
               countOf(trend.days, QStringLiteral("day"), countText);
    return paceSentence(trend, now);
}

QString detailOf(const TrendEstimate& trend, const std::function<QString(qint64)>& countText)
{
    if (!trend.pace)
        return countOf(trend.daysRecorded, QStringLiteral("day"), countText) + QStringLiteral(" so far");
    if (trend.pace->isWear())
        return paceText(*trend.pace) + QStringLiteral(", ") + basisText(trend, countText);
    return trend.cycles > 0 ? countOf(trend.cycles, QStringLiteral("cycle"), countText) : QString();
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
        return QStringLiteral("around ") +
               QLocale::c().toString(dayOf(expected), QStringLiteral("MMMM yyyy"));
    if (years <= 8.0 / 12)
        return thirdOfYearText(expected);
    if (years <= 2)
        return QStringLiteral("around ") + yearText(expected);
    if (years > farthest)
        return QStringLiteral("not before ") + yearText(earliest);
    return QStringLiteral("between ") + yearText(earliest) + QStringLiteral(" and ") + yearText(latest);
}

} // namespace quindle
