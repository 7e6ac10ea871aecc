#include "common/JsonText.h"

#include <cmath>

#include <QDateTime>

#include "common/NumberTexts.h"

namespace quindle {

namespace {

QString twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

/// Characters that end a line for some reader, the two that JSON itself uses inside a text, and surrogates:
/// half a pair cannot be written as UTF-8.
bool mustBeEscaped(QChar c)
{
    return c < u' ' || c == u'"' || c == u'\\' || (c >= u'\u007f' && c <= u'\u009f') || c == u'\u2028' ||
           c == u'\u2029' || c.isSurrogate();
}

void appendEscaped(QString& out, QChar c)
{
    if (c == u'"' || c == u'\\')
        out += QStringLiteral("\\") + c;
    else
        out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
}

QString quoted(const QString& text)
{
    QString out = QStringLiteral("\"");
    for (const QChar c : text) {
        if (mustBeEscaped(c))
            appendEscaped(out, c);
        else
            out += c;
    }
    return out + u'"';
}

QString doubleText(double number)
{
    const QString text = shortestText(number);
    // JSON has no number for these.
    return std::isfinite(number) ? text : quoted(text);
}

QString valueText(const QVariant& value);

QString listText(const QVariantList& list)
{
    QStringList items;
    for (const QVariant& item : list)
        items.append(valueText(item));
    return u'[' + items.join(u',') + u']';
}

QString mapText(const QVariantMap& map)
{
    QStringList items;
    // In the order of the keys, so that outputs can be compared as text.
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        items.append(quoted(it.key()) + u':' + valueText(it.value()));
    return u'{' + items.join(u',') + u'}';
}

QString dateText(const QDateTime& date)
{
    return date.isValid() ? quoted(isoDateText(date)) : QStringLiteral("null");
}

QString valueText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringLiteral("null");
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Double:
        return doubleText(value.toDouble());
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QDateTime:
        return dateText(value.toDateTime());
    case QMetaType::QByteArray:
        return quoted(QString::fromLatin1(value.toByteArray().toBase64()));
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return listText(value.toList());
    case QMetaType::QVariantMap:
        return mapText(value.toMap());
    default:
        return integerText(value.toLongLong());
    }
}

} // namespace

QByteArray jsonText(const QVariant& value)
{
    return valueText(value).toUtf8();
}

QString isoDateText(const QDateTime& date)
{
    // Written by hand, because Qt leaves the offset out of local times.
    const QDateTime local = date.toLocalTime();
    const int offset = local.offsetFromUtc() / 60;
    const QString day = QStringLiteral("%1-").arg(local.date().year(), 4, 10, QLatin1Char('0')) +
                        twoDigits(local.date().month()) + u'-' + twoDigits(local.date().day());
    const QString time = twoDigits(local.time().hour()) + u':' + twoDigits(local.time().minute()) + u':' +
                         twoDigits(local.time().second());
    const QChar sign = offset < 0 ? u'-' : u'+';
    return day + u'T' + time + sign + twoDigits(std::abs(offset) / 60) + u':' +
           twoDigits(std::abs(offset) % 60);
}

} // namespace quindle
