#pragma once

#include "platform/Bundle.h"

namespace quindle {

/// Asks the databases of dpkg and pacman, and the rpm program, which package the bundle's files belong to.
/// Takes up to a second where rpm is asked. `root` is put before every path of the system, and is not part of
/// the bundle's.
InstallationSource installationSource(const QString& bundlePath, const QString& root = QString());

} // namespace quindle
