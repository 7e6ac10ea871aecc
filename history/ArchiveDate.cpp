#include "history/ArchiveDate.h"

#include <cmath>

#include <QDateTime>

namespace quindle {

QVariant dateFromArchivedSeconds(double seconds)
{
    constexpr qint64 startOf2001 = 978307200000; // milliseconds after the start of 1970
    constexpr double farthest = 9.0e15;          // milliseconds: more than any year QDateTime knows
    const double milliseconds = std::round(seconds * 1000.0);
    if (!(std::abs(milliseconds) <= farthest))
        return {};
    const QDateTime date =
        QDateTime::fromMSecsSinceEpoch(startOf2001 + static_cast<qint64>(milliseconds), Qt::LocalTime);
    return date.isValid() ? QVariant(date) : QVariant();
}

} // namespace quindle
