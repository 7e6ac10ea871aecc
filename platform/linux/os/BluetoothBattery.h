#pragma once

#include <QString>

namespace quindle {

/// The battery of a connected Bluetooth device, as the system's Bluetooth service reports it.
struct BluetoothBattery
{
    QString address; ///< "AA:BB:CC:DD:EE:FF"; empty where it is not reported
    QString name;    ///< as the device or its user says; anything at all
    int percent = 0; ///< 0 to 100

    bool operator==(const BluetoothBattery&) const = default;
};

} // namespace quindle
