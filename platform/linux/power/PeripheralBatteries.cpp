#include "platform/linux/power/PeripheralBatteries.h"

#include <utility>

namespace quindle {

PeripheralBatteries::PeripheralBatteries(std::string folder, Bluetooth bluetooth, ReadFunction read,
                                         ReadingPatience patience)
    : m_reader(std::move(folder), SupplyFolder::Scope::Peripherals, std::move(read), patience)
    , m_bluetooth(std::move(bluetooth))
{
}

QList<PeripheralBattery> PeripheralBatteries::now()
{
    // This is asked seldom, and nothing announces a device that came or went in between.
    constexpr bool looksAgain = true;
    if (std::optional<SupplyReadings> readings = m_reader.read(looksAgain))
        m_last = std::move(*readings);
    return peripheralsFrom(m_last, m_bluetooth ? m_bluetooth() : QList<BluetoothBattery>());
}

} // namespace quindle
