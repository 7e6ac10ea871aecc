// Adds or removes the login item of the helper at a path, with the program's own classes.
// usage: quindle_login_peer PROGRAM on|off|ask

#include <cstdio>

#include <QString>

#include "common/Paths.h"
#include "platform/linux/login/LinuxLoginItems.h"
#include "platform/linux/system/LinuxBundle.h"
#include "settings/StartupLaunch_pref.h"

using namespace quindle;

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    const LinuxBundle bundle(pathText(argv[1]));
    LinuxLoginItems items(loginItemPlaces(bundle.path()));
    const QString wish = QString::fromLocal8Bit(argv[2]);
    if (wish != u"ask")
        StartupLaunch_pref::setLaunchOnLogin(items, bundle.path(), wish == u"on");
    std::puts(StartupLaunch_pref::isAppLoginItem(items, bundle.path()) ? "on" : "off");
    return 0;
}
