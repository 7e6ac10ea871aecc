#include "battery/TemperatureUnit.h"
