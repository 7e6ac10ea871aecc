#include "platform/linux/LinuxBundle.h"

#include <QDir>
#include <QFileInfo>

#include "platform/linux/LinuxSystemFiles.h"

namespace quindle {

LinuxBundle::LinuxBundle(const QString& executablePath)
{
    const QString executable = QFileInfo(executablePath).canonicalFilePath();
    if (!executable.isEmpty())
        m_path = QDir::cleanPath(QFileInfo(executable).path() + QStringLiteral("/../.."));
}

std::optional<QVariantMap> LinuxBundle::infoDictionary() const
{
    if (m_path.isEmpty())
        return std::nullopt;
    return dictionaryFromFile(m_path + QStringLiteral("/Contents/Info.plist"));
}

} // namespace quindle
