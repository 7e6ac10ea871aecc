#include "menubar/ObjectController.h"
