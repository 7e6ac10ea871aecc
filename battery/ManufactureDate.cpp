#include "battery/ManufactureDate.h"

#include "common/GregorianMonths.h"

namespace quindle {

namespace {

constexpr qint64 firstYear = 1980;
constexpr int dayBits = 5;
constexpr int monthBits = 4;
constexpr int yearBits = 64 - dayBits - monthBits;

QDate lenientDay(qint64 year, qint64 month, qint64 day)
{
    // Counted on from the first of the month, because QDate takes no 31 June and no day 0.
    return firstOfMonth(monthNumber(year, month)).addDays(day - 1);
}

qint64 fromBinary(const QString& digits)
{
    return static_cast<qint64>(digits.toULongLong(nullptr, 2));
}

} // namespace

// inherited: fields out of range run over into the next, and 0 is 30 November 1979.
QDateTime decodeManufactureDate(qint64 packed)
{
    // Shifted with its sign and without a mask: a negative number is a year before 1980.
    const qint64 year = (packed >> (dayBits + monthBits)) + firstYear;
    const qint64 month = (packed >> dayBits) & 15;
    const qint64 day = packed & 31;
    return startOfLocalDay(lenientDay(year, month, day));
}

QDateTime decodeManufactureDateByDigits(qint64 packed)
{
    // All 64 digits, so that the fields have the same places in every number.
    const QString digits = QString::number(static_cast<quint64>(packed), 2).rightJustified(64, u'0');
    const qint64 day = fromBinary(digits.right(dayBits));
    const qint64 month = fromBinary(digits.mid(yearBits, monthBits));
    const qint64 unsignedYear = fromBinary(digits.left(yearBits));
    // The digits have no sign: the year of a negative number is counted from the top.
    const qint64 year = packed < 0 ? unsignedYear - (qint64{1} << yearBits) : unsignedYear;
    return {lenientDay(year + firstYear, month, day), QTime(12, 0)};
}

} // namespace quindle
