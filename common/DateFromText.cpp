#include "common/DateFromText.h"

#include "common/GregorianMonths.h"

namespace quindle {

namespace {

const QString& dayFormat()
{
    static const QString format = QStringLiteral("yyyy-MM-dd");
    return format;
}

} // namespace

std::optional<QDateTime> dateFromText(const QString& text)
{
    // A fixed format, not the locale's, so digits are ASCII and years Gregorian for every user.
    const QDate day = QDate::fromString(text, dayFormat());
    if (!day.isValid())
        return std::nullopt;
    return startOfLocalDay(day);
}

QString dayText(const QDateTime& date)
{
    // In the zone of the process: the day that the user's calendar shows.
    return date.toLocalTime().date().toString(dayFormat());
}

} // namespace quindle
