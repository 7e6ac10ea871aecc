#pragma once

#include "platform/linux/pictures/FontFace.h"

namespace quindle {

/// The bitmap in a font library's slot, made smaller or larger by `scale`. Its shape or picture is empty for
/// a glyph without ink, such as a blank's, and for a kind of bitmap that is not known.
DrawnGlyph glyphOfBitmap(const FT_GlyphSlotRec_& slot, double scale);

/// The picture in another size: each pixel is the mean of what it covers.
Pixels resized(const Pixels& picture, int width, int height);

} // namespace quindle
