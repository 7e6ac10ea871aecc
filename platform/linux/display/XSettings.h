#pragma once

#include <QByteArray>

namespace quindle {

class X11Display;

/// The text that a settings manager's property holds under that name; empty where there is none. The bytes
/// are another program's: what makes no sense is no settings.
QByteArray xsettingsText(const QByteArray& property, const QByteArray& name);

/// What the X11 desktop writes in, as a font with style and size ("Sans 10"); empty elsewhere and where
/// nobody says it.
QByteArray xsettingsFontName(X11Display& display);

} // namespace quindle
