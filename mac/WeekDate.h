#pragma once

#include <optional>

#include <QDateTime>

namespace quindle {

/// The moment `week` weeks after the Monday on or before 1 January of `year` (1000 to 9999), counted from
/// local midnight of 1 January in weeks and days of fixed length: beyond a change to or from summer time it
/// is an hour off midnight.
std::optional<QDateTime> weekDate(int year, int week);

} // namespace quindle
