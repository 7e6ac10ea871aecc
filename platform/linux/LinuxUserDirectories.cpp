#include "platform/linux/LinuxUserDirectories.h"

#include "platform/linux/UserFolders.h"

namespace quindle {

QStringList LinuxUserDirectories::applicationSupportDirectories() const
{
    const QString data = dataFolder();
    return data.isEmpty() ? QStringList() : QStringList{data + QStringLiteral("/quindle")};
}

} // namespace quindle
