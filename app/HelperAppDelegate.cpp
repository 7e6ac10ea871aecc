#include "app/HelperAppDelegate.h"
