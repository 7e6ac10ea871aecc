#include "platform/recorded/RecordedLoginItems.h"

#include <algorithm>

#include "platform/Bundle.h"
#include "platform/FileUrl.h"
#include "platform/recorded/RecordedComputer.h"

namespace quindle {

std::optional<std::vector<LoginItems::Item>> RecordedLoginItems::snapshot()
{
    std::vector<Item> items;
    for (const QString& url : m_computer.loginItems()) {
        // Never forgotten: an item keeps its number when a step changes the list.
        if (!m_known.contains(url))
            m_known.append(url);
        items.push_back(static_cast<Item>(m_known.indexOf(url)));
    }
    return items;
}

std::optional<QString> RecordedLoginItems::resolve(Item item)
{
    if (item < 0 || item >= m_known.size())
        return std::nullopt;
    // A machine file may have bundles with or without a slash at the end.
    return normalFileUrl(m_known[item]);
}

void RecordedLoginItems::insertBeforeFirst(const QString& fileUrl)
{
    m_computer.setLoginItems(QStringList(fileUrl) + m_computer.loginItems());
}

void RecordedLoginItems::remove(Item item)
{
    QStringList items = m_computer.loginItems();
    if (item >= 0 && item < m_known.size() && items.removeOne(m_known[item]))
        m_computer.setLoginItems(items);
}

void RecordedLoginItems::setEnabled(const QString& identifier, bool enabled)
{
    m_enabled[identifier] = enabled;
    const QString helper = fileUrl(helperBundlePath(m_bundle.path()));
    const auto startsHelper = [wanted = normalFileUrl(helper)](const QString& url) {
        return normalFileUrl(url) == wanted;
    };
    QStringList items = m_computer.loginItems();
    const bool isThere = std::any_of(items.cbegin(), items.cend(), startsHelper);
    // It is so already, in whatever way.
    if (isThere == enabled)
        return;
    if (enabled)
        items.prepend(helper);
    else
        // All of them: one that stays would still start the helper.
        items.removeIf(startsHelper);
    m_computer.setLoginItems(items);
}

std::optional<bool> RecordedLoginItems::isEnabled(const QString& identifier) const
{
    const auto found = m_enabled.find(identifier);
    if (found == m_enabled.end())
        return std::nullopt;
    return found->second;
}

} // namespace quindle
