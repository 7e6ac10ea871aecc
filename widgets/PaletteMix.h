#pragma once

#include <QColor>
#include <QPalette>

class QWidget;
/// The few colours of the battery view, all mixed from the palette's own text and background, so that they
/// follow every light, dark and high-contrast palette.
/// The colours of the preferences window's two parts, from the desktop's palette.

namespace quindle {

/// `share` of `text` on `background`, 0 to 1.
QColor mixed(const QColor& text, const QColor& background, double share);

/// The contrast of two colours, from 1 to 21 (relative luminances as in the accessibility guidelines).
double contrast(const QColor& first, const QColor& second);

/// Text that steps back: as quiet as it can be with a contrast of 4.5 to the background; where even the
/// plain text has less, the plain text.
QColor quietText(const QColor& text, const QColor& background);

bool isDark(const QColor& background);

/// The colours that a widget stands on and writes with, by its roles.
QColor backgroundOf(const QWidget& widget);
QColor textOf(const QWidget& widget);

/// What panes stand on: a view's background where it is the lighter one, as paper is; otherwise the window's,
/// since on anything darker the outlines of check boxes cannot be seen.
QPalette::ColorRole contentRole(const QPalette& palette);

/// A toolbar stands out from the content a little, unless it is transparent.
QColor toolbarColour(const QPalette& palette, bool isTransparent);

} // namespace quindle
