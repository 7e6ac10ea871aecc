#include "menubar/HueFilter.h"
