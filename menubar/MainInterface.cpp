#include "menubar/MainInterface.h"
