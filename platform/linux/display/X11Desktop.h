#pragma once

#include <optional>

#include <QByteArray>
#include <QPoint>

#include "platform/linux/os/Colour.h"

namespace quindle {

class X11Display;

/// The X11 tray, in which windows are shown as icons.
struct X11Tray
{
    bool isAnswered = false; ///< false: the server was too slow, and nothing is known
    bool isThere = false;
    Argb textColour = 0;   ///< from _NET_SYSTEM_TRAY_COLORS; transparent where it does not set that
    bool isMarked = false; ///< the server; see ServerMark
    bool wasReset = false; ///< since it was marked

    friend bool operator==(const X11Tray&, const X11Tray&) = default;
};

/// Recognises a server. One that is reset loses all its clients, and so the desktop that was shown there, but
/// keeps its socket.
class ServerMark
{
public:
    ServerMark();

    const QByteArray& name() const { return m_name; }
    bool isSet() const { return m_isSet; }
    void set() { m_isSet = true; }

private:
    QByteArray m_name; ///< of an atom that nobody else makes
    bool m_isSet = false;
};

/// Sets the mark once there is a tray: a server without clients is reset after each short connection.
X11Tray x11Tray(X11Display& display, ServerMark& mark);

/// Whether windows may be translucent: a compositing manager runs on the X11 screen. False elsewhere.
bool hasCompositor(X11Display& display);

/// Where the pointer is, in pixels of the X11 screen; nothing elsewhere.
std::optional<QPoint> pointerPosition(X11Display& display);

} // namespace quindle
