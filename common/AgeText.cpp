#include "common/AgeText.h"

#include <cmath>

#include "common/NumberTexts.h"

namespace quindle {

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
    const qint64 years = end.date().year() - start.date().year();
    qint64 months = years * 12 + end.date().month() - start.date().month();
    if (months > 0 && start.addMonths(static_cast<int>(months)) > end)
        --months;
    else if (months < 0 && start.addMonths(static_cast<int>(months)) < end)
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
