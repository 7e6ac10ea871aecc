#include "platform/macos/MacNotifications.h"

#include <utility>

namespace quindle {

MacDistributedNotificationCenter::MacDistributedNotificationCenter(NotificationCalls& calls, QString sender)
    : m_calls(calls)
    , m_sender(std::move(sender))
{
}

void MacDistributedNotificationCenter::addObserver(const QString& name, NotificationCenter::Observer observer)
{
    m_observers.addObserver(name, std::move(observer));
    if (!m_observed.insert(name).second)
        return;
    m_calls.observe(name, [this, name](const QString& sender) {
        if (sender != m_sender)
            m_observers.post(name);
    });
}

void MacDistributedNotificationCenter::post(const QString& name)
{
    m_observers.post(name);
    m_calls.post(name, m_sender);
}

} // namespace quindle
