#pragma once

#include <QColor>
#include <QPalette>

/// The colours of the preferences window's two parts, from the desktop's palette.
namespace quindle {

/// What panes stand on: a view's background where it is the lighter one, as paper is; otherwise the window's,
/// since on anything darker the outlines of check boxes cannot be seen.
QPalette::ColorRole contentRole(const QPalette& palette);

/// A toolbar stands out from the content a little, unless it is transparent.
QColor toolbarColour(const QPalette& palette, bool isTransparent);

} // namespace quindle
