#pragma once

#include <QDateTime>
#include <QVariant>

namespace quindle {

/// The date that lies this many seconds after the start of 2001 in UTC, to the millisecond, as a local time
/// or in UTC. Beyond what a date can hold, or infinite, it is the farthest one; invalid for what is not a
/// number.
QVariant dateFromSeconds(double seconds, Qt::TimeSpec spec = Qt::LocalTime);

/// The seconds from the start of 2001 to `date`; they read back as the same millisecond.
double secondsOfDate(const QDateTime& date);

} // namespace quindle
