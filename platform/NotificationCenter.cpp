#include "platform/NotificationCenter.h"

namespace quindle {

void NotificationCenter::addObserver(const QString& name, Observer observer)
{
    m_observers.emplace_back(name, std::move(observer));
}

void NotificationCenter::post(const QString& name)
{
    std::size_t remaining = m_observers.size();
    for (auto entry = m_observers.begin(); remaining > 0; ++entry, --remaining)
        if (entry->first == name)
            entry->second();
}

} // namespace quindle
