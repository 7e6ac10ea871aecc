#pragma once

#include <QString>
#include <QVariant>

/// Property-list values as the platform describes them in plain text.
namespace quindle {

/// A number: booleans as 1 and 0, integers in decimal, reals in their shortest form without ".0" (60.0 is
/// "60", 61.5 is "61.5"). Empty for anything but a number.
QString numberDescription(const QVariant& number);

/// Any value: numbers as above, texts as they are, dates as "2014-03-02 00:00:00 +0000" (UTC), data as
/// "<0a0b>" in groups of four bytes. Arrays stand in parentheses, dictionaries in braces, with an item, or a
/// "key = value;" in the order of the keys, on each line, indented by four blanks. Inside those, texts of
/// anything but ASCII letters and digits are quoted and escaped. Empty for values of other types.
QString valueDescription(const QVariant& value);

} // namespace quindle
