#include "mac/StoredModes.h"

#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

constexpr qint64 lastMode = 2;

bool isMode(qint64 number)
{
    return number >= 0 && number <= lastMode;
}

bool followBatteryModes(QDBattery& battery, const UserDefaults& own)
{
    const qint64 temperature = own.integer(Keys::batteryTemperatureMode.name());
    const qint64 age = own.integer(Keys::batteryAgeMode.name());
    // Any other number is fatal when it is loaded.
    if (!isMode(temperature) || !isMode(age))
        return false;
    if (temperature == static_cast<qint64>(battery.temperatureMode()) &&
        age == static_cast<qint64>(battery.ageMode()))
        return false;
    battery.loadSettings();
    battery.updateData();
    return true;
}

bool followComputersMode(QDMac& mac, const UserDefaults& own)
{
    const qint64 age = own.integer(Keys::macAgeMode.name());
    if (!isMode(age) || mac.ageMode() == age)
        return false;
    mac.showAgeInMode(age);
    return true;
}

} // namespace

bool followStoredModes(QDMac& mac, const UserDefaults& own)
{
    QDBattery* battery = mac.Battery();
    const bool isBatteryChanged = battery && followBatteryModes(*battery, own);
    return followComputersMode(mac, own) || isBatteryChanged;
}

} // namespace quindle
