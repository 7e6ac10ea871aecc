#include "platform/linux/LinuxUserDirectories.h"

#include <QFile>

namespace quindle {

QStringList LinuxUserDirectories::applicationSupportDirectories() const
{
    QString data = QFile::decodeName(qgetenv("XDG_DATA_HOME"));
    if (!data.startsWith(u'/')) {
        const QString home = QFile::decodeName(qgetenv("HOME"));
        if (!home.startsWith(u'/'))
            return {};
        data = home + QStringLiteral("/.local/share");
    }
    return {data + QStringLiteral("/quindle")};
}

} // namespace quindle
