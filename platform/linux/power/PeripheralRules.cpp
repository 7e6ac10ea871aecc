#include "platform/linux/power/PeripheralRules.h"

#include <algorithm>

#include "common/SingleLine.h"
#include "platform/linux/power/BatteryRules.h"

namespace quindle {

namespace {

/// Longer than any maker's name for a device; a Bluetooth device may have any name.
constexpr int longestName = 64;

std::optional<int> percentOf(const SupplyAttributes& attributes)
{
    const std::optional<double> percent = attributes.number(Attribute::Capacity);
    if (!percent || *percent < 0 || *percent > 100)
        return std::nullopt;
    return static_cast<int>(*percent);
}

std::optional<QString> levelOf(const SupplyAttributes& attributes)
{
    std::optional<QString> level = readableAttribute(attributes, Attribute::CapacityLevel);
    return level != QLatin1String("Unknown") ? level : std::nullopt;
}

bool isSwitchedOff(const SupplyAttributes& attributes)
{
    return attributes.number(Attribute::Online) == 0.0 || attributes.number(Attribute::Present) == 0.0;
}

/// A supply without a model name shows its own name (ip5xxx-battery of pinephone-with-keyboard).
QString nameOf(const SupplyReading& reading)
{
    const std::optional<QString> model = readableAttribute(reading.attributes, Attribute::ModelName);
    return model ? elided(*model, longestName) : QString::fromStdString(reading.name);
}

std::optional<QString> nameOf(const BluetoothBattery& device)
{
    const QByteArray name = device.name.toUtf8();
    const std::optional<QString> readable =
        readableText({name.constData(), static_cast<std::size_t>(name.size())});
    if (readable)
        return elided(*readable, longestName);
    return device.address.isEmpty() ? std::nullopt : std::optional(elided(device.address, longestName));
}

std::optional<PeripheralBattery> peripheralFrom(const SupplyReading& reading)
{
    PeripheralBattery battery{nameOf(reading), percentOf(reading.attributes), levelOf(reading.attributes)};
    // Some devices report a level and no percentage (desktop-keyboard-k375s-level-only).
    if (isSwitchedOff(reading.attributes) || (!battery.percent && !battery.level))
        return std::nullopt;
    return battery;
}

/// Drivers of Bluetooth devices have the address in the supply's name ("hid-aa:bb:cc:dd:ee:ff-battery") or as
/// the serial number.
bool isSameDevice(const SupplyReading& reading, const BluetoothBattery& device)
{
    const auto holdsAddress = [&](const QString& text) {
        return !device.address.isEmpty() && text.contains(device.address, Qt::CaseInsensitive);
    };
    return holdsAddress(QString::fromStdString(reading.name)) ||
           holdsAddress(readableAttribute(reading.attributes, Attribute::SerialNumber).value_or(QString())) ||
           nameOf(reading).compare(nameOf(device).value_or(QString()), Qt::CaseInsensitive) == 0;
}

} // namespace

QList<PeripheralBattery> peripheralsFrom(const SupplyReadings& readings,
                                         const QList<BluetoothBattery>& bluetooth)
{
    SupplyReadings shown;
    QList<PeripheralBattery> batteries;
    for (const SupplyReading& reading : readings) {
        if (reading.kind != SupplyKind::Peripheral)
            continue;
        if (const std::optional<PeripheralBattery> battery = peripheralFrom(reading)) {
            batteries.append(*battery);
            // Only these hide a Bluetooth device: one whose supply shows nothing would be shown nowhere.
            shown.push_back(reading);
        }
    }
    for (const BluetoothBattery& device : bluetooth) {
        const bool isShown = std::any_of(shown.begin(), shown.end(), [&](const SupplyReading& reading) {
            return isSameDevice(reading, device);
        });
        const std::optional<QString> name = nameOf(device);
        if (name && !isShown)
            batteries.append({*name, device.percent, std::nullopt});
    }
    return batteries;
}

} // namespace quindle
