#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// The few colours of the battery view and of the preferences window's two parts, all mixed from the
/// palette's own text and background, so that they follow every light, dark and high-contrast palette.

namespace quindle {

/// `share` of `text` on `background`, 0 to 1.
QColor mixed(const QColor& text, const QColor& background, double share);

/// The contrast of two colours, from 1 to 21 (relative luminances as in the accessibility guidelines).
double contrast(const QColor& first, const QColor& second);

/// Less prominent text: as quiet as a contrast of 4.5 to the background allows; the plain text where that has
/// less already.
QColor quietText(const QColor& text, const QColor& background);

/// Whether the palette asks for strong contrast: hints in it are as plain as text.
bool hasStrongContrast(const QPalette& palette);

/// The same as a widget with that palette writes it: hardly quiet, with a contrast of 7, where the palette
/// asks for strong contrast.
QColor quietText(const QPalette& palette, const QColor& text, const QColor& background);

/// In the colours of the widget's roles.
QColor quietTextOf(const QWidget& widget);

/// How much of the text a thin line has: `share`, and far more where the palette asks for strong contrast.
double lineShareFor(const QPalette& palette, double share);

/// A thin line on a widget.
QColor lineOf(const QWidget& widget, double share);

bool isDark(const QColor& background);

/// The colours that a widget stands on and writes with, by its roles.
QColor backgroundOf(const QWidget& widget);
QColor textOf(const QWidget& widget);

/// The background of panes: a view's where that is lighter, like paper; otherwise the window's, since on
/// anything darker the outlines of check boxes cannot be seen.
QPalette::ColorRole contentRole(const QPalette& palette);

/// A toolbar stands out from the content a little, unless it is transparent.
QColor toolbarColour(const QPalette& palette, bool isTransparent);

} // namespace quindle
