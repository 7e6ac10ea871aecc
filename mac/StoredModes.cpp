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

void followBatteryModes(QDBattery& battery, const UserDefaults& own)
{
    const qint64 temperature = own.integer(Keys::batteryTemperatureMode.name());
    const qint64 age = own.integer(Keys::batteryAgeMode.name());
    // Any other number is fatal when it is loaded.
    if (!isMode(temperature) || !isMode(age))
        return;
    if (temperature == static_cast<qint64>(battery.temperatureMode()) &&
        age == static_cast<qint64>(battery.ageMode()))
        return;
    battery.loadSettings();
    battery.updateData();
}

} // namespace

void followStoredModes(QDMac& mac, const UserDefaults& own)
{
    if (QDBattery* battery = mac.Battery())
        followBatteryModes(*battery, own);
    const qint64 age = own.integer(Keys::macAgeMode.name());
    if (!isMode(age))
        return;
    // inherited: the computer's mode is read once and changes only when it is toggled.
    for (qint64 toggles = 0; toggles < lastMode && mac.ageMode() != age; ++toggles)
        mac.toggleAge();
}

} // namespace quindle
