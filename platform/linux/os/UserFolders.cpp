#include "platform/linux/os/UserFolders.h"

#include <sys/stat.h>
#include <unistd.h>

#include "common/Paths.h"

namespace quindle {

namespace {

QString folderNamed(const char* variable, const char* placeInHome)
{
    // A relative path in one of these variables counts as none, as the XDG rules say.
    if (const QByteArray folder = qgetenv(variable); folder.startsWith('/'))
        return pathText(folder);
    const QString home = homeFolder();
    return home.isEmpty() ? QString() : home + QLatin1String(placeInHome);
}

} // namespace

QString configurationFolder()
{
    return folderNamed("XDG_CONFIG_HOME", "/.config");
}

QString settingsFolder()
{
    const QString configuration = configurationFolder();
    return configuration.isEmpty() ? QString() : configuration + QStringLiteral("/quindle");
}

QString dataFolder()
{
    return folderNamed("XDG_DATA_HOME", "/.local/share");
}

QString cacheFolder()
{
    return folderNamed("XDG_CACHE_HOME", "/.cache");
}

QString runtimeFolder()
{
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    struct stat found = {};
    // The session guarantees all of this; a variable inherited through su or a script may not.
    const bool isOwn = folder.startsWith('/') && ::stat(folder.constData(), &found) == 0 &&
                       S_ISDIR(found.st_mode) && found.st_uid == ::geteuid() &&
                       (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
    return isOwn ? pathText(folder) : QString();
}

} // namespace quindle
