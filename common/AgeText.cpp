#include "common/AgeText.h"

#include <algorithm>
#include <cmath>

#include "common/GregorianMonths.h"
#include "common/NumberTexts.h"

namespace quindle {

namespace {

QDate monthsAfter(QDate day, qint64 months)
{
    const QDate first = firstOfMonth(monthNumber(day) + months);
    // A month after 31 January is the last of February.
    return first.addDays(std::min(day.day(), first.daysInMonth()) - 1);
}

QDateTime movedTo(QDate day, const QDateTime& moment)
{
    return moment.addDays(moment.date().daysTo(day));
}

/// Whether `start`, moved to that day, is after `end`, both in local time. Where no change of the zone can
/// matter, date and time of day decide alone: looking up the system's zone costs more than everything else.
bool isAfter(QDate day, const QDateTime& start, const QDateTime& end)
{
    constexpr qint64 longestChange = 2;                  // days: Apia left one out in 2011
    constexpr int longestWithinDay = 3 * 60 * 60 * 1000; // milliseconds
    const qint64 days = end.date().daysTo(day);
    if (std::abs(days) > longestChange)
        return days > 0;
    const int apart = end.time().msecsTo(start.time());
    if (days == 0 && std::abs(apart) > longestWithinDay)
        return apart > 0;
    return movedTo(day, start) > end;
}

} // namespace

qint64 wholeDays(const QDateTime& from, const QDateTime& to)
{
    const QDateTime start = from.toLocalTime();
    const QDateTime end = to.toLocalTime();
    const qint64 days = start.date().daysTo(end.date());
    // By the calendar: a day of 23 hours is a day.
    if (days > 0 && isAfter(end.date(), start, end))
        return days - 1;
    if (days < 0 && movedTo(end.date(), start) < end)
        return days + 1;
    return days;
}

qint64 wholeMonths(const QDateTime& from, const QDateTime& to)
{
    const QDateTime start = from.toLocalTime();
    const QDateTime end = to.toLocalTime();
    // In 64 bits: packed dates reach years whose months an int could not count.
    const qint64 months = monthNumber(end.date()) - monthNumber(start.date());
    const QDate day = monthsAfter(start.date(), months);
    if (months > 0 && isAfter(day, start, end))
        return months - 1;
    if (months < 0 && movedTo(day, start) < end)
        return months + 1;
    return months;
}

QString yearsText(qint64 months)
{
    // Halves away from zero, so 15 months are 1.3 years.
    const double years = std::round(static_cast<double>(months) / 12.0 * 10.0) / 10.0;
    return shortestText(years) + QStringLiteral(" years");
}

QString ageText(int mode, const QDateTime& from, const QDateTime& to)
{
    switch (mode) {
    // Modes are stored numbers; any other number shows days.
    case 1:
        return integerText(wholeMonths(from, to)) + QStringLiteral(" months");
    case 2:
        return yearsText(wholeMonths(from, to));
    default:
        return integerText(wholeDays(from, to)) + QStringLiteral(" days");
    }
}

} // namespace quindle
