#pragma once

#include <QString>
#include <QVariant>

/// Values as the battery view writes them, ASCII digits and a decimal point in every locale like the texts of
/// the models themselves.
namespace quindle {

/// False for what a person learns nothing from: a missing value, an empty text, a number that is not finite,
/// false, a null object. 0 is a number like any other.
bool tellsSomething(const QVariant& value);

/// Whole digits in groups of three, e.g. "6,000" or "-1,600".
QString groupedText(qint64 number, const QString& separator);

/// What separates groups of digits for this user: their locale's sign, but a narrow space where that is the
/// point, which is the decimal point here.
QString groupSeparator();

/// True for the formats that `valueText` knows.
bool isValueFormat(const QString& name);

/// A value in a named format; empty when it tells nothing or the format does not suit it.
///   ""        the text or number as it stands
///   grouped   a whole number, "6,000"
///   capacity  the same, and 0 or less tells nothing
///   percent   one decimal and the sign, "83.9 %"
///   figure    one decimal, "66.7"
///   watts     one decimal and the unit, "12.4 W"
///   cycles    "293 cycles", "1 cycle"
QString valueText(const QVariant& value, const QString& format);

} // namespace quindle
