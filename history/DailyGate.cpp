#include "history/DailyGate.h"

namespace quindle {

bool isDailyUploadDue(const QDateTime& lastUpload, const QDateTime& now)
{
    constexpr qint64 millisecondsOfDay = 86'400'000;
    // Moments are compared, not days, so that a change of the zone does not open the gate.
    return lastUpload.msecsTo(now) > millisecondsOfDay;
}

} // namespace quindle
