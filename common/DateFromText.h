#pragma once

#include <optional>

#include <QDateTime>

namespace quindle {

/// Midnight, in the process's time zone, of a day written "yyyy-MM-dd" with ASCII digits; nothing for any
/// other text. Where a zone skips midnight on that day, its first moment.
std::optional<QDateTime> dateFromText(const QString& text);

/// The day of `date` in the process's time zone as "yyyy-MM-dd" with ASCII digits.
QString dayText(const QDateTime& date);

} // namespace quindle
