#pragma once

#include <QString>
#include <QVariantMap>

namespace quindle {

class IORegistry;
class UserDefaultsDatabases;
struct Platform;

/// The registry entries of battery and computer, those that there are, by their names.
QVariantMap capturedRegistry(IORegistry& registry);

/// This computer as the keys of a machine file: registry, power sources, adapter, the system files the
/// program reads, name, bundle, settings and the present moment, so that ages read the same later. Nothing is
/// changed.
QVariantMap capturedKeys(const Platform& platform);

/// A Mac with Apple silicon has its battery's serial under a key of another name.
enum class CapturedRegistry { Other, OfAMac };

/// The same without anything that identifies the computer's owner: both serials are invented ones wherever
/// they occur, the name is "Computer", the model cache (its keys are parts of serials) is gone, and so is the
/// user's name in the bundle's path.
QVariantMap withoutIdentity(const QVariantMap& keys, CapturedRegistry kind = CapturedRegistry::Other);

/// The content of both settings databases under the names they have in machine files, "standard" and
/// "group.fernhollow.Quindle". One that cannot be opened has no content.
QVariantMap settingsDatabases(UserDefaultsDatabases& userDefaults);

} // namespace quindle
