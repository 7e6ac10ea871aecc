#include "common/NumberConversion.h"

#include <cmath>
#include <limits>

namespace quindle {

namespace {

constexpr double twoTo63 = 9223372036854775808.0;

bool fitsInteger(double number)
{
    // 2^63 is a double and does not fit; the next smaller double does.
    return number >= -twoTo63 && number < twoTo63;
}

bool isInteger(int type)
{
    switch (type) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

/// As `strtoll` in base 10, but saturating: leading blanks, an optional sign, digits; anything else ends it.
qint64 leadingInteger(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return std::strtoll(bytes.constData(), nullptr, 10);
}

} // namespace

bool isNumber(const QVariant& value)
{
    const int type = value.typeId();
    return type == QMetaType::Bool || type == QMetaType::Double || isInteger(type);
}

std::optional<bool> convertToBoolean(const QVariant& value)
{
    if (!isNumber(value))
        return std::nullopt;
    // Compared as a double, so that 1 and 1.0 are the same number.
    const double number = value.toDouble();
    if (number == 0.0)
        return false;
    if (number == 1.0)
        return true;
    return std::nullopt;
}

std::optional<qint64> convertToInteger(const QVariant& value)
{
    if (!isNumber(value))
        return std::nullopt;
    if (value.typeId() != QMetaType::Double)
        return value.toLongLong();
    const double number = value.toDouble();
    // Converting a double that does not fit is undefined in C++.
    if (!fitsInteger(number) || std::trunc(number) != number)
        return std::nullopt;
    return static_cast<qint64>(number);
}

std::optional<double> convertToDouble(const QVariant& value)
{
    if (!isNumber(value))
        return std::nullopt;
    return value.toDouble();
}

std::optional<QString> convertToText(const QVariant& value)
{
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

qint64 integerFromObject(const QVariant& object)
{
    if (const auto text = convertToText(object))
        return leadingInteger(*text);
    if (!isNumber(object))
        return 0;
    if (object.typeId() != QMetaType::Double)
        return object.toLongLong();
    const double number = object.toDouble();
    // Anybody may have written the stored settings: unlike above, nothing is refused here.
    if (std::isnan(number))
        return 0;
    if (!fitsInteger(number))
        return number < 0 ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    return static_cast<qint64>(number);
}

} // namespace quindle
