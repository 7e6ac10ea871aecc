#pragma once

#include <QByteArray>
#include <QString>

namespace quindle {

/// The names of the displays that a process is given; empty like unset.
struct DisplayNames
{
    QByteArray wayland;       ///< WAYLAND_DISPLAY
    QByteArray x11;           ///< DISPLAY
    QByteArray runtimeFolder; ///< XDG_RUNTIME_DIR, where Wayland's sockets are
};

/// One text for one display, however it is named (":0", ":0.1", "unix:0"), fit for a file name and of at most
/// 40 characters. Wayland's comes before X11's; "none" without a display.
QString displayKey(const DisplayNames& names);

} // namespace quindle
