#pragma once

#include <optional>
#include <vector>

#include <QObject>

#include "settings/WarningSettings.h"
#include "warnings/WarningWatch.h"

namespace quindle {

class CommandRunner;
class HelperAppDelegate;
class Notifier;
class PowerManagers;
class QDBattery;
struct Platform;

/// What warnings need beside the helper's platform.
struct WarningServices
{
    Notifier& notifier;
    PowerManagers& powerManagers;
    CommandRunner* commands = nullptr; ///< null runs none
};

/// The helper's part in warnings of the battery's charge. It looks at the battery whenever the status item
/// has been refreshed, and has no timer. Other programs that warn are looked for only when there is something
/// to warn of. It also sets whether the status item needs attention. Main thread only.
class WarningKeeper : public QObject
{
public:
    /// All must outlive it; the notifications of `platform` may come until they are gone.
    WarningKeeper(const Platform& platform, HelperAppDelegate& delegate, const WarningServices& services);

private:
    void follow();
    void lookAgain();
    void beginAnew();
    BatteryReading readingOf(const QDBattery& battery) const;
    void carryOut(const std::vector<WarningAction>& actions);
    void warn(const std::vector<WarningAction>& actions);
    void warnUnless(const QString& desktop);
    void withdraw();
    void runCommand(const WarningAction& action);

    const Platform& m_platform;
    HelperAppDelegate& m_delegate;
    WarningServices m_services;
    WarningWatch m_watch;
    WarningSettings m_settings;
    WarningsChoice m_choice = WarningsChoice::Automatic;
    std::optional<double> m_percentSeen;  ///< in whole percent
    std::vector<WarningAction> m_waiting; ///< for the answer to who else warns
    bool m_isAsking = false;
    bool m_needsAttention = false;
    bool m_commandHasFailed = false;
};

} // namespace quindle
