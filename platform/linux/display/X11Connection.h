#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QPoint>

struct xcb_connection_t;

namespace quindle {

/// A connection to an X11 display, which ends with the object. It may wait for the server for ever: let
/// X11Display make it.
class X11Connection
{
public:
    /// `display` is named as in DISPLAY.
    explicit X11Connection(const QByteArray& display);
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    /// False without a display, or where it refuses; ask nothing then.
    bool isOpen() const;

    /// Whether some program has made an atom of that name since the server was started or reset.
    bool hasAtom(const QByteArray& name) const;

    /// Makes an atom, which stays until the server ends or is reset.
    void makeAtom(const QByteArray& name) const;

    /// The window that owns the display's selection of that name, to which the number of the screen is
    /// appended ("_NET_SYSTEM_TRAY_S" is "_NET_SYSTEM_TRAY_S0"); 0 where nobody does.
    std::uint32_t selectionOwner(const QByteArray& name) const;

    /// The bytes of a property of units of that many bits (8, 16 or 32), of any type; empty where the window
    /// has none, or one of other units. At most 256 KiB.
    QByteArray property(std::uint32_t window, const QByteArray& name, int bits) const;

    /// Where the pointer is, in pixels of the screen; nothing while it is on another screen.
    std::optional<QPoint> pointer() const;

private:
    std::uint32_t atom(const QByteArray& name, bool makesIt) const;
    std::uint32_t existingAtom(const QByteArray& name) const;

    int m_screen = 0;
    xcb_connection_t* m_connection; ///< never null; one that failed is one with an error
};

} // namespace quindle
