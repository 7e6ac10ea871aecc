#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// Colours of controls that can be seen on dark palettes, where styles draw them as they do on light ones.
namespace quindle {

/// Of the hint in an empty field: the palette's, or a quiet one where that cannot be read.
QColor hintColour(const QPalette& palette);

/// The window colour from which a style derives an outline that can be seen; invalid where its own can be.
QColor outlineSource(const QPalette& palette);

/// Gives the check boxes and radio buttons inside outlines that can be seen on `palette`.
void makeBoxesVisible(const QWidget& whole, const QPalette& palette);

} // namespace quindle
