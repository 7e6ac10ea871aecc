#include "mac/WeekDate.h"

#include "common/DateFromText.h"

namespace quindle {

namespace {

constexpr qint64 secondsPerDay = 86400;
constexpr qint64 secondsPerWeek = 7 * secondsPerDay;

} // namespace

std::optional<QDateTime> weekDate(int year, int week)
{
    const auto newYear = dateFromText(QString::number(year) + QStringLiteral("-01-01"));
    if (!newYear)
        return std::nullopt;
    const int daysSinceMonday = newYear->date().dayOfWeek() - Qt::Monday;
    return newYear->addSecs(week * secondsPerWeek - daysSinceMonday * secondsPerDay);
}

} // namespace quindle
