#include "platform/Bundle.h"

#include "common/Paths.h"

namespace quindle {

QString helperBundlePath(const QString& runningBundlePath)
{
    // The main application asks with its own bundle, which carries the helper among its resources.
    if (runningBundlePath.contains(u"Quindle-Helper"))
        return runningBundlePath;
    return runningBundlePath + QStringLiteral("/Contents/Resources/Quindle-Helper.app");
}

QString mainApplicationProgram(const QString& helperBundlePath)
{
    // Quindle.app/Contents/Resources/Quindle-Helper.app
    constexpr int componentsToMainBundle = 3;
    QString path = helperBundlePath;
    for (int component = 0; component < componentsToMainBundle; ++component)
        path = pathWithoutLastComponent(path);
    return path.isEmpty() ? path : path + QStringLiteral("/Contents/Linux/quindle");
}

} // namespace quindle
