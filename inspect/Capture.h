#pragma once

#include <QString>
#include <QVariantMap>

namespace quindle {

struct Platform;

/// This computer as the keys of a machine file: registry, power sources, adapter, the system files the
/// program reads, name, bundle, settings and the present moment, so that ages read the same later. Nothing is
/// changed.
QVariantMap capturedKeys(const Platform& platform);

/// The same without what tells whose computer it is: both serials are invented ones wherever they occur, the
/// name is "Computer", the model cache (its keys are parts of serials) is gone, and so is the home folder in
/// the bundle's path.
QVariantMap withoutIdentity(const QVariantMap& keys);

/// Writes the keys as a machine file that only its owner can read, replacing the file at once or not at all.
/// The reason of a failure; empty on success.
QString writeMachineFile(const QString& path, const QVariantMap& keys);

} // namespace quindle
