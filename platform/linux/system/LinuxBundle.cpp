#include "platform/linux/system/LinuxBundle.h"

#include <filesystem>

#include "common/Paths.h"
#include "platform/linux/system/LinuxHost.h"

namespace quindle {

LinuxBundle::LinuxBundle(const QString& executablePath)
{
    std::error_code error;
    // Links resolved: programs are usually started through one in /usr/bin.
    const auto executable = std::filesystem::canonical(pathBytes(executablePath).toStdString(), error);
    if (!error)
        m_path = pathText(QByteArray::fromStdString(executable.parent_path().parent_path().parent_path()));
}

std::optional<QVariantMap> LinuxBundle::infoDictionary() const
{
    if (m_path.isEmpty())
        return std::nullopt;
    return dictionaryFromFile(m_path + QStringLiteral("/Contents/Info.plist"));
}

} // namespace quindle
