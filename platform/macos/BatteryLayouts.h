#pragma once

#include <QString>
#include <QVariantMap>

/// What a Mac's battery entry in the I/O registry means. Its keys changed their meaning with the processor
/// and with the system, so the same key means different things on different Macs; these functions turn each
/// into the keys and units that the models read. Pure functions.
namespace quindle {

/// Whether the entry stands for a battery that is not there: desktop Macs with Apple silicon have one, full
/// of zeros.
bool isGhostBattery(const QVariantMap& entry);

/// The entry with capacities in mAh and currents with their signs. Keys that are missing stay missing, and
/// what is not named here stays as it is, of whatever type.
///
/// On Intel the capacities are mAh already. On Apple silicon "MaxCapacity" is 100 and "CurrentCapacity" the
/// percentage that the system shows: the one becomes the full charge in mAh, from wherever this system keeps
/// it, the other as many mAh as make that percentage. Where no full charge is known both stay percentages, so
/// that at least the charge is right.
QVariantMap withModelUnits(QVariantMap entry);

/// Whether `withModelUnits` may change the value under this key.
bool hasLayout(const QString& key);

} // namespace quindle
