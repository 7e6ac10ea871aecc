#pragma once

#include <QByteArray>
#include <QStringList>

namespace quindle {

/// One record as RFC 4180 writes it, with its CRLF: fields that hold a comma, a quote or a line break are
/// quoted. UTF-8.
QByteArray csvRecord(const QStringList& fields);

} // namespace quindle
