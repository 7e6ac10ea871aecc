#pragma once

#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

struct Pixels;

/// The picture as it goes over the bus.
NotifierPixmap notifierPixmap(const Pixels& picture);

} // namespace quindle
