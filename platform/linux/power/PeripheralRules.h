#pragma once

#include <QList>

#include "platform/PowerSources.h"
#include "platform/linux/os/BluetoothBattery.h"
#include "platform/linux/supplies/SupplyReading.h"

/// The batteries of devices beside the computer. Plain functions.
namespace quindle {

/// What the kernel's drivers report, in the order of the readings, then what Bluetooth reports of devices
/// that are not among them. A device that is switched off, or of which neither percentage nor level is known,
/// is left out.
QList<PeripheralBattery> peripheralsFrom(const SupplyReadings& readings,
                                         const QList<BluetoothBattery>& bluetooth);

} // namespace quindle
