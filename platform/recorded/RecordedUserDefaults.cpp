#include "platform/recorded/RecordedUserDefaults.h"

#include <utility>

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

RecordedUserDefaults::RecordedUserDefaults(RecordedComputer& computer, QString name)
    : m_computer(computer)
    , m_name(std::move(name))
{
}

QVariant RecordedUserDefaults::object(const QString& key) const
{
    return m_computer.database(m_name).value(key);
}

void RecordedUserDefaults::setObject(const QString& key, const QVariant& value)
{
    m_computer.setInDatabase(m_name, key, value);
}

QVariantMap RecordedUserDefaults::dictionaryRepresentation() const
{
    return m_computer.database(m_name);
}

QString RecordedUserDefaults::file() const
{
    // For messages: a wrong setting is wrong in that file.
    return m_computer.machineFile();
}

RecordedUserDefaultsDatabases::RecordedUserDefaultsDatabases(RecordedComputer& computer)
    : m_computer(computer)
    , m_standard(computer, QStringLiteral("standard"))
    , m_group(computer, groupDatabaseName())
{
}

UserDefaults* RecordedUserDefaultsDatabases::suite(const QString& suiteName)
{
    if (suiteName != groupDatabaseName() || m_computer.isSuiteUnavailable())
        return nullptr;
    return &m_group;
}

} // namespace quindle
