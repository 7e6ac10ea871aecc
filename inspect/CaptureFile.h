#pragma once

#include <QString>
#include <QVariantMap>

namespace quindle {

/// Writes the keys as a machine file that only its owner can read, replacing the file atomically; a device or
/// pipe is written to. Gives the reason of a failure; empty on success.
QString writeMachineFile(const QString& path, const QVariantMap& keys);

} // namespace quindle
