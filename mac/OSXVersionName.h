#pragma once

#include <QString>

namespace quindle {

/// The operating system's marketing name for a version such as "10.11.6"; "OS X" for an unknown one.
QString osxVersionName(const QString& productVersion);

} // namespace quindle
