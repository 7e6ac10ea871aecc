#include "platform/linux/system/LinuxClock.h"

namespace quindle {

QDateTime LinuxClock::now() const
{
    return QDateTime::currentDateTimeUtc();
}

} // namespace quindle
