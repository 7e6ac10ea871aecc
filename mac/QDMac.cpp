#include "mac/QDMac.h"
