#include "platform/linux/session/X11Desktop.h"

#include <cstdlib>
#include <memory>

#include <QByteArray>
#include <QGuiApplication>
#include <xcb/xcb.h>

namespace quindle {

namespace {

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPtr = std::unique_ptr<Reply, Free>;

/// Null on desktops without X11.
xcb_connection_t* connection()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return nullptr;
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

/// The number of the screen that the program shows itself on, as selections name it.
QByteArray screenNumber()
{
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return QByteArray::number(screen);
}

/// An atom that some program has made; none if no program has.
xcb_atom_t existingAtom(xcb_connection_t* x11, const QByteArray& name)
{
    const auto cookie = xcb_intern_atom(x11, 1, static_cast<uint16_t>(name.size()), name.constData());
    const ReplyPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x11, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t selectionOwner(xcb_connection_t* x11, const QByteArray& selection)
{
    const xcb_atom_t atom = existingAtom(x11, selection);
    if (atom == XCB_ATOM_NONE)
        return XCB_WINDOW_NONE;
    const auto cookie = xcb_get_selection_owner(x11, atom);
    const ReplyPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(x11, cookie, nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

Argb trayTextColour()
{
    xcb_connection_t* x11 = connection();
    if (!x11)
        return 0;
    const xcb_window_t tray = selectionOwner(x11, "_NET_SYSTEM_TRAY_S" + screenNumber());
    const xcb_atom_t colours = existingAtom(x11, QByteArrayLiteral("_NET_SYSTEM_TRAY_COLORS"));
    if (tray == XCB_WINDOW_NONE || colours == XCB_ATOM_NONE)
        return 0;
    // Text, error, warning and success, each red, green and blue in 16 bits.
    constexpr uint32_t channels = 3;
    const auto cookie = xcb_get_property(x11, 0, tray, colours, XCB_ATOM_CARDINAL, 0, channels);
    const ReplyPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(x11, cookie, nullptr));
    if (!reply || reply->format != 32 || reply->value_len < channels)
        return 0;
    const auto* text = static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
    return opaqueColour(text[0] >> 8U & 0xffU, text[1] >> 8U & 0xffU, text[2] >> 8U & 0xffU);
}

bool hasCompositor()
{
    xcb_connection_t* x11 = connection();
    return x11 && selectionOwner(x11, "_NET_WM_CM_S" + screenNumber()) != XCB_WINDOW_NONE;
}

} // namespace quindle
