#include "menubar/StatusIcon.h"
