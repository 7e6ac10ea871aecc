#include "app/MachineServices.h"

#include <utility>

#include "common/NumberConversion.h"
#include "platform/recorded/RecordedComputer.h"
#include "settings/SettingsTable.h"

namespace quindle {

bool isHistoryKeptOf(const RecordedComputer& computer)
{
    const QVariantMap settings = computer.database(QStringLiteral("standard"));
    return convertToBoolean(settings.value(Keys::recordHistory.name())).value_or(false);
}

void MachineUrlSession::post(const QString& url, const QByteArray& body,
                             std::function<void(int status, const QByteArray& body)> answered)
{
    if (m_computer.bundle())
        m_network.post(url, body, std::move(answered));
}

std::optional<QByteArray> MachineUrlSession::contents(const QString& url)
{
    return m_recorded.contents(url);
}

} // namespace quindle
