#pragma once

#include <QString>
#include <QStringList>

#include "platform/Notifier.h"
#include "warnings/WarningTexts.h"
#include "warnings/WarningWatch.h"

namespace quindle {

/// A battery that is refreshed every ten seconds from 08:00 on, and what it leads to, a line each.
struct WarningStream
{
    WarningStream()
    {
        const int percents[] = {20, 10, 5, 100, 0};
        for (const WarningLevel level : warningLevels)
            settings[level].percent = percents[indexOf(level)];
    }

    /// Lets that much time pass while the charge changes evenly to `to`, with a refresh at the end of each
    /// ten seconds.
    void pass(double seconds, double to)
    {
        const int refreshes = static_cast<int>(seconds / 10);
        const double from = reading.percent;
        for (int refresh = 1; refresh <= refreshes; ++refresh) {
            reading.moment += 10;
            reading.percent = from + (to - from) * refresh / refreshes;
            take(refresh % 2 == 0 ? noise : -noise);
        }
    }

    void pass(double seconds) { pass(seconds, reading.percent); }
    void passMinutes(double minutes, double to) { pass(60 * minutes, to); }
    void passMinutes(double minutes) { pass(60 * minutes); }

    /// One reading, ten seconds later, as if the charge were that.
    void readOnce(double percent)
    {
        reading.moment += 10;
        take(percent - reading.percent);
    }

    /// One reading, that much later, with nothing changed.
    void readAfter(qint64 seconds)
    {
        reading.moment += seconds;
        take(0);
    }

    void sleep(double seconds, double to)
    {
        reading.moment += static_cast<qint64>(seconds);
        reading.percent = to;
        watch.wake(reading.moment);
    }

    void discharge() { reading.state = SampleState::Discharging; }
    void charge() { reading.state = SampleState::Charging; }

    /// The lines since the last call.
    QStringList lines() { return std::exchange(m_lines, {}); }

    WarningWatch watch;
    WarningSettings settings;
    BatteryReading reading{.moment = 8 * 3600,
                           .percent = 50,
                           .state = SampleState::Discharging,
                           .minutesToEmpty = {},
                           .chargeLimit = {},
                           .battery = QStringLiteral("one")};
    double noise = 0; ///< points by which readings are off, this way and that in turn

private:
    void take(double offset)
    {
        BatteryReading odd = reading;
        odd.percent += offset;
        for (const WarningAction& action : watch.take(odd, settings))
            m_lines.append(timeOfDay() + u' ' + lineOf(action));
    }

    QString timeOfDay() const
    {
        const auto part = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0')); };
        return part(reading.moment / 3600) + u':' + part(reading.moment / 60 % 60) + u':' +
               part(reading.moment % 60);
    }

    static QString lineOf(const WarningAction& action)
    {
        using Kind = WarningAction::Kind;
        if (action.kind == Kind::Withdraw)
            return QStringLiteral("withdraw");
        if (action.kind == Kind::Run)
            return QStringLiteral("run ") + commandArguments(action).join(u' ');
        const Notification shown = notificationOf(action);
        const QString verb = action.kind == Kind::Show ? QStringLiteral("show ") : QStringLiteral("replace ");
        const QString mark =
            shown.urgency == Notification::Urgency::Critical ? QStringLiteral("!") : QString();
        return verb + shown.title + mark + QStringLiteral(": ") + shown.text;
    }

    QStringList m_lines;
};

/// Lines of expected output.
inline QStringList linesOf(const char* text)
{
    return QString::fromLatin1(text).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace quindle
