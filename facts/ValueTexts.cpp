#include "facts/ValueTexts.h"

#include <cmath>

#include <QLocale>

#include "common/NumberTexts.h"
#include "common/Translation.h"

namespace quindle {

namespace {

QString withUnit(const QString& figure, const QString& unit)
{
    return figure.isEmpty() ? figure : figure + u' ' + unit;
}

/// Empty for what is not known.
QString amountText(qint64 milliampHours, const CapacityWords& words)
{
    if (!words.voltage || milliampHours <= 0)
        return countText(milliampHours, words.place);
    return figureText(double(milliampHours) * *words.voltage / 1000, words.place);
}

} // namespace

QString knownText(const std::optional<QString>& text)
{
    return text && !text->trimmed().isEmpty() ? *text : QString();
}

QString figureText(double figure, FactPlace place)
{
    if (!std::isfinite(figure))
        return {};
    const QString text = fixedText(figure, 1);
    return place == FactPlace::Report ? text : withDecimalSign(text);
}

QString percentText(double percent, FactPlace place)
{
    return withUnit(figureText(percent, place), QStringLiteral("%"));
}

QString wattsText(double watts, FactPlace place)
{
    return withUnit(figureText(watts, place), QStringLiteral("W"));
}

QString countText(qint64 count, FactPlace place)
{
    // Drivers that do not count cycles write 0, as that of dell-latitude-5501 does.
    return count > 0 ? groupedText(count, groupSeparator(place)) : QString();
}

QString capacitiesText(qint64 held, qint64 room, const CapacityWords& words)
{
    const QString unit = words.voltage ? QStringLiteral("Wh") : QStringLiteral("mAh");
    const QString first = amountText(held, words);
    const QString second = withUnit(amountText(room, words), unit);
    if (words.place == FactPlace::Report) // each with its unit, for programs that pick a column
        return first.isEmpty() ? first : joined(withUnit(first, unit), QStringLiteral(" of "), second);
    if (second.isEmpty())
        return withUnit(first, unit);
    // A dash stands for an unknown charge, so that what follows is not taken for it.
    return translated("Facts", "%1 of %2", "capacities")
        .arg(first.isEmpty() ? missingValueText() : first, second);
}

QString cyclesText(qint64 count)
{
    const QString number = countText(count, FactPlace::View);
    if (number.isEmpty())
        return number;
    return count == 1 ? translated("Facts", "1 cycle")
                      : translated("Facts", "%1 cycles", nullptr, count).arg(number);
}

QString groupedText(qint64 number, const QString& separator)
{
    QString text = integerText(number);
    const qsizetype firstDigit = number < 0 ? 1 : 0;
    for (qsizetype position = text.size() - 3; position > firstDigit; position -= 3)
        text.insert(position, separator);
    return text;
}

QString groupSeparator(FactPlace place)
{
    if (place == FactPlace::Report)
        return {};
    // Groups are for people only; the report is the same in every locale.
    const QString separator = QLocale().groupSeparator();
    // A point beside a decimal point would be read as one: 6.000 mAh.
    return separator == decimalSign() ? QString(QChar(u'\u202F')) : separator;
}

QString joined(const QString& first, const QString& between, const QString& second)
{
    return first.isEmpty() || second.isEmpty() ? first + second : first + between + second;
}

QString besideEachOther(const QString& first, const QString& second)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    const QString both = isolatedText(first) + QStringLiteral(u" \u00B7 ") + isolatedText(second);
    // Between isolated texts nothing has a direction that the whole could take.
    constexpr QChar rightToLeftMark(u'\u200F');
    return runsRightToLeft() ? rightToLeftMark + both : both;
}

QString missingValueText()
{
    return QString(QChar(u'\u2013'));
}

} // namespace quindle
