#pragma once

#include <QRgb>

namespace quindle {

/// The colour that the panel with the X11 tray writes in, as it tells by _NET_SYSTEM_TRAY_COLORS; transparent
/// where there is no such panel or it does not tell.
QRgb trayTextColour();

/// Whether windows may be translucent: a compositing manager runs on the X11 screen. False elsewhere.
bool hasCompositor();

} // namespace quindle
