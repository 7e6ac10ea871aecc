#include "history/DailyGate.h"

namespace quindle {

bool isDailyUploadDue(const QDateTime& lastUpload, const QDateTime& now)
{
    constexpr qint64 millisecondsOfDay = 86'400'000;
    // Moments and not days are compared, so that a change of the zone opens nothing.
    return lastUpload.msecsTo(now) > millisecondsOfDay;
}

} // namespace quindle
