#pragma once

#include "platform/Host.h"
#include "platform/recorded/RecordedComputer.h"

namespace quindle {

class RecordedComputer;

/// Stands still at the recorded moment; without one it is the real clock.
class RecordedClock : public Clock
{
public:
    explicit RecordedClock(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    QDateTime now() const override;

private:
    const RecordedComputer& m_computer;
};

class RecordedHost : public Host
{
public:
    explicit RecordedHost(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    QString localizedName() const override;

private:
    const RecordedComputer& m_computer;
};

class RecordedSystemFiles : public SystemFiles
{
public:
    explicit RecordedSystemFiles(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    std::optional<QVariantMap> propertyList(const QString& path) const override;

private:
    const RecordedComputer& m_computer;
};

class RecordedUserDirectories : public UserDirectories
{
public:
    explicit RecordedUserDirectories(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    QStringList applicationSupportDirectories() const override
    {
        return m_computer.applicationSupportDirectories();
    }

private:
    const RecordedComputer& m_computer;
};

} // namespace quindle
