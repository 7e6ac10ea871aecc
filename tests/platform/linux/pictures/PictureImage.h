#pragma once

#include <QImage>
#include <QRect>

#include "platform/linux/pictures/Pixels.h"

namespace quindle {

/// The picture as an image whose pixels can be looked at.
QImage imageOf(const Pixels& pixels);

/// The box around all pixels of at least that alpha; null where there is none.
QRect inkBox(const Pixels& pixels, unsigned alpha = 1);

} // namespace quindle
