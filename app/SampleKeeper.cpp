#include "app/SampleKeeper.h"

#include <cstdlib>

#include <QLoggingCategory>

#include "app/BatterySample.h"
#include "app/HelperAppDelegate.h"
#include "mac/QDMac.h"
#include "platform/DetachedPrograms.h"
#include "platform/Host.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "settings/HistorySettings.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(recordLog, "quindle.record")

constexpr qint64 secondsOfHour = 3600;

qint64 secondsNow(const Clock& clock)
{
    return clock.now().toSecsSinceEpoch();
}

} // namespace

SampleKeeper::SampleKeeper(const Platform& platform, HelperAppDelegate& delegate, TextReceiver& recorder)
    : m_platform(platform)
    , m_delegate(delegate)
    , m_recorder(recorder)
    , m_lastTurn(secondsNow(platform.clock))
{
    lookAgain();
    connect(&delegate, &HelperAppDelegate::statusItemRefreshed, this, &SampleKeeper::takeSample);
    platform.workspaceNotifications.addWillSleepObserver([this] { handOverNow(); });
    platform.distributedNotificationCenter.addObserver(QStringLiteral("SettingsChangedNotification"),
                                                       [this] { lookAgain(); });
    platform.distributedNotificationCenter.addObserver(samplesWantedNotification(),
                                                       [this] { handOverNow(); });
    platform.distributedNotificationCenter.addObserver(historyDeletedNotification(),
                                                       [this] { m_samples.clear(); });
}

void SampleKeeper::takeSample()
{
    const qint64 now = secondsNow(m_platform.clock);
    if (const QDBattery* battery = m_isOn ? m_delegate.myMac().Battery() : nullptr)
        if (const auto sample = batterySample(*battery, now))
            m_samples.add(*sample);
    // Either way: a clock that was set back must not stop the hours.
    if (std::abs(now - m_lastTurn) >= secondsOfHour)
        takeTurn();
}

void SampleKeeper::takeTurn()
{
    m_lastTurn = secondsNow(m_platform.clock);
    lookAgain();
    if (!m_isOn || !m_delegate.myMac().Battery())
        return;
    const bool isNewDay = m_platform.clock.now().toLocalTime().date() != m_lastDay;
    // Once a day even without samples: the program saves the day's snapshot too.
    if ((isNewDay || !m_samples.isEmpty()) && isRecorderFree())
        handOver();
}

// Not at each refresh: both ask the file system.
void SampleKeeper::lookAgain()
{
    m_isOn = recordsHistory(m_platform.userDefaults.standard()) && m_recorder.isInstalled();
    if (!m_isOn)
        m_samples.clear();
}

// Even when others ask for it: with at most one sample a minute it cannot be abused.
void SampleKeeper::handOverNow()
{
    if (m_samples.isEmpty())
        return;
    lookAgain();
    if (!m_samples.isEmpty() && isRecorderFree())
        handOver();
}

void SampleKeeper::finish()
{
    lookAgain();
    if (!m_samples.isEmpty())
        handOver();
}

void SampleKeeper::handOver()
{
    if (!m_recorder.handOver(m_samples.lines())) {
        report("cannot be started; the samples are kept for the next hour");
        return;
    }
    m_samples.clear();
    m_lastDay = m_platform.clock.now().toLocalTime().date();
    m_hasReported = false;
}

/// A program that hangs is not joined by another one every hour.
bool SampleKeeper::isRecorderFree()
{
    if (!m_recorder.isRunning())
        return true;
    report("still runs from the last time; the samples are kept for the next hour");
    return false;
}

void SampleKeeper::report(const char* fault)
{
    if (!m_hasReported)
        qCWarning(recordLog, "the program that records the history %s", fault);
    m_hasReported = true;
}

} // namespace quindle
