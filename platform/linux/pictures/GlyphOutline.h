#pragma once

#include <vector>

#include <QPointF>
#include <QRectF>

#include "platform/linux/pictures/FontFace.h"

struct FT_Outline_;

namespace quindle {

/// Adds the steps of a font library's outline with the pen at `pen`, pixels, and gives its box.
QRectF addOutlineOf(FT_Outline_& outline, QPointF pen, std::vector<OutlineStep>& steps);

} // namespace quindle
