#pragma once

#include <vector>

#include <QByteArray>
#include <QRectF>

#include "platform/linux/pictures/NumberPlace.h"

namespace quindle {

/// An outline as an SVG drawing of 22 by 22 in which its box fills that place; empty for an empty outline.
/// Where there is a place for the bolt, it is drawn too. A host that colours drawings takes the colour by the
/// class "ColorScheme-Text" or, from the file's name, for all of it.
QByteArray textDrawing(const std::vector<OutlineStep>& outline, const QRectF& box, const NumberPlace& place);

} // namespace quindle
