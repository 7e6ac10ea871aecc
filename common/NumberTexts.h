#pragma once

#include <QString>

/// Numbers as text, the same in every locale: ASCII digits, a point, no grouping.
namespace quindle {

/// The shortest decimal text that reads back to the same double; a whole value keeps ".0", so does a negative
/// zero ("-0.0"). An exponent only below 0.0001 and from 1e16 on. "nan" (without a sign, whatever the bits
/// say), "inf" and "-inf" when not finite.
QString shortestText(double number);

/// As the C formats "%.0f" and "%.1f" write it (exact ties go to the even digit, unlike Qt's own formats);
/// "nan", "inf" and "-inf" when not finite.
QString fixedText(double number, int decimals);

/// The number in decimal, with a minus sign when negative.
QString integerText(qint64 number);

/// Minutes as "%d:%02d" of the quotient and the remainder by 60, both truncated toward zero: 125 is "2:05",
/// 65535 is "1092:15", -65 is "-1:-5" (the width counts the sign). No value is special here.
QString formatMinutes(qint64 minutes);

} // namespace quindle
