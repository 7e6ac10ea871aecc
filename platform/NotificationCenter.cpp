#include "platform/NotificationCenter.h"

#include <algorithm>
#include <utility>

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(notificationLog, "quindle.notifications")

} // namespace

void NotificationCenter::addObserver(const QString& name, Observer observer)
{
    const auto isSame = [&](const auto& entry) {
        return entry.first == name && entry.second.target_type() == observer.target_type();
    };
    if (std::count_if(m_observers.begin(), m_observers.end(), isSame) < mostRegistrations) {
        m_observers.emplace_back(name, std::move(observer));
        return;
    }
    if (!std::exchange(m_hasRefused, true))
        qCInfo(notificationLog).noquote()
            << "an observer of" << name << "is registered" << mostRegistrations << "times, which is enough";
}

void NotificationCenter::post(const QString& name)
{
    std::size_t remaining = m_observers.size();
    for (auto entry = m_observers.begin(); remaining > 0; ++entry, --remaining)
        if (entry->first == name)
            entry->second();
}

} // namespace quindle
