#pragma once

#include <functional>

#include <QSet>
#include <QString>

#include "platform/NotificationCenter.h"

namespace quindle {

/// The helper's notifications between processes, shared with its windows: those have no connection to the
/// bus. What the helper hears or posts it forwards to them, and what they post goes out from here, so that
/// each notification reaches everybody once, with a session bus or without.
class SharedNotifications : public DistributedNotificationCenter
{
public:
    /// `below` must outlive it.
    explicit SharedNotifications(DistributedNotificationCenter& below);

    void addObserver(const QString& name, NotificationCenter::Observer observer) override;
    void post(const QString& name) override;

    /// Sets what forwards a notification that this process observes to the windows; empty for nothing.
    void setForward(std::function<void(const QString& name)> forward) { m_forward = std::move(forward); }

    /// Posts what the windows have posted, which is not forwarded to them.
    void postForWindows(const QString& name);

private:
    DistributedNotificationCenter& m_below;
    QSet<QString> m_names;
    std::function<void(const QString& name)> m_forward;
    bool m_isFromWindows = false;
};

} // namespace quindle
