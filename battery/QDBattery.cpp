#include "battery/QDBattery.h"
