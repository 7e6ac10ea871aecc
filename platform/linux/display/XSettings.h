#pragma once

#include <QByteArray>

namespace quindle {

class X11Display;

/// The text that a settings manager's property holds under that name; empty where there is none. The bytes
/// are another program's: nonsense counts as no settings.
QByteArray xsettingsText(const QByteArray& property, const QByteArray& name);

/// The X11 desktop's font, with style and size ("Sans 10"); empty elsewhere and where it is not set.
QByteArray xsettingsFontName(X11Display& display);

} // namespace quindle
