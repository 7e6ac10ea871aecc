#pragma once

#include <optional>

#include <QPoint>

#include "platform/linux/os/Colour.h"

namespace quindle {

class X11Display;

/// The X11 tray, in which windows are shown as icons.
struct X11Tray
{
    bool isThere = false;
    Argb textColour = 0; ///< from _NET_SYSTEM_TRAY_COLORS; transparent where it does not set that

    friend bool operator==(const X11Tray&, const X11Tray&) = default;
};

X11Tray x11Tray(X11Display& display);

/// Whether windows may be translucent: a compositing manager runs on the X11 screen. False elsewhere.
bool hasCompositor(X11Display& display);

/// Where the pointer is, in pixels of the X11 screen; nothing elsewhere.
std::optional<QPoint> pointerPosition(X11Display& display);

} // namespace quindle
