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
        // Callables cannot be compared; the type identifies the place in the code that registers.
        return entry.first == name && entry.second.target_type() == observer.target_type();
    };
    // At one registration per refresh a day would leave 8,640 of them, and each post would call them all.
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
    // Counted before: observers are added at the end of the list while it is gone through.
    std::size_t remaining = m_observers.size();
    for (auto entry = m_observers.begin(); remaining > 0; ++entry, --remaining)
        if (entry->first == name)
            entry->second();
}

} // namespace quindle
