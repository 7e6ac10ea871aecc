#include "common/NumberTexts.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace quindle {

namespace {

// Room for the longest double in fixed notation, 309 digits before the point.
using Buffer = std::array<char, 400>;

QString notFiniteText(double number)
{
    if (std::isnan(number))
        return QStringLiteral("nan"); // glibc would write the sign bit of a NaN, the platform does not
    return number < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
}

} // namespace

QString shortestText(double number)
{
    if (!std::isfinite(number))
        return notFiniteText(number);
    // No exponent where people would write none: 100000.0, not the shorter "1e+05".
    const double size = std::abs(number);
    const bool isPlain = number == 0 || (size >= 1e-4 && size < 1e16);
    Buffer buffer{};
    // to_chars ignores the locale, and gives the fewest digits that read back the same.
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    const auto text = QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
    const bool looksReal = text.contains(u'.') || text.contains(u'e');
    return looksReal ? text : text + QStringLiteral(".0");
}

QString fixedText(double number, int decimals)
{
    if (!std::isfinite(number))
        return notFiniteText(number);
    Buffer buffer{};
    // Exact ties go to the even digit, as with the C format.
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::fixed, decimals);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

QString integerText(qint64 number)
{
    // Never grouped, whatever the locale: these texts are hashed and stored.
    return QString::number(number);
}

QString formatMinutes(qint64 minutes)
{
    Buffer buffer{};
    const long long hours = minutes / 60;
    const long long rest = minutes % 60;
    // As the C format does, which counts the sign of a negative remainder.
    const int length = std::snprintf(buffer.data(), buffer.size(), "%lld:%02lld", hours, rest);
    return QString::fromLatin1(buffer.data(), length);
}

} // namespace quindle
