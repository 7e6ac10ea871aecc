#include <QDateTime>
#include <QXmlStreamWriter>

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"
#include "plist/PropertyList.h"

namespace quindle {

namespace {

void writeValue(QXmlStreamWriter& xml, const QVariant& value);

/// Empty for a date whose year does not have four digits, which no reader accepts.
QString isoText(const QDateTime& date)
{
    return date.toUTC().toString(Qt::ISODate);
}

bool isWritable(const QVariant& value)
{
    if (isNumber(value))
        return true;
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
    case QMetaType::QVariantMap:
        return true;
    case QMetaType::QDateTime:
        return !isoText(value.toDateTime()).isEmpty();
    default:
        return false;
    }
}

bool isXmlCharacter(QChar character)
{
    const char16_t code = character.unicode();
    if (character.isSurrogate())
        return false; // one half of a character
    // XML does not allow U+FFFE and U+FFFF.
    return code >= 0x20 ? code < 0xfffe : code == u'\t' || code == u'\n' || code == u'\r';
}

bool isPairAt(const QString& text, qsizetype index)
{
    return text[index].isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
}

/// XML has no way to write other control characters, nor half a surrogate pair; one of them would make the
/// whole list unreadable.
QString xmlText(const QString& text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (isPairAt(text, index))
            kept += text[index++];
        else if (!isXmlCharacter(text[index]))
            continue;
        kept += text[index];
    }
    return kept;
}

/// A text with its carriage returns, as references: readers of XML turn a bare one into a line feed.
void writeText(QXmlStreamWriter& xml, const QString& element, const QString& text)
{
    xml.writeStartElement(element);
    const QStringList lines = xmlText(text).split(u'\r');
    xml.writeCharacters(lines.constFirst());
    for (const QString& line : lines.mid(1)) {
        xml.writeEntityReference(QStringLiteral("#13"));
        xml.writeCharacters(line);
    }
    xml.writeEndElement();
}

void writeList(QXmlStreamWriter& xml, const QVariantList& list)
{
    xml.writeStartElement(QStringLiteral("array"));
    for (const QVariant& item : list)
        if (isWritable(item))
            writeValue(xml, item);
    xml.writeEndElement();
}

void writeMap(QXmlStreamWriter& xml, const QVariantMap& map)
{
    xml.writeStartElement(QStringLiteral("dict"));
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        // Only this value is left out: an empty date made readers refuse the whole list.
        if (!isWritable(entry.value()))
            continue;
        writeText(xml, QStringLiteral("key"), entry.key());
        writeValue(xml, entry.value());
    }
    xml.writeEndElement();
}

void writeValue(QXmlStreamWriter& xml, const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        xml.writeEmptyElement(value.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
        return;
    case QMetaType::Double:
        xml.writeTextElement(QStringLiteral("real"), shortestText(value.toDouble()));
        return;
    case QMetaType::QString:
        writeText(xml, QStringLiteral("string"), value.toString());
        return;
    case QMetaType::QByteArray:
        xml.writeTextElement(QStringLiteral("data"), QString::fromLatin1(value.toByteArray().toBase64()));
        return;
    case QMetaType::QDateTime:
        xml.writeTextElement(QStringLiteral("date"), isoText(value.toDateTime()));
        return;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        writeList(xml, value.toList());
        return;
    case QMetaType::QVariantMap:
        writeMap(xml, value.toMap());
        return;
    default:
        // With a sign, so that every reader sees a negative number.
        xml.writeTextElement(QStringLiteral("integer"), integerText(value.toLongLong()));
        return;
    }
}

} // namespace

QByteArray xmlPropertyList(const QVariant& value)
{
    if (!isWritable(value))
        return {};
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    // Tabs, as in the files that the other programs write.
    xml.setAutoFormattingIndent(-1);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
    xml.writeStartElement(QStringLiteral("plist"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    writeValue(xml, value);
    xml.writeEndDocument();
    return bytes;
}

} // namespace quindle
