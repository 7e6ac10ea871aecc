#include "menubar/ProgressIndicator.h"
