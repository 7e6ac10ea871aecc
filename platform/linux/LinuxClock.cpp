#include "platform/linux/LinuxClock.h"

namespace quindle {

QDateTime LinuxClock::now() const
{
    return QDateTime::currentDateTime();
}

} // namespace quindle
