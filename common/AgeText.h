#pragma once

#include <QDateTime>
#include <QString>

/// Ages of batteries and computers, counted by the Gregorian calendar in the process's time zone.
namespace quindle {

/// Whole days from `from` to `to`, negative when `to` is earlier. A day is over when the same time of day is
/// reached, also across a change to or from summer time.
qint64 wholeDays(const QDateTime& from, const QDateTime& to);

/// Whole months from `from` to `to`, negative when `to` is earlier. A month is over when the same day of
/// month and time of day are reached; in a month too short for that day, on its last day.
qint64 wholeMonths(const QDateTime& from, const QDateTime& to);

/// `months` in years with one decimal, halves away from zero: 30 gives "2.5 years", 24 "2.0 years".
QString yearsText(qint64 months);

/// The age from `from` to `to`: mode 1 "34 months", mode 2 as `yearsText`, every other mode "1042 days".
QString ageText(int mode, const QDateTime& from, const QDateTime& to);

} // namespace quindle
