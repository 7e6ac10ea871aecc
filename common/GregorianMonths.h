#pragma once

#include <QDateTime>

/// Months numbered consecutively in 64 bits, so that no arithmetic on them can overflow. Dates
/// that lie outside what QDateTime can hold are moved to its first or last year.
namespace quindle {

/// Months since January of the year before year 1.
qint64 monthNumber(QDate day);

/// The month number of `month` (1 is January; 0 and 13 are the neighbouring years' months) in `year`, counted
/// so that year 0 is the one before year 1.
qint64 monthNumber(qint64 year, qint64 month);

/// The first day of a month.
QDate firstOfMonth(qint64 number);

/// The first moment of `day` in the process's time zone, or of the next day where a zone leaves `day` out.
QDateTime startOfLocalDay(QDate day);

} // namespace quindle
