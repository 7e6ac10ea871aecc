#pragma once

#include "platform/linux/os/Colour.h"

namespace quindle {

/// The text colour of the panel with the X11 tray, from _NET_SYSTEM_TRAY_COLORS; transparent where there is
/// no such panel or it does not set that.
Argb trayTextColour();

/// Whether windows may be translucent: a compositing manager runs on the X11 screen. False elsewhere.
bool hasCompositor();

} // namespace quindle
