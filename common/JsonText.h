#pragma once

#include <QByteArray>
#include <QVariant>

namespace quindle {

/// One value as JSON on one line, ASCII control characters and line separators escaped, UTF-8 otherwise.
/// Integers are whole, doubles read back as the same double ("inf", "-inf", "nan" as texts), dates are texts
/// as `isoDateText` writes them, data is base64 text; an invalid value is null.
QByteArray jsonText(const QVariant& value);

/// ISO 8601 in the local time zone, whole seconds, always with a numeric offset: "2014-03-02T00:00:00+01:00".
QString isoDateText(const QDateTime& date);

} // namespace quindle
