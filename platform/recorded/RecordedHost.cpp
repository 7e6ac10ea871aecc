#include "platform/recorded/RecordedHost.h"

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

QDateTime RecordedClock::now() const
{
    return m_computer.now().value_or(QDateTime::currentDateTimeUtc());
}

QString RecordedHost::localizedName() const
{
    return m_computer.hostName();
}

std::optional<QVariantMap> RecordedSystemFiles::propertyList(const QString& path) const
{
    return m_computer.file(path);
}

} // namespace quindle
