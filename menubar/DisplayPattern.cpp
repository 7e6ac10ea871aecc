#include "menubar/DisplayPattern.h"

#include "menubar/ValueTexts.h"

namespace quindle {

namespace {

QString partSeparator()
{
    return QStringLiteral(u" \u00B7 ");
}

} // namespace

DisplayPattern::DisplayPattern(const QString& pattern)
{
    for (const QString& part : pattern.split(partSeparator()))
        m_parts.push_back(parsePart(part));
}

DisplayPattern::Part DisplayPattern::parsePart(const QString& text)
{
    Part part;
    qsizetype position = 0;
    for (;;) {
        const qsizetype open = text.indexOf(u'{', position);
        const qsizetype close = text.indexOf(u'}', open);
        if (open < 0 || close < 0)
            break;
        part.push_back(
            {text.mid(position, open - position), parseField(text.mid(open + 1, close - open - 1))});
        position = close + 1;
    }
    part.push_back({text.mid(position), std::nullopt});
    return part;
}

DisplayPattern::Field DisplayPattern::parseField(const QString& text)
{
    Field field;
    field.format = text.section(u':', 1);
    for (const QString& path : text.section(u':', 0, 0).split(u'|'))
        field.paths.emplace_back(path);
    return field;
}

std::optional<QString> DisplayPattern::text(const Resolver& resolve) const
{
    std::optional<QString> text;
    for (const Part& part : m_parts) {
        if (const auto more = partText(part, resolve))
            text = text ? *text + partSeparator() + *more : *more;
    }
    return text;
}

std::optional<QString> DisplayPattern::partText(const Part& part, const Resolver& resolve)
{
    QString text;
    bool hasFields = false;
    bool tells = false;
    for (const Piece& piece : part) {
        text += piece.literal;
        if (!piece.field)
            continue;
        const QString value = fieldText(*piece.field, resolve);
        hasFields = true;
        tells = tells || !value.isEmpty();
        text += value.isEmpty() ? missingValueText() : value;
    }
    return tells || !hasFields ? std::optional(text) : std::nullopt;
}

QString DisplayPattern::fieldText(const Field& field, const Resolver& resolve)
{
    for (const KeyPath& path : field.paths) {
        QString text = valueText(resolve(path), field.format);
        if (!text.isEmpty())
            return text;
    }
    return {};
}

std::vector<KeyPath> DisplayPattern::paths() const
{
    std::vector<KeyPath> paths;
    for (const Part& part : m_parts) {
        for (const Piece& piece : part) {
            if (piece.field)
                paths.insert(paths.end(), piece.field->paths.begin(), piece.field->paths.end());
        }
    }
    return paths;
}

QStringList DisplayPattern::unknownFormats() const
{
    QStringList unknown;
    for (const Part& part : m_parts) {
        for (const Piece& piece : part) {
            if (piece.field && !isValueFormat(piece.field->format))
                unknown.append(piece.field->format);
        }
    }
    return unknown;
}

QString missingValueText()
{
    return QString(QChar(u'\u2013'));
}

} // namespace quindle
