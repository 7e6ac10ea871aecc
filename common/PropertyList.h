#pragma once

#include <optional>

#include <QByteArray>
#include <QVariant>

/// Property lists, XML and binary, to and from plain values: text (QString), integer (qint64), real (double),
/// boolean (bool), date (QDateTime, local time), data (QByteArray), array (QVariantList), dictionary
/// (QVariantMap). An integer written as unsigned above 2^63 is its signed 64-bit value: dumps of unsigned
/// values show negative currents that way.
namespace quindle {

/// The value in `bytes`; nothing when they are no property list of either encoding,
/// and when they are nested deeper than 512 or, with shared values written out, hold more than a million.
std::optional<QVariant> propertyListFromBytes(const QByteArray& bytes);

constexpr qint64 mostPropertyListBytes = qint64{64} * 1024 * 1024;

/// The same from a file; nothing also when it is no ordinary file, larger than that, or cannot be read.
std::optional<QVariant> propertyListFromFile(const QString& path);

/// `value` as an XML property list. Values of other types than those above are left out, and so are
/// dates before the year 0 and after 9999.
QByteArray xmlPropertyList(const QVariant& value);

} // namespace quindle
