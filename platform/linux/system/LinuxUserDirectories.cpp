#include "platform/linux/system/LinuxUserDirectories.h"

#include "platform/linux/os/UserFolders.h"

namespace quindle {

QStringList LinuxUserDirectories::applicationSupportDirectories() const
{
    const QString data = dataFolder();
    return data.isEmpty() ? QStringList() : QStringList{data + QStringLiteral("/quindle")};
}

} // namespace quindle
