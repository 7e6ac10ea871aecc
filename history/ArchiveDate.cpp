#include "history/ArchiveDate.h"

#include <cmath>

#include <QDateTime>
#include <QTimeZone>

namespace quindle {

QVariant dateFromArchivedSeconds(double seconds)
{
    constexpr double farthest = 9.0e15; // milliseconds: more than any year QDateTime knows
    const double milliseconds = std::round(seconds * 1000.0);
    if (!(std::abs(milliseconds) <= farthest))
        return {};
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    const QDateTime date = reference.addMSecs(static_cast<qint64>(milliseconds)).toLocalTime();
    return date.isValid() ? QVariant(date) : QVariant();
}

} // namespace quindle
