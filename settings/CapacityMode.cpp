#include "settings/CapacityMode.h"

#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

constexpr qint64 milliampHours = 0;
constexpr qint64 wattHours = 1;

} // namespace

bool showsWattHours(const UserDefaults& own)
{
    return own.integer(Keys::batteryCapacityMode.name()) == wattHours;
}

void toggleWattHours(UserDefaults& own)
{
    own.setInteger(Keys::batteryCapacityMode.name(), showsWattHours(own) ? milliampHours : wattHours);
}

} // namespace quindle
