#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// Colours that make controls visible on dark palettes, where styles draw them as on light ones.
namespace quindle {

/// The colour of the hint in an empty field: the palette's, or a quiet one where that cannot be read.
QColor hintColour(const QPalette& palette);

/// The window colour from which a style derives an outline that can be seen; invalid where its own can be.
QColor outlineSource(const QPalette& palette);

/// Gives check boxes and radio buttons in a widget outlines that are visible on `palette`, and the fields too
/// where that asks for strong contrast.
void makeBoxesVisible(const QWidget& whole, const QPalette& palette);

} // namespace quindle
