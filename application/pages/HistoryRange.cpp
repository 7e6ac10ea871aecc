#include "application/pages/HistoryRange.h"

namespace quindle {

namespace {

constexpr qint64 rangeDay = 86400;

} // namespace

QStringList historyRangeTitles()
{
    return {QStringLiteral("&Day"), QStringLiteral("&Week"), QStringLiteral("&Month"),
            QStringLiteral("&Year"), QStringLiteral("&All")};
}

qint64 historyRangeStart(HistoryRange range, qint64 now)
{
    switch (range) {
    case HistoryRange::Day:
        return now - rangeDay;
    case HistoryRange::Week:
        return now - 7 * rangeDay;
    case HistoryRange::Month:
        return now - 30 * rangeDay;
    case HistoryRange::Year:
        return now - 365 * rangeDay;
    case HistoryRange::All:
        break;
    }
    return 0;
}

QString historyRangeText(HistoryRange range)
{
    switch (range) {
    case HistoryRange::Day:
        return QStringLiteral("last 24 hours");
    case HistoryRange::Week:
        return QStringLiteral("last 7 days");
    case HistoryRange::Month:
        return QStringLiteral("last 30 days");
    case HistoryRange::Year:
        return QStringLiteral("last 365 days");
    case HistoryRange::All:
        break;
    }
    return QStringLiteral("whole history");
}

} // namespace quindle
