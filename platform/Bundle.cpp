#include "platform/Bundle.h"

namespace quindle {

QString helperBundlePath(const QString& runningBundlePath)
{
    if (runningBundlePath.contains(u"Quindle-Helper"))
        return runningBundlePath;
    return runningBundlePath + QStringLiteral("/Contents/Resources/Quindle-Helper.app");
}

} // namespace quindle
