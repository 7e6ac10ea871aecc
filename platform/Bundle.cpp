#include "platform/Bundle.h"

#include "common/Paths.h"

namespace quindle {

QString programInBundle(const QString& bundlePath, const QString& program)
{
#ifdef Q_OS_MACOS
    return bundlePath + QStringLiteral("/Contents/MacOS/") + program;
#else
    return bundlePath + QStringLiteral("/Contents/Linux/") + program;
#endif
}

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
    return path.isEmpty() ? path : programInBundle(path, QStringLiteral("quindle"));
}

} // namespace quindle
