#include "common/Translation.h"

#include <cstdlib>

#include <QCoreApplication>
#include <QLocale>

namespace quindle {

QString translated(const char* context, const char* text, const char* about)
{
    return QCoreApplication::translate(context, text, about);
}

QString translated(const char* context, const char* text, const char* about, qint64 count)
{
    // An int has no room for every number; forms follow the last digits.
    constexpr qint64 room = 1'000'000'000;
    const auto form = static_cast<int>(std::abs(count % room));
    return QCoreApplication::translate(context, text, about, form);
}

QLocale shownLocale()
{
    return QLocale(translated("Numbers", "C", "the language's locale, such as de_DE"));
}

bool runsRightToLeft()
{
    return shownLocale().textDirection() == Qt::RightToLeft;
}

QString isolatedText(const QString& text)
{
    constexpr QChar firstStrongIsolate(u'\u2068');
    constexpr QChar popIsolate(u'\u2069');
    return runsRightToLeft() && !text.isEmpty() ? firstStrongIsolate + text + popIsolate : text;
}

QString decimalSign()
{
    return translated("Numbers", ".", "between a whole number and its decimals");
}

QString withDecimalSign(const QString& number)
{
    return QString(number).replace(u'.', decimalSign());
}

QString withAsciiDigits(QString date)
{
    for (QChar& character : date)
        if (character.isDigit())
            character = QChar(u'0' + character.digitValue());
    return date;
}

} // namespace quindle
