#include "common/PropertyListXml.h"

#include <charconv>

#include <QDateTime>
#include <QXmlStreamReader>

#include "common/BinaryPropertyListShape.h"

// Read here and not by the library for binary lists: that one reads reals by the user's language (0,5), takes
// lists that are cut off, and recurses as deep as a file tells it to.
namespace quindle {

namespace {

/// A value, or nothing where the element holds none.
using Value = std::optional<QVariant>;

Value anInteger(const QString& text)
{
    const bool isNegative = text.startsWith(u'-');
    const QString digits = isNegative || text.startsWith(u'+') ? text.mid(1) : text;
    if (digits.isEmpty() || !digits.front().isLetterOrNumber())
        return std::nullopt;
    const bool isHexadecimal = digits.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
    bool isNumber = false;
    const quint64 number = digits.toULongLong(&isNumber, isHexadecimal ? 16 : 10);
    if (!isNumber)
        return std::nullopt;
    return QVariant::fromValue(static_cast<qint64>(isNegative ? 0 - number : number));
}

Value aReal(const QString& text)
{
    const QByteArray bytes = (text.startsWith(u'+') ? text.mid(1) : text).toUtf8();
    const char* const end = bytes.constData() + bytes.size();
    double number = 0;
    const auto [stop, error] = std::from_chars(bytes.constData(), end, number);
    if (stop != end || error == std::errc::invalid_argument)
        return std::nullopt;
    return error == std::errc() ? QVariant(number) : QVariant(text.toDouble()); // beyond range: infinite or 0
}

Value aDate(const QString& text)
{
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    if (!date.isValid())
        return std::nullopt;
    return date.toLocalTime();
}

Value someData(const QString& text)
{
    QByteArray base64;
    for (const QChar character : text)
        if (!character.isSpace())
            base64 += character.toLatin1();
    const auto decoded = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return QVariant(*decoded);
}

Value aValue(QXmlStreamReader& xml, int level);

/// The values until the end of the present element; an error raised in `xml` ends them too.
Value anArray(QXmlStreamReader& xml, int level)
{
    QVariantList list;
    while (xml.readNextStartElement()) {
        const Value item = aValue(xml, level + 1);
        if (!item)
            return std::nullopt;
        list.append(*item);
    }
    return list;
}

Value aDictionary(QXmlStreamReader& xml, int level)
{
    QVariantMap map;
    while (xml.readNextStartElement()) {
        if (xml.name() != u"key")
            return std::nullopt;
        const QString key = xml.readElementText();
        if (!xml.readNextStartElement())
            return std::nullopt;
        const Value item = aValue(xml, level + 1);
        if (!item)
            return std::nullopt;
        map.insert(key, *item);
    }
    return map;
}

Value aBoolean(QXmlStreamReader& xml, bool value)
{
    xml.skipCurrentElement();
    return value;
}

Value aValue(QXmlStreamReader& xml, int level)
{
    const QString type = xml.name().toString();
    if (type == u"dict" || type == u"array") {
        if (level >= mostPropertyListLevels)
            return std::nullopt;
        return type == u"dict" ? aDictionary(xml, level) : anArray(xml, level);
    }
    if (type == u"true" || type == u"false")
        return aBoolean(xml, type == u"true");
    const QString text = xml.readElementText();
    if (type == u"string")
        return QVariant(text);
    if (type == u"data")
        return someData(text);
    const QString trimmed = text.trimmed();
    if (type == u"integer")
        return anInteger(trimmed);
    if (type == u"real")
        return aReal(trimmed);
    return type == u"date" ? aDate(trimmed) : std::nullopt;
}

} // namespace

std::optional<QVariant> propertyListFromXml(const QByteArray& bytes)
{
    QXmlStreamReader xml(bytes);
    if (!xml.readNextStartElement() || xml.name() != u"plist" || !xml.readNextStartElement())
        return std::nullopt;
    const Value value = aValue(xml, 0);
    const bool isOnlyValue = !xml.readNextStartElement();
    while (!xml.atEnd())
        xml.readNext();
    return isOnlyValue && !xml.hasError() ? value : std::nullopt;
}

} // namespace quindle
