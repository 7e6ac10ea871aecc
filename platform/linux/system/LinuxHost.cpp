#include "platform/linux/system/LinuxHost.h"

#include <QSysInfo>

#include "platform/linux/os/UserFolders.h"
#include "plist/PropertyList.h"

namespace quindle {

namespace {

/// In single quotes everything is literal; else a backslash makes the next character literal.
QByteArray unquoted(const QByteArray& value)
{
    QByteArray text;
    char quote = 0;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const char character = value.at(i);
        if (character == quote)
            quote = 0;
        else if (quote == 0 && (character == '"' || character == '\''))
            quote = character;
        else if (character == '\\' && quote != '\'' && i + 1 < value.size())
            text += value.at(++i);
        else
            text += character;
    }
    return text;
}

} // namespace

QString assignedValue(const QByteArray& assignments, const QByteArray& name)
{
    QByteArray value;
    for (const QByteArray& line : assignments.split('\n')) {
        const QByteArray trimmedLine = line.trimmed();
        if (trimmedLine.startsWith(name + '='))
            // As in a shell, the last assignment counts.
            value = unquoted(trimmedLine.mid(name.size() + 1));
    }
    return QString::fromUtf8(value).trimmed();
}

LinuxHost::LinuxHost(QString machineInfoPath)
    : LinuxHost(std::move(machineInfoPath), QSysInfo::machineHostName())
{
}

LinuxHost::LinuxHost(QString machineInfoPath, QString hostName)
    : m_machineInfoPath(std::move(machineInfoPath))
    , m_hostName(std::move(hostName))
{
}

QString LinuxHost::localizedName() const
{
    const QByteArray machineInfo = m_files.read(m_machineInfoPath).value_or(QByteArray());
    const QString prettyName = assignedValue(machineInfo, "PRETTY_HOSTNAME");
    // The name that a person chose comes before the network's.
    return prettyName.isEmpty() ? m_hostName : prettyName;
}

QDateTime LinuxClock::now() const
{
    // In UTC: each conversion to local time makes the C library check the zone's file.
    return QDateTime::currentDateTimeUtc();
}

std::optional<QVariantMap> dictionaryFromFile(const QString& path)
{
    const std::optional<QVariant> value = propertyListFromFile(path);
    if (!value || value->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return value->toMap();
}

LinuxSystemFiles::LinuxSystemFiles(QString root)
    : m_root(std::move(root))
{
}

std::optional<QVariantMap> LinuxSystemFiles::propertyList(const QString& path) const
{
    return dictionaryFromFile(m_root + path);
}

QStringList LinuxUserDirectories::applicationSupportDirectories() const
{
    const QString data = dataFolder();
    return data.isEmpty() ? QStringList() : QStringList{data + QStringLiteral("/quindle")};
}

} // namespace quindle
