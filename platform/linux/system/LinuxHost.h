#pragma once

#include "platform/Host.h"
#include "platform/linux/os/TimelyFiles.h"

namespace quindle {

/// The name that the user gave this computer (PRETTY_HOSTNAME of machine-info), else its host name.
class LinuxHost final : public Host
{
public:
    explicit LinuxHost(QString machineInfoPath = QStringLiteral("/etc/machine-info"));
    LinuxHost(QString machineInfoPath, QString hostName);

    QString localizedName() const override;

private:
    QString m_machineInfoPath;
    QString m_hostName;
    mutable TimelyFiles m_files;
};

/// The value of `name` in a file of shell-like assignments, one a line, without quotes; the last one counts.
/// Empty when there is none.
QString assignedValue(const QByteArray& assignments, const QByteArray& name);

/// The system's clock.
class LinuxClock final : public Clock
{
public:
    QDateTime now() const override;
};

/// Property-list files as they are on this computer.
class LinuxSystemFiles final : public SystemFiles
{
public:
    /// `root` is put before every path; empty for the computer's own files.
    explicit LinuxSystemFiles(QString root = {});

    std::optional<QVariantMap> propertyList(const QString& path) const override;

private:
    QString m_root;
};

/// The dictionary in a property-list file; nothing when there is no such file or it holds something else.
std::optional<QVariantMap> dictionaryFromFile(const QString& path);

/// One Application Support directory: "quindle" in the user's data folder. None without one.
class LinuxUserDirectories : public UserDirectories
{
public:
    QStringList applicationSupportDirectories() const override;
};

} // namespace quindle
