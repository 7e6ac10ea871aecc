#pragma once

#include <set>

#include "platform/NotificationCenter.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// The system also delivers a process's own posts, later. Its observers have been called by then, so those
/// are skipped: each post names its sender.
class MacDistributedNotificationCenter : public DistributedNotificationCenter
{
public:
    /// `sender` is this process's own text, which no other process has.
    MacDistributedNotificationCenter(NotificationCalls& calls, QString sender);

    void addObserver(const QString& name, NotificationCenter::Observer observer) override;
    void post(const QString& name) override;

private:
    NotificationCalls& m_calls;
    QString m_sender;
    std::set<QString> m_observed;
    NotificationCenter m_observers;
};

} // namespace quindle
