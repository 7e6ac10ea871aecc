#pragma once

#include <QString>

namespace quindle {

/// The path of the helper's bundle, seen from the running one: itself where its path contains
/// "Quindle-Helper", otherwise the one among the resources of the main application that it then is.
QString helperBundlePath(const QString& runningBundlePath);

} // namespace quindle
