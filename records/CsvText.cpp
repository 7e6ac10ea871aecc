#include "records/CsvText.h"

#include <algorithm>

namespace quindle {

namespace {

QString csvField(const QString& text)
{
    const bool isPlain = std::none_of(text.cbegin(), text.cend(), [](QChar c) {
        return c == u',' || c == u'"' || c == u'\r' || c == u'\n';
    });
    if (isPlain)
        return text;
    // RFC 4180: a quotation mark inside is doubled.
    return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace

QByteArray csvRecord(const QStringList& fields)
{
    QStringList written;
    for (const QString& field : fields)
        written.append(csvField(field));
    return (written.join(u',') + QStringLiteral("\r\n")).toUtf8();
}

} // namespace quindle
