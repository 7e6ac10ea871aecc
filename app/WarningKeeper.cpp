#include "app/WarningKeeper.h"

#include <cmath>
#include <utility>

#include <QLoggingCategory>

#include "app/BatterySample.h"
#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "platform/DetachedPrograms.h"
#include "platform/Host.h"
#include "platform/NotificationCenter.h"
#include "platform/Notifier.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/StatusBar.h"
#include "platform/UserDefaults.h"
#include "warnings/WarningTexts.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(warningLog, "quindle.warnings")

// inherited: in minutes, what batteries report that do not know the time yet.
constexpr qint64 unknownTime = 65535;

std::optional<int> minutesToEmpty(const QDBattery& battery)
{
    const qint64 minutes = battery.avgTimeToEmpty();
    // A missing time reads as 0.
    if (minutes <= 0 || minutes >= unknownTime)
        return std::nullopt;
    return static_cast<int>(minutes);
}

} // namespace

WarningKeeper::WarningKeeper(const Platform& platform, HelperAppDelegate& delegate,
                             const WarningServices& services)
    : m_platform(platform)
    , m_delegate(delegate)
    , m_services(services)
    , m_settings(warningSettings(platform.userDefaults.standard()))
    , m_choice(warningsChoice(platform.userDefaults.standard()))
{
    connect(&delegate, &HelperAppDelegate::statusItemRefreshed, this, &WarningKeeper::follow);
    platform.workspaceNotifications.addDidWakeObserver([this] {
        lookAgain();
        m_watch.wake(m_platform.clock.now().toSecsSinceEpoch());
    });
    platform.distributedNotificationCenter.addObserver(QStringLiteral("SettingsChangedNotification"),
                                                       [this] { lookAgain(); });
}

void WarningKeeper::follow()
{
    const QDBattery* battery = m_delegate.myMac().Battery();
    if (!battery) {
        carryOut(m_watch.loseBattery());
    } else if (const BatteryReading reading = readingOf(*battery); std::isfinite(reading.percent)) {
        // Not at each refresh: it asks the file system.
        const double percent = std::trunc(reading.percent);
        if (std::exchange(m_percentSeen, percent) != percent)
            lookAgain();
        carryOut(m_watch.take(reading, m_settings));
    }
    const bool needsAttention = m_watch.needsAttention();
    if (std::exchange(m_needsAttention, needsAttention) != needsAttention)
        m_delegate.statusItem().setNeedsAttention(needsAttention);
}

BatteryReading WarningKeeper::readingOf(const QDBattery& battery) const
{
    BatteryReading reading{.moment = m_platform.clock.now().toSecsSinceEpoch(),
                           .percent = battery.StateOfCharge(),
                           .state = sampleState(battery),
                           .minutesToEmpty = {},
                           .chargeLimit = {},
                           .battery = battery.BatteryID()};
    if (isDischarging(reading))
        reading.minutesToEmpty = minutesToEmpty(battery);
    else
        reading.chargeLimit = m_platform.powerSources.chargeLimit();
    return reading;
}

void WarningKeeper::lookAgain()
{
    const UserDefaults& own = m_platform.userDefaults.standard();
    m_settings = warningSettings(own);
    const WarningsChoice choice = warningsChoice(own);
    if (std::exchange(m_choice, choice) != choice)
        beginAnew();
}

/// Whoever switches warnings on is warned of the present state.
void WarningKeeper::beginAnew()
{
    withdraw();
    m_watch = WarningWatch();
}

void WarningKeeper::carryOut(const std::vector<WarningAction>& actions)
{
    if (m_choice == WarningsChoice::Off || actions.empty())
        return;
    if (actions.front().kind == WarningAction::Kind::Withdraw)
        withdraw();
    if (m_choice == WarningsChoice::On) {
        warn(actions);
        return;
    }
    // A newer warning replaces one that is still waiting.
    m_waiting = actions;
    if (std::exchange(m_isAsking, true))
        return;
    m_services.powerManagers.ask([this](const QString& desktop) { warnUnless(desktop); });
}

void WarningKeeper::warnUnless(const QString& desktop)
{
    m_isAsking = false;
    const auto actions = std::exchange(m_waiting, {});
    if (desktop.isEmpty() && m_choice != WarningsChoice::Off)
        warn(actions);
}

void WarningKeeper::warn(const std::vector<WarningAction>& actions)
{
    using ActionKind = WarningAction::Kind;
    for (const WarningAction& action : actions) {
        if (action.kind == ActionKind::Show || action.kind == ActionKind::Replace)
            m_services.notifier.show(notificationOf(action));
        else if (action.kind == ActionKind::Run)
            runCommand(action);
    }
}

void WarningKeeper::withdraw()
{
    m_waiting.clear();
    m_services.notifier.withdraw();
}

void WarningKeeper::runCommand(const WarningAction& action)
{
    if (!m_services.commands)
        return;
    const QString& command = m_settings[action.level].command;
    if (m_services.commands->run(command, commandArguments(action)))
        m_commandHasFailed = false;
    // Once, until it works again: the same command fails at each level.
    else if (!std::exchange(m_commandHasFailed, true))
        qCWarning(warningLog).noquote()
            << QStringLiteral("the command for a warning cannot be run: %1").arg(command);
}

} // namespace quindle
