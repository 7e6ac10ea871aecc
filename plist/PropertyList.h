#pragma once

#include <optional>

#include <QByteArray>
#include <QVariant>

/// Property lists, XML and binary, to and from plain values: text (QString), integer (qint64), real (double),
/// boolean (bool), date (QDateTime, local time), data (QByteArray), array (QVariantList), dictionary
/// (QVariantMap). A set is an array, and a UID the dictionary that XML writes for it. An integer written as
/// unsigned above 2^63 is its signed 64-bit value: dumps of unsigned values show negative currents that way.
/// A real beyond the range of a double is infinite or 0, a date beyond what QDateTime holds the farthest one,
/// and one that is not a number an invalid value.
namespace quindle {

/// The value in `bytes`; nothing when they are not a property list of either encoding, are nested deeper than
/// `mostPropertyListLevels`, or unfold to far more than they hold.
std::optional<QVariant> propertyListFromBytes(const QByteArray& bytes);

constexpr qint64 mostPropertyListBytes = qint64{64} * 1024 * 1024;

/// The same from a file; nothing also when it is not an ordinary file, is larger than that, or cannot be
/// read.
std::optional<QVariant> propertyListFromFile(const QString& path);

/// `value` as an XML property list. Values of other types than those above are left out, and so are
/// dates before the year 0 and after 9999.
QByteArray xmlPropertyList(const QVariant& value);

} // namespace quindle
