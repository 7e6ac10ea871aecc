#include "common/GregorianMonths.h"

#include <algorithm>

namespace quindle {

namespace {

// A year inside both ends, so that adding days and the zone's offset stays in range.
constexpr qint64 firstYear = static_cast<qint64>(QDateTime::YearRange::First) + 2;
constexpr qint64 lastYear = static_cast<qint64>(QDateTime::YearRange::Last) - 1;

qint64 floorDivided(qint64 number, qint64 divisor)
{
    const qint64 quotient = number / divisor;
    // C++ rounds towards 0, which would merge the two years around 0.
    return number % divisor < 0 ? quotient - 1 : quotient;
}

} // namespace

qint64 monthNumber(QDate day)
{
    const qint64 year = day.year() < 0 ? day.year() + 1 : day.year(); // QDate has no year 0
    return year * 12 + day.month() - 1; // unchanged: a date before the first year stays before it
}

qint64 monthNumber(qint64 year, qint64 month)
{
    return std::clamp(year, firstYear, lastYear) * 12 + month - 1;
}

QDate firstOfMonth(qint64 number)
{
    // Dates out of packed numbers may be millions of years away; QDate would be invalid.
    const qint64 inRange = std::clamp(number, firstYear * 12, lastYear * 12 + 11);
    const qint64 year = floorDivided(inRange, 12);
    const auto month = static_cast<int>(inRange - year * 12) + 1;
    return {static_cast<int>(year > 0 ? year : year - 1), month, 1};
}

QDateTime startOfLocalDay(QDate day)
{
    const QDateTime start = day.startOfDay();
    // In some zones a whole day was left out (Apia, 30 December 2011); the next one begins at the same
    // moment.
    return start.isValid() ? start : day.addDays(1).startOfDay();
}

} // namespace quindle
