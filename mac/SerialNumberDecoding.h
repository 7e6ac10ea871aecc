#pragma once

#include <optional>

#include <QDateTime>
#include <QString>

/// What a serial number says. Two layouts are known, of 11 and of 12 characters. A character is what people
/// see as one, such as a letter with a combining mark.

namespace quindle {

/// The build date. Nothing for a serial that is neither 11 nor 12 characters long, and for one of 11
/// characters whose week is not a number. Unknown codes are not errors: their year is 2000, their week (of 12
/// characters) 1.
std::optional<QDateTime> buildDate(const QString& serial);

/// The characters that date the computer: positions 3 to 5 of 11, 4 and 5 of 12; empty for another length.
QString dateCharacters(const QString& serial);

/// The configuration code: the last three of 11, the last four of 12; empty for another length.
QString configurationCode(const QString& serial);

/// The moment `week` weeks after the Monday on or before 1 January of `year` (1000 to 9999), counted from
/// local midnight of 1 January in weeks and days of fixed length: beyond a change to or from summer time it
/// is an hour off midnight.
std::optional<QDateTime> weekDate(int year, int week);

} // namespace quindle
