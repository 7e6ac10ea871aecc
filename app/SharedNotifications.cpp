#include "app/SharedNotifications.h"

namespace quindle {

SharedNotifications::SharedNotifications(DistributedNotificationCenter& below)
    : m_below(below)
{
}

void SharedNotifications::addObserver(const QString& name, NotificationCenter::Observer observer)
{
    m_below.addObserver(name, std::move(observer));
    if (m_names.contains(name))
        return;
    m_names.insert(name);
    // Last, so that the windows find what the helper did about it.
    m_below.addObserver(name, [this, name] {
        if (m_forward && !m_isFromWindows)
            m_forward(name);
    });
}

void SharedNotifications::post(const QString& name)
{
    m_below.post(name);
}

void SharedNotifications::postForWindows(const QString& name)
{
    m_isFromWindows = true;
    m_below.post(name);
    m_isFromWindows = false;
}

} // namespace quindle
