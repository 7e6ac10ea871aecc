#pragma once

#include <QVariant>

namespace quindle {

/// The date that lies this many seconds after the start of 2001 in UTC, to the millisecond, as a local time;
/// invalid when the number is not finite or the date beyond what a date can hold.
QVariant dateFromArchivedSeconds(double seconds);

} // namespace quindle
