#include "menubar/NamedImages.h"
