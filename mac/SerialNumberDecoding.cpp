#include "mac/SerialNumberDecoding.h"

#include <algorithm>
#include <array>

#include <QStringList>
#include <QTextBoundaryFinder>

#include "common/DateFromText.h"

namespace quindle {

namespace {

constexpr qsizetype shortLength = 11;
constexpr qsizetype longLength = 12;
constexpr int unknownYear = 2000; // an unknown letter is not an error; it gives a date in that year

struct YearCode
{
    QStringView letter;
    int year;
    int weekAdded; // the second letter of a year stands for its second half
};

constexpr std::array yearCodes{
    // clang-format off
    YearCode{u"C", 2010, 0},
    YearCode{u"D", 2010, 26},
    YearCode{u"F", 2011, 0},
    YearCode{u"G", 2011, 26},
    YearCode{u"H", 2012, 0},
    YearCode{u"J", 2012, 26},
    YearCode{u"K", 2013, 0},
    YearCode{u"L", 2013, 26},
    YearCode{u"M", 2014, 0},
    YearCode{u"N", 2014, 26},
    YearCode{u"P", 2015, 0},
    YearCode{u"Q", 2015, 26},
    YearCode{u"R", 2016, 0},
    YearCode{u"S", 2016, 26},
    YearCode{u"T", 2017, 0},
    YearCode{u"V", 2017, 26},
    YearCode{u"W", 2018, 0},
    YearCode{u"X", 2018, 26},
    YearCode{u"Y", 2019, 0},
    YearCode{u"Z", 2019, 26},
    // clang-format on
};

/// The codes of weeks 1 to 27 in order; unlike the years' letters they skip S and Z.
constexpr QStringView weekCodes = u"123456789CDFGHJKLMNPQRTVWXY";

/// The years of the digits 0 to 9. inherited: 0 and 1 belong to the decade after the others'.
constexpr std::array digitYears{2010, 2011, 2002, 2003, 2004, 2005, 2006, 2007, 2008, 2009};

/// The text cut into the characters that a person perceives.
QStringList perceivedCharacters(const QString& text)
{
    QStringList characters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        characters.append(text.mid(start, end - start));
        start = end;
    }
    return characters;
}

YearCode yearOfLetter(QStringView letter)
{
    const auto isLetter = [letter](const YearCode& code) { return code.letter == letter; };
    const auto* const found = std::find_if(yearCodes.begin(), yearCodes.end(), isLetter);
    return found == yearCodes.end() ? YearCode{letter, unknownYear, 0} : *found;
}

int weekOfCode(const QString& code)
{
    const qsizetype index = code.size() == 1 ? weekCodes.indexOf(code.front()) : -1;
    // An unknown code counts as the first week.
    return index < 0 ? 1 : static_cast<int>(index) + 1;
}

int yearOfDigit(const QString& digit)
{
    if (digit.size() != 1 || digit < QStringLiteral("0") || digit > QStringLiteral("9"))
        return unknownYear;
    return digitYears[static_cast<std::size_t>(digit.front().unicode() - u'0')];
}

/// A sign or none, then ASCII digits and nothing else. (QString::toInt would also skip blanks.)
std::optional<int> strictInteger(const QString& text)
{
    const bool hasSign = text.startsWith(u'+') || text.startsWith(u'-');
    const QStringView digits = QStringView(text).mid(hasSign ? 1 : 0);
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    return text.toInt();
}

std::optional<QDateTime> shortLayoutDate(const QStringList& characters)
{
    // Week 0 is allowed, and is the Monday on or before 1 January.
    const auto week = strictInteger(characters[3] + characters[4]);
    if (!week)
        return std::nullopt;
    return weekDate(yearOfDigit(characters[2]), *week);
}

std::optional<QDateTime> longLayoutDate(const QStringList& characters)
{
    const YearCode year = yearOfLetter(characters[3]);
    return weekDate(year.year, weekOfCode(characters[4]) + year.weekAdded);
}

QString joined(const QStringList& characters, qsizetype first, qsizetype count)
{
    return characters.mid(first, count).join(QString());
}

constexpr qint64 secondsPerDay = 86400;
constexpr qint64 secondsPerWeek = 7 * secondsPerDay;

} // namespace

std::optional<QDateTime> buildDate(const QString& serial)
{
    const QStringList characters = perceivedCharacters(serial);
    if (characters.size() == shortLength)
        return shortLayoutDate(characters);
    if (characters.size() == longLength)
        return longLayoutDate(characters);
    return std::nullopt;
}

QString dateCharacters(const QString& serial)
{
    const QStringList characters = perceivedCharacters(serial);
    if (characters.size() == shortLength)
        return joined(characters, 2, 3);
    if (characters.size() == longLength)
        return joined(characters, 3, 2);
    return {};
}

QString configurationCode(const QString& serial)
{
    const QStringList characters = perceivedCharacters(serial);
    if (characters.size() == shortLength)
        return joined(characters, shortLength - 3, 3);
    if (characters.size() == longLength)
        return joined(characters, longLength - 4, 4);
    return {};
}

std::optional<QDateTime> weekDate(int year, int week)
{
    const auto newYear = dateFromText(QString::number(year) + QStringLiteral("-01-01"));
    if (!newYear)
        return std::nullopt;
    const int daysSinceMonday = newYear->date().dayOfWeek() - Qt::Monday;
    // Seconds and not days: across a change of the clock the time of day moves by an hour, which is never
    // shown.
    return newYear->addSecs(week * secondsPerWeek - daysSinceMonday * secondsPerDay);
}

} // namespace quindle
