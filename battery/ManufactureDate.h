#pragma once

#include <QDateTime>

/// The packed manufacture date of batteries: bits 0 to 4 are the day, bits 5 to 8 the month, all bits from 9
/// on the year counted from 1980, with its sign.
namespace quindle {

/// The date at midnight local time. A month or day out of range runs over into its neighbours (0 is 30
/// November 1979); a year beyond what QDateTime can hold becomes its first or last. Never invalid.
QDateTime decodeManufactureDate(qint64 packed);

/// The same date, at noon, read from the binary digits: the former decoding.
QDateTime decodeManufactureDateByDigits(qint64 packed);

} // namespace quindle
