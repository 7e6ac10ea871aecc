#pragma once

#include "platform/Host.h"

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
};

/// The value of `name` in a file of shell-like assignments, one a line, quotes taken off; the last one
/// counts. Empty when there is none.
QString assignedValue(const QByteArray& assignments, const QByteArray& name);

} // namespace quindle
