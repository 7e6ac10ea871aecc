#include "menubar/TitleTemplate.h"
