#include "battery/BatteryRegistryKey.h"
