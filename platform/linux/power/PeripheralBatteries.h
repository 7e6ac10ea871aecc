#pragma once

#include <functional>
#include <string>

#include "platform/linux/power/PeripheralRules.h"
#include "platform/linux/supplies/SupplyReader.h"

namespace quindle {

/// The batteries of devices beside the computer. Reading them may send something to the device, so they are
/// read only on request. Main thread only.
class PeripheralBatteries
{
public:
    using Bluetooth = std::function<QList<BluetoothBattery>()>;

    /// `folder` is the class directory ("/sys/class/power_supply"). Without `bluetooth` there are none of
    /// those.
    PeripheralBatteries(std::string folder, Bluetooth bluetooth, ReadFunction read = readDescriptor,
                        ReadingPatience patience = {});

    /// All of them now; a supply that does not answer in time is as it was last.
    QList<PeripheralBattery> now();

private:
    SupplyReader m_reader;
    Bluetooth m_bluetooth;
    SupplyReadings m_last;
};

} // namespace quindle
