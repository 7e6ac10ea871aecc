#pragma once

#include <QByteArray>

namespace quindle {

/// An XML property list in the binary encoding; a dictionary of the one key "CF$UID" becomes a UID. Empty
/// when `xml` is cut off, is followed by anything else, nests deeper than `mostPropertyListLevels` or holds
/// an invalid number, date or data.
QByteArray binaryFromXml(const QByteArray& xml);

} // namespace quindle
