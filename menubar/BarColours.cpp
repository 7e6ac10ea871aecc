#include "menubar/BarColours.h"
