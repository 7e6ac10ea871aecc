#include "plist/XmlTranscript.h"

#include <algorithm>
#include <bit>
#include <optional>

#include <QDateTime>
#include <QXmlStreamReader>
#include <QtEndian>

#include "common/RealFromText.h"
#include "plist/PropertyListDate.h"
#include "plist/PropertyListLimits.h"

namespace quindle {

namespace {

QByteArray eightBytes(quint64 number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

// The binary encoding's markers, with counts and numbers always in eight bytes.
constexpr char falseMarker = '\x08';
constexpr char trueMarker = '\x09';
constexpr char integerMarker = '\x13';
constexpr char realMarker = '\x23';
constexpr char dateMarker = '\x33';
constexpr char dataMarker = '\x4f';
constexpr char asciiMarker = '\x5f';
constexpr char wideTextMarker = '\x6f';
constexpr char referenceMarker = '\x87';
constexpr char arrayMarker = '\xaf';
constexpr char dictionaryMarker = '\xdf';

QByteArray counted(char marker, quint64 count)
{
    return QByteArray(1, marker) + integerMarker + eightBytes(count);
}

QByteArray counted(char marker, qsizetype count)
{
    return counted(marker, static_cast<quint64>(count));
}

/// The bytes of an object, or nothing where an element holds no value of its type.
using Object = std::optional<QByteArray>;

QByteArray textObject(const QString& text)
{
    // Most texts are ASCII, and take half the room.
    const bool isAscii = std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
    if (isAscii)
        return counted(asciiMarker, text.size()) + text.toLatin1();
    QByteArray characters(text.size() * 2, Qt::Uninitialized);
    qToBigEndian<char16_t>(text.utf16(), text.size(), characters.data());
    return counted(wideTextMarker, text.size()) + characters;
}

Object integerObject(const QString& text)
{
    const bool isNegative = text.startsWith(u'-');
    const QString digits = isNegative || text.startsWith(u'+') ? text.mid(1) : text;
    if (digits.isEmpty() || !digits.front().isLetterOrNumber())
        return std::nullopt;
    // Property lists may write integers this way.
    const bool isHexadecimal = digits.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
    bool isNumber = false;
    const quint64 number = digits.toULongLong(&isNumber, isHexadecimal ? 16 : 10);
    if (!isNumber)
        return std::nullopt;
    // Two's complement by hand, so that the smallest number is not an overflow.
    return integerMarker + eightBytes(isNegative ? 0 - number : number);
}

Object realObject(const QString& text)
{
    // Writers of property lists also write a plus.
    const auto number = realFromText((text.startsWith(u'+') ? text.mid(1) : text).toUtf8());
    if (!number)
        return std::nullopt;
    return realMarker + eightBytes(std::bit_cast<quint64>(*number));
}

Object dateObject(const QString& text)
{
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    if (!date.isValid())
        return std::nullopt;
    return dateMarker + eightBytes(std::bit_cast<quint64>(secondsOfDate(date)));
}

Object dataObject(const QString& text)
{
    QByteArray base64;
    for (const QChar character : text)
        // Writers break data into indented lines.
        if (!character.isSpace())
            base64 += character.toLatin1();
    const auto decoded = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return counted(dataMarker, (*decoded).size()) + *decoded;
}

Object scalarObject(QStringView type, const QString& text)
{
    if (type == u"string")
        return textObject(text);
    if (type == u"data")
        return dataObject(text);
    const QString trimmed = text.trimmed();
    if (type == u"integer")
        return integerObject(trimmed);
    if (type == u"real")
        return realObject(trimmed);
    return type == u"date" ? dateObject(trimmed) : std::nullopt;
}

/// Writes each element as one object of the binary encoding, containers after what they hold.
class XmlTranscript
{
public:
    explicit XmlTranscript(const QByteArray& xml)
        : m_xml(xml)
    {
    }

    QByteArray binary();

private:
    using Node = std::optional<quint64>;

    Node addValue(int level);
    Node addContainer(bool isDictionary, int level);
    quint64 add(const QByteArray& object);

    QXmlStreamReader m_xml;
    QByteArray m_bytes = "bplist00";
    QByteArray m_offsets;
    qsizetype m_last = 0; ///< where the last object begins
};

QByteArray XmlTranscript::binary()
{
    if (!m_xml.readNextStartElement() || m_xml.name() != u"plist" || !m_xml.readNextStartElement())
        return {};
    const Node root = addValue(1);
    // Anything after the one value makes the list broken, as it does for other readers.
    const bool isOnlyValue = !m_xml.readNextStartElement();
    while (!m_xml.atEnd())
        m_xml.readNext();
    if (!root || !isOnlyValue || m_xml.hasError())
        return {};
    const auto offsetTable = static_cast<quint64>(m_bytes.size());
    return m_bytes + m_offsets + QByteArray(6, '\0') + "\x08\x08" +
           eightBytes(static_cast<quint64>(m_offsets.size()) / 8) + eightBytes(*root) +
           eightBytes(offsetTable);
}

quint64 XmlTranscript::add(const QByteArray& object)
{
    m_last = m_bytes.size();
    m_offsets += eightBytes(static_cast<quint64>(m_last));
    m_bytes += object;
    return static_cast<quint64>(m_offsets.size()) / 8 - 1;
}

XmlTranscript::Node XmlTranscript::addValue(int level)
{
    const QString type = m_xml.name().toString();
    if (type == u"dict" || type == u"array")
        return level <= mostPropertyListLevels ? addContainer(type == u"dict", level) : std::nullopt;
    if (type == u"true" || type == u"false") {
        m_xml.skipCurrentElement();
        return add(QByteArray(1, type == u"true" ? trueMarker : falseMarker));
    }
    const Object object = scalarObject(type, m_xml.readElementText());
    return object ? Node(add(*object)) : std::nullopt;
}

/// Until the end of the current element; an error in the XML ends it too.
XmlTranscript::Node XmlTranscript::addContainer(bool isDictionary, int level)
{
    QByteArray keys;
    QByteArray values;
    QString key;
    while (m_xml.readNextStartElement()) {
        if (isDictionary) {
            if (m_xml.name() != u"key")
                return std::nullopt;
            key = m_xml.readElementText();
            keys += eightBytes(add(textObject(key)));
            if (!m_xml.readNextStartElement())
                return std::nullopt;
        }
        const Node value = addValue(level + 1);
        if (!value)
            return std::nullopt;
        values += eightBytes(*value);
    }
    // The form that a reference has in XML.
    if (keys.size() == 8 && key == u"CF$UID" && m_bytes[m_last] == integerMarker)
        return add(referenceMarker + m_bytes.last(8));
    // After what it holds, so its references are known when it is written.
    return add(counted(isDictionary ? dictionaryMarker : arrayMarker, values.size() / 8) + keys + values);
}

} // namespace

QByteArray binaryFromXml(const QByteArray& xml)
{
    return XmlTranscript(xml).binary();
}

} // namespace quindle
