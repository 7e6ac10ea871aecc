#pragma once

#include <QString>

namespace quindle {

/// The battery of a connected Bluetooth device, as the system's Bluetooth service reports it.
struct BluetoothBattery
{
    QString address; ///< "AA:BB:CC:DD:EE:FF"; empty where it is not reported
    QString name;    ///< as given by the device or its user; any text
    int percent = 0; ///< 0 to 100

    bool operator==(const BluetoothBattery&) const = default;
};

} // namespace quindle
