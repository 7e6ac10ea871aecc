#pragma once

#include <QDateTime>
#include <QVariant>

namespace quindle {

/// The date that lies this many seconds after the start of 2001 in UTC, to the millisecond, as a local time.
/// One beyond what a date can hold, or infinitely far, is the farthest; invalid when the number is none.
QVariant dateFromSeconds(double seconds);

/// The seconds between the start of 2001 and `date`, which lead back to the same millisecond.
double secondsOfDate(const QDateTime& date);

} // namespace quindle
