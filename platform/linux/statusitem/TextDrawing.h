#pragma once

#include <QByteArray>

class QString;

namespace quindle {

/// The text as an SVG drawing of 22 by 22 that it fills, in the panel's font. A host that colours drawings
/// takes the colour by the class "ColorScheme-Text" or, from the file's name, for all of it.
QByteArray textDrawing(const QString& text);

} // namespace quindle
