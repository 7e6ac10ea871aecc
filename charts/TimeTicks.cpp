#include "charts/TimeTicks.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDateTime>

#include "charts/DateTexts.h"
#include "common/GregorianMonths.h"

namespace quindle {

namespace {

constexpr int minute = 60;
constexpr int hour = 60 * minute;
constexpr int day = 24 * hour;
constexpr int week = 7;

enum class CalendarUnit { Second, Day, Week, Month };

struct CalendarStep
{
    CalendarUnit unit;
    int count; ///< of the unit; of weeks the days
    double seconds() const
    {
        constexpr double monthDays = 30.44;
        if (unit == CalendarUnit::Second)
            return count;
        return day * (unit == CalendarUnit::Month ? monthDays : 1.0) * count;
    }
};

constexpr std::array steps{
    CalendarStep{CalendarUnit::Second, minute},
    CalendarStep{CalendarUnit::Second, 2 * minute},
    CalendarStep{CalendarUnit::Second, 5 * minute},
    CalendarStep{CalendarUnit::Second, 10 * minute},
    CalendarStep{CalendarUnit::Second, 15 * minute},
    CalendarStep{CalendarUnit::Second, 30 * minute},
    CalendarStep{CalendarUnit::Second, hour},
    CalendarStep{CalendarUnit::Second, 2 * hour},
    CalendarStep{CalendarUnit::Second, 3 * hour},
    CalendarStep{CalendarUnit::Second, 4 * hour},
    CalendarStep{CalendarUnit::Second, 6 * hour},
    CalendarStep{CalendarUnit::Second, 12 * hour},
    CalendarStep{CalendarUnit::Day, 1},
    CalendarStep{CalendarUnit::Day, 2},
    CalendarStep{CalendarUnit::Day, 4},
    CalendarStep{CalendarUnit::Week, week},
    CalendarStep{CalendarUnit::Week, 2 * week},
    CalendarStep{CalendarUnit::Month, 1},
    CalendarStep{CalendarUnit::Month, 2},
    CalendarStep{CalendarUnit::Month, 3},
    CalendarStep{CalendarUnit::Month, 6},
    CalendarStep{CalendarUnit::Month, 12},
    CalendarStep{CalendarUnit::Month, 24},
    CalendarStep{CalendarUnit::Month, 60},
    CalendarStep{CalendarUnit::Month, 120},
    CalendarStep{CalendarUnit::Month, 240},
    CalendarStep{CalendarUnit::Month, 600},
    CalendarStep{CalendarUnit::Month, 1200},
    CalendarStep{CalendarUnit::Month, 2400},
    CalendarStep{CalendarUnit::Month, 6000},
    CalendarStep{CalendarUnit::Month, 12000},
    CalendarStep{CalendarUnit::Month, 24000},
    CalendarStep{CalendarUnit::Month, 60000},
};

QDateTime localTime(qint64 moment)
{
    return QDateTime::fromSecsSinceEpoch(moment);
}

int secondOfDay(qint64 moment)
{
    return localTime(moment).time().msecsSinceStartOfDay() / 1000;
}

/// Hours of the wall clock. A change to or from summer time repeats or skips one, so every moment that may be
/// one is looked at. Offsets of zones are whole quarters of an hour.
std::vector<qint64> clockMoments(int step, qint64 from, qint64 to)
{
    const int grid = step < 5 * minute ? minute : step < 15 * minute ? 5 * minute : 15 * minute;
    std::vector<qint64> moments;
    qint64 moment = from + (grid - from % grid) % grid;
    while (moment <= to) {
        const bool isTick = secondOfDay(moment) % step == 0;
        if (isTick)
            moments.push_back(moment);
        // The next one is at least a step away, less the largest change of a clock.
        moment += isTick ? std::max(grid, step - 2 * hour) : grid;
    }
    return moments;
}

/// A tick every few days as the step says, counted through all months and years so that they stay evenly
/// apart; weeks begin on the locale's first day.
std::vector<qint64> dayMoments(const CalendarStep& step, qint64 from, qint64 to, const QLocale& locale)
{
    const qint64 phase =
        step.unit == CalendarUnit::Week ? locale.firstDayOfWeek() - 1 : 0; // day 0 is a Monday
    qint64 number = localTime(from).date().toJulianDay();
    number += (step.count - (number - phase) % step.count) % step.count;
    std::vector<qint64> moments;
    for (;; number += step.count) {
        const qint64 moment = startOfLocalDay(QDate::fromJulianDay(number)).toSecsSinceEpoch();
        if (moment > to)
            return moments;
        if (moment >= from)
            moments.push_back(moment);
    }
}

std::vector<qint64> monthMoments(int step, qint64 from, qint64 to)
{
    qint64 number = monthNumber(localTime(from).date());
    number += (step - number % step) % step;
    std::vector<qint64> moments;
    for (;; number += step) {
        const qint64 moment = startOfLocalDay(firstOfMonth(number)).toSecsSinceEpoch();
        if (moment > to)
            return moments;
        if (moment >= from)
            moments.push_back(moment);
    }
}

std::vector<qint64> momentsOf(const CalendarStep& step, qint64 from, qint64 to, const QLocale& locale)
{
    switch (step.unit) {
    case CalendarUnit::Second:
        return clockMoments(step.count, from, to);
    case CalendarUnit::Day:
    case CalendarUnit::Week:
        return dayMoments(step, from, to, locale);
    case CalendarUnit::Month:
        break;
    }
    return monthMoments(step.count, from, to);
}

QString labelOf(qint64 moment, CalendarUnit unit, const QLocale& locale)
{
    const QDateTime local = localTime(moment);
    if (unit == CalendarUnit::Second && local.time() != QTime(0, 0))
        return clockText(local.time(), locale);
    if (unit != CalendarUnit::Month)
        return dayText(local.date(), locale);
    const int month = local.date().month();
    return month == 1 ? QString::number(local.date().year())
                      : locale.standaloneMonthName(month, QLocale::ShortFormat);
}

std::vector<TimeTick> labelled(const std::vector<qint64>& moments, CalendarUnit unit, const QLocale& locale)
{
    std::vector<TimeTick> ticks;
    ticks.reserve(moments.size());
    for (const qint64 moment : moments)
        ticks.push_back({moment, labelOf(moment, unit, locale)});
    return ticks;
}

} // namespace

std::vector<TimeTick> timeTicks(AxisSpan moments, int most, const QLocale& locale)
{
    // A day inside the years 1 to 9999, so that no zone leads out of them.
    constexpr double first = -62135510400.0;
    constexpr double last = 253402214400.0;
    if (moments.from > last || moments.to < first)
        return {};
    const auto from = static_cast<qint64>(std::ceil(std::clamp(moments.from, first, last)));
    const auto to = static_cast<qint64>(std::floor(std::clamp(moments.to, first, last)));
    const auto room = static_cast<std::size_t>(std::max(most, 2));
    const auto isTooFine = [&](const CalendarStep& step) {
        return static_cast<double>(to - from) / step.seconds() > static_cast<double>(room) + 2;
    };

    auto step = std::find_if_not(steps.begin(), steps.end() - 1, isTooFine);
    std::vector<qint64> found = momentsOf(*step, from, to, locale);
    while (found.size() > room && step != steps.end() - 1)
        found = momentsOf(*++step, from, to, locale);
    if (found.size() < 2 && step != steps.begin()) {
        const std::vector<qint64> finer = momentsOf(*(step - 1), from, to, locale);
        if (finer.size() >= 2)
            return labelled({finer.front(), finer.back()}, (step - 1)->unit, locale);
    }
    return labelled(found, step->unit, locale);
}

} // namespace quindle
