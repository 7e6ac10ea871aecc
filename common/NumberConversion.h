#pragma once

#include <optional>

#include <QString>
#include <QVariant>

/// Property-list values as the platform's number class sees them: booleans, integers and reals are one class
/// and compare by value; a text is never a number. Registry reads and settings both use these rules, so that
/// "another type" means the same everywhere. A value that does not convert gives nothing; what that leads to
/// (an abort for the registry, a default value for settings) is the caller's rule.
namespace quindle {

/// True for booleans, integers and doubles; false for everything else, the invalid value included.
bool isNumber(const QVariant& value);

/// A boolean, or a number equal to 0 or 1.
std::optional<bool> convertToBoolean(const QVariant& value);

/// An integer, a boolean (1 or 0), or a double without fraction that fits 64 bits.
std::optional<qint64> convertToInteger(const QVariant& value);

/// Any number.
std::optional<double> convertToDouble(const QVariant& value);

/// A text.
std::optional<QString> convertToText(const QVariant& value);

/// What the platform's `integerForKey:` makes of a stored object: numbers truncate toward zero (1.9 is 1),
/// texts give their leading integer (" 2x" is 2, "x" is 0), anything else, or nothing, gives 0.
qint64 integerFromObject(const QVariant& object);

/// A text that may be missing as a value read by key: a missing one is the invalid value, unlike an empty
/// one.
inline QVariant variantFromOptional(const std::optional<QString>& text)
{
    return text ? QVariant(*text) : QVariant();
}

} // namespace quindle
