#pragma once

#include <optional>

#include <QByteArray>
#include <QVariant>

namespace quindle {

/// The value in an XML property list; nothing when `xml` is cut off, is followed by anything else, nests
/// deeper than `mostPropertyListLevels` or holds a number, date or data that is none.
std::optional<QVariant> propertyListFromXml(const QByteArray& xml);

} // namespace quindle
