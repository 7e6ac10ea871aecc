#pragma once

#include <vector>

#include <QByteArray>
#include <QRectF>

#include "platform/linux/pictures/FontFace.h"

namespace quindle {

/// An outline as an SVG drawing of 22 by 22 that it fills but for a margin of 1; `box` is around it. Empty
/// for an empty outline. A host that colours drawings takes the colour by the class "ColorScheme-Text" or,
/// from the file's name, for all of it.
QByteArray textDrawing(const std::vector<OutlineStep>& outline, const QRectF& box);

} // namespace quindle
