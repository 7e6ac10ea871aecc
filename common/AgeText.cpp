#include "common/AgeText.h"

#include <algorithm>
#include <cmath>

#include "common/GregorianMonths.h"
#include "common/NumberTexts.h"

namespace quindle {

namespace {

QDateTime addMonths(const QDateTime& start, qint64 months)
{
    const QDate first = firstOfMonth(monthNumber(start.date()) + months);
    const QDate day = first.addDays(std::min(start.date().day(), first.daysInMonth()) - 1);
    return start.addDays(start.date().daysTo(day));
}

} // namespace

qint64 wholeDays(const QDateTime& from, const QDateTime& to)
{
    const QDateTime start = from.toLocalTime();
    const QDateTime end = to.toLocalTime();
    qint64 days = start.date().daysTo(end.date());
    if (days > 0 && start.addDays(days) > end)
        --days;
    else if (days < 0 && start.addDays(days) < end)
        ++days;
    return days;
}

qint64 wholeMonths(const QDateTime& from, const QDateTime& to)
{
    const QDateTime start = from.toLocalTime();
    const QDateTime end = to.toLocalTime();
    qint64 months = monthNumber(end.date()) - monthNumber(start.date());
    if (months > 0 && addMonths(start, months) > end)
        --months;
    else if (months < 0 && addMonths(start, months) < end)
        ++months;
    return months;
}

QString yearsText(qint64 months)
{
    const double years = std::round(static_cast<double>(months) / 12.0 * 10.0) / 10.0;
    return shortestText(years) + QStringLiteral(" years");
}

QString ageText(int mode, const QDateTime& from, const QDateTime& to)
{
    switch (mode) {
    case 1:
        return integerText(wholeMonths(from, to)) + QStringLiteral(" months");
    case 2:
        return yearsText(wholeMonths(from, to));
    default:
        return integerText(wholeDays(from, to)) + QStringLiteral(" days");
    }
}

} // namespace quindle
