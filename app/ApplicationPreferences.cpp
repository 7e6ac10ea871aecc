#include "app/ApplicationPreferences.h"
