#pragma once

#include <functional>
#include <memory>

#include <QDBusConnection>
#include <QObject>

#include "platform/RateLimit.h"
#include "platform/linux/windows/PortalWishes.h"

class QDBusPendingCallWatcher;

namespace quindle {

class BusLink;
class RunLoop;

/// Follows what the desktop's settings portal says about how windows should look. Nothing waits for it;
/// without one nothing is wished. Main thread only.
class SettingsPortal final : public QObject
{
    Q_OBJECT

public:
    /// `changed` is called from the main loop when the wishes change; before the first answer there are none.
    /// The loop must live longer.
    SettingsPortal(RunLoop& runLoop, std::function<void(const DesktopWishes&)> changed);
    ~SettingsPortal() override;

    /// Follows the portal of this session, on the connection that the whole process shares.
    void followSession();

    /// The session bus from now on; one that is not connected is none. What was wished stays.
    void setBus(const QDBusConnection& bus);

private Q_SLOTS:
    void settingChanged();
    void ownerChanged(const QString& name, const QString& before, const QString& now);

private:
    void ask();
    void hear();

    std::function<void(const DesktopWishes&)> m_changed;
    QDBusConnection m_bus{QString()};
    DesktopWishes m_wishes;
    RateLimit m_changes;
    std::unique_ptr<QDBusPendingCallWatcher> m_question;
    std::unique_ptr<BusLink> m_link;
};

} // namespace quindle
