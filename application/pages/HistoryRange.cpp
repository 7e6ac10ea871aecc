#include "application/pages/HistoryRange.h"

#include "common/Translation.h"

namespace quindle {

namespace {

constexpr qint64 rangeDay = 86400;

} // namespace

QStringList historyRangeTitles()
{
    return {translated("HistoryRange", "&Day"), translated("HistoryRange", "&Week"),
            translated("HistoryRange", "&Month"), translated("HistoryRange", "&Year"),
            translated("HistoryRange", "&All")};
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
        return translated("HistoryRange", "last 24 hours");
    case HistoryRange::Week:
        return translated("HistoryRange", "last 7 days");
    case HistoryRange::Month:
        return translated("HistoryRange", "last 30 days");
    case HistoryRange::Year:
        return translated("HistoryRange", "last 365 days");
    case HistoryRange::All:
        break;
    }
    return translated("HistoryRange", "whole history");
}

} // namespace quindle
