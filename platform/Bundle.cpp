#include "platform/Bundle.h"

namespace quindle {

QString helperBundlePath(const QString& runningBundlePath)
{
    // The main application asks with its own bundle, which carries the helper among its resources.
    if (runningBundlePath.contains(u"Quindle-Helper"))
        return runningBundlePath;
    return runningBundlePath + QStringLiteral("/Contents/Resources/Quindle-Helper.app");
}

} // namespace quindle
