#include "history/DailyGate.h"

namespace quindle {

bool isDailyUploadDue(const QDateTime& lastUpload, const QDateTime& now)
{
    constexpr qint64 millisecondsOfDay = 86'400'000;
    return lastUpload.msecsTo(now) > millisecondsOfDay;
}

} // namespace quindle
