#include "common/RealFromText.h"

#include <cmath>
#include <limits>

#include <QByteArray>
#include <QString>

namespace quindle {

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Takes the digits that the text begins with, and says how many they were.
qsizetype takeDigits(QByteArrayView& text)
{
    qsizetype count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    text = text.sliced(count);
    return count;
}

bool takeOne(QByteArrayView& text, const char* choice)
{
    if (text.isEmpty() || !QByteArrayView(choice).contains(text.front()))
        return false;
    text = text.sliced(1);
    return true;
}

bool isDecimal(QByteArrayView text)
{
    qsizetype digits = takeDigits(text);
    if (takeOne(text, "."))
        digits += takeDigits(text);
    if (digits == 0)
        return false;
    if (!takeOne(text, "eE"))
        return text.isEmpty();
    takeOne(text, "+-");
    return takeDigits(text) > 0 && text.isEmpty();
}

bool isTag(QByteArrayView text)
{
    for (const char character : text) {
        const bool isLetter =
            (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
        if (!isDigit(character) && !isLetter && character != '_')
            return false;
    }
    return true;
}

bool isNan(const QByteArray& word)
{
    return word == "nan" || (word.startsWith("nan(") && word.endsWith(')') &&
                             isTag(QByteArrayView(word).sliced(4).chopped(1)));
}

std::optional<double> fromWord(const QByteArray& word)
{
    if (word == "inf" || word == "infinity")
        return std::numeric_limits<double>::infinity();
    return isNan(word) ? std::optional(std::numeric_limits<double>::quiet_NaN()) : std::nullopt;
}

} // namespace

std::optional<double> realFromText(QByteArrayView text)
{
    QByteArrayView rest = text;
    const bool isNegative = takeOne(rest, "-");
    // Qt's conversion is the same on every system, but takes more than numbers. QByteArray's gives 0 for what
    // is too large.
    if (isDecimal(rest))
        return QString::fromLatin1(text).toDouble();
    const auto number = fromWord(rest.toByteArray().toLower());
    return number && isNegative ? std::copysign(*number, -1.0) : number;
}

} // namespace quindle
