#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

/// Dates and times in the words and the order of a locale, as short as an axis needs them, in ASCII digits.
namespace quindle {

/// Hours and minutes: the locale's short format without the seconds that some have.
QString clockText(QTime time, const QLocale& locale);

/// Day and month without the year: "16 Nov" or "Nov 16".
QString dayText(QDate day, const QLocale& locale);

/// The locale's long format without the day of the week: "14 September 2025".
QString dateText(QDate day, const QLocale& locale);

/// A moment in seconds since 1970, in local time: its date, with `withTime` also the time.
QString momentText(qint64 moment, bool withTime, const QLocale& locale);

} // namespace quindle
