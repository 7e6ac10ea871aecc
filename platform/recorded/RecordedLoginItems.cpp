#include "platform/recorded/RecordedLoginItems.h"

#include <numeric>

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

std::optional<std::vector<LoginItems::Item>> RecordedLoginItems::snapshot()
{
    m_snapshot = m_computer.loginItems();
    std::vector<Item> items(static_cast<std::size_t>(m_snapshot.size()));
    std::iota(items.begin(), items.end(), 0);
    return items;
}

std::optional<QString> RecordedLoginItems::resolve(Item item)
{
    if (item < 0 || item >= m_snapshot.size())
        return std::nullopt;
    return m_snapshot[item];
}

void RecordedLoginItems::insertBeforeFirst(const QString& fileUrl)
{
    m_computer.setLoginItems(QStringList(fileUrl) + m_computer.loginItems());
}

void RecordedLoginItems::remove(Item item)
{
    const std::optional<QString> url = resolve(item);
    QStringList items = m_computer.loginItems();
    if (url && items.removeOne(*url))
        m_computer.setLoginItems(items);
}

void RecordedLoginItems::setEnabled(const QString& identifier, bool enabled)
{
    m_enabled[identifier] = enabled;
}

std::optional<bool> RecordedLoginItems::isEnabled(const QString& identifier) const
{
    const auto found = m_enabled.find(identifier);
    if (found == m_enabled.end())
        return std::nullopt;
    return found->second;
}

} // namespace quindle
