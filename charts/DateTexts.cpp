#include "charts/DateTexts.h"

#include <QDateTime>
#include <QRegularExpression>

#include "common/Translation.h"

namespace quindle {

QString clockText(QTime time, const QLocale& locale)
{
    // Some locales have seconds in their short format.
    static const QRegularExpression seconds(QStringLiteral("[:.]s+"));
    return withAsciiDigits(locale.toString(time, locale.timeFormat(QLocale::ShortFormat).remove(seconds)));
}

QString dayText(QDate day, const QLocale& locale)
{
    // No format of the locale is a day without its year.
    const QString order = locale.dateFormat(QLocale::ShortFormat);
    const bool dayFirst = order.indexOf(u'd') < order.indexOf(u'M');
    return withAsciiDigits(
        locale.toString(day, dayFirst ? translated("Dates", "d MMM", "as date formats write it")
                                      : translated("Dates", "MMM d", "as date formats write it")));
}

QString dateText(QDate day, const QLocale& locale)
{
    static const QRegularExpression weekday(QStringLiteral(u"^dddd[, \u060C]*|[, \u060C]*dddd$"));
    return withAsciiDigits(locale.toString(day, locale.dateFormat(QLocale::LongFormat).remove(weekday)));
}

QString momentText(qint64 moment, bool withTime, const QLocale& locale)
{
    const QDateTime local = QDateTime::fromSecsSinceEpoch(moment);
    const QString date = dateText(local.date(), locale);
    return withTime ? date + QStringLiteral(", ") + clockText(local.time(), locale) : date;
}

} // namespace quindle
