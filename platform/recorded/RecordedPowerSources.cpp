#include "platform/recorded/RecordedPowerSources.h"

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

std::optional<QVariantMap> RecordedPowerSources::externalAdapterDetails()
{
    return m_computer.adapterDetails();
}

std::optional<int> RecordedPowerSources::sourceCount()
{
    const std::optional<QVariantList> sources = m_computer.powerSources();
    // Without the key the service cannot be asked, which is fatal beside a battery; an empty array means no
    // sources.
    if (!sources)
        return std::nullopt;
    return static_cast<int>(sources->size());
}

std::optional<QVariantMap> RecordedPowerSources::description(int source)
{
    const QVariantList sources = m_computer.powerSources().value_or(QVariantList());
    if (source < 0 || source >= sources.size())
        return std::nullopt;
    return sources[source].toMap();
}

} // namespace quindle
