#include "common/ValueDescription.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include <QDateTime>

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"
#include "common/RealFromText.h"

namespace quindle {

namespace {

constexpr qsizetype indentWidth = 4;

QString realDescription(double number)
{
    if (!std::isfinite(number))
        return shortestText(number);
    std::array<char, 32> buffer{};
    qsizetype length = 0;
    // 15 digits give 0.1 as "0.1"; 17 always read back.
    for (int precision = 15; precision <= 17; ++precision) {
        const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                           std::chars_format::general, precision);
        length = written.ptr - buffer.data();
        if (realFromText(QByteArrayView(buffer.data(), length)) == number)
            break;
    }
    return QString::fromLatin1(buffer.data(), length);
}

QString dataDescription(const QByteArray& data)
{
    QString text = QStringLiteral("<");
    for (qsizetype start = 0; start < data.size(); start += 4) {
        if (start > 0)
            text += u' ';
        // In groups of four bytes, as the platform writes data.
        text += QString::fromLatin1(data.mid(start, 4).toHex());
    }
    return text + u'>';
}

QString dateDescription(const QDateTime& date)
{
    // Always UTC, so that the same date has one description everywhere.
    return date.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss +0000"));
}

bool isPlainCharacter(QChar character)
{
    // Anything else is quoted, even a point or a minus: "-1000" has quotes, 57 has none.
    return character.unicode() < 0x80 && character.isLetterOrNumber();
}

QString escaped(QChar character)
{
    switch (character.unicode()) {
    case '"':
        return QStringLiteral("\\\"");
    case '\\':
        return QStringLiteral("\\\\");
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    if (character.unicode() >= 0x20 && character.unicode() < 0x7f)
        return character;
    return QStringLiteral("\\U%1").arg(static_cast<uint>(character.unicode()), 4, 16, QLatin1Char('0'));
}

QString quotedWhereNeeded(const QString& text)
{
    if (!text.isEmpty() && std::all_of(text.cbegin(), text.cend(), isPlainCharacter))
        return text;
    QString quoted = QStringLiteral("\"");
    // By UTF-16 units, as the platform escapes them.
    for (const QChar character : text)
        quoted += escaped(character);
    return quoted + u'"';
}

QString nestedDescription(const QVariant& value, qsizetype level);

QString listDescription(const QVariantList& list, qsizetype level)
{
    const QString indent(level * indentWidth, u' ');
    const QString inner(indentWidth, u' ');
    QStringList lines;
    for (const QVariant& item : list)
        lines.append(indent + inner + nestedDescription(item, level + 1));
    const QString end = lines.isEmpty() ? QString() : QStringLiteral("\n");
    return indent + QStringLiteral("(\n") + lines.join(QStringLiteral(",\n")) + end + indent + u')';
}

QString mapDescription(const QVariantMap& map, qsizetype level)
{
    const QString indent(level * indentWidth, u' ');
    const QString inner(indentWidth, u' ');
    QString text = indent + QStringLiteral("{\n");
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        text += indent + inner + quotedWhereNeeded(entry.key()) + QStringLiteral(" = ") +
                nestedDescription(entry.value(), level + 1) + QStringLiteral(";\n");
    return text + indent + u'}';
}

/// A container inside another begins with its own indentation, even after "key = ", as the platform writes
/// it.
QString nestedDescription(const QVariant& value, qsizetype level)
{
    switch (value.typeId()) {
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return listDescription(value.toList(), level);
    case QMetaType::QVariantMap:
        return mapDescription(value.toMap(), level);
    case QMetaType::QByteArray:
        return valueDescription(value);
    default:
        return quotedWhereNeeded(valueDescription(value));
    }
}

} // namespace

QString numberDescription(const QVariant& number)
{
    if (!isNumber(number))
        return {};
    if (number.typeId() == QMetaType::Double)
        return realDescription(number.toDouble());
    // This makes an unsigned number above 2^63 negative, as registries show currents.
    return integerText(number.toLongLong());
}

QString valueDescription(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QDateTime:
        return dateDescription(value.toDateTime());
    case QMetaType::QByteArray:
        return dataDescription(value.toByteArray());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return listDescription(value.toList(), 0);
    case QMetaType::QVariantMap:
        return mapDescription(value.toMap(), 0);
    default:
        return numberDescription(value);
    }
}

} // namespace quindle
