#include "platform/macos/MacPowerSources.h"

#include <algorithm>
#include <utility>

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(macPowerLog, "quindle.power")

} // namespace

std::optional<QVariantMap> MacPowerSources::externalAdapterDetails()
{
    QVariantMap details = m_calls.adapter();
    return details.isEmpty() ? std::nullopt : std::optional(std::move(details));
}

std::optional<int> MacPowerSources::sourceCount()
{
    auto sources = m_calls.sources();
    if (!sources)
        return std::nullopt;
    m_listed = std::move(*sources);
    // One that has gone between being listed and described is no longer a source.
    m_listed.erase(std::remove(m_listed.begin(), m_listed.end(), QVariantMap()), m_listed.end());
    return static_cast<int>(m_listed.size());
}

std::optional<QVariantMap> MacPowerSources::description(int source)
{
    if (source < 0 || source >= static_cast<int>(m_listed.size()))
        return std::nullopt;
    return m_listed[static_cast<std::size_t>(source)];
}

MacPowerEvents::MacPowerEvents(PowerCalls& calls, RunLoop& runLoop)
    : m_calls(calls)
    , m_limit(runLoop, RateLimit::settleTime, [this] { m_observer(); })
{
}

void MacPowerEvents::setObserver(std::function<void()> observer)
{
    m_observer = std::move(observer);
    if (std::exchange(m_isListening, true))
        return;
    if (!m_calls.observe([this] { m_limit.request(); }))
        qCWarning(macPowerLog, "changes of power sources are not announced here");
}

} // namespace quindle
