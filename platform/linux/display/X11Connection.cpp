#include "platform/linux/display/X11Connection.h"

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace quindle {

namespace {

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPtr = std::unique_ptr<Reply, Free>;

/// The root window of the screen of that number; 0 where there is no such screen.
xcb_window_t rootOf(xcb_connection_t* connection, int screen)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0 && screen > 0; --screen)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data->root : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

X11Connection::X11Connection(const QByteArray& display)
    : m_connection(xcb_connect(display.constData(), &m_screen))
{
}

X11Connection::~X11Connection()
{
    xcb_disconnect(m_connection);
}

bool X11Connection::isOpen() const
{
    return xcb_connection_has_error(m_connection) == 0;
}

bool X11Connection::hasAtom(const QByteArray& name) const
{
    return existingAtom(name) != XCB_ATOM_NONE;
}

void X11Connection::makeAtom(const QByteArray& name) const
{
    atom(name, true);
}

/// An atom that some program has made; none if no program has.
std::uint32_t X11Connection::existingAtom(const QByteArray& name) const
{
    return atom(name, false);
}

std::uint32_t X11Connection::atom(const QByteArray& name, bool makesIt) const
{
    const auto cookie =
        xcb_intern_atom(m_connection, makesIt ? 0 : 1, static_cast<uint16_t>(name.size()), name.constData());
    const ReplyPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::uint32_t X11Connection::selectionOwner(const QByteArray& name) const
{
    const xcb_atom_t atom = existingAtom(name + QByteArray::number(m_screen));
    if (atom == XCB_ATOM_NONE)
        return XCB_WINDOW_NONE;
    const auto cookie = xcb_get_selection_owner(m_connection, atom);
    const ReplyPtr<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

QByteArray X11Connection::property(std::uint32_t window, const QByteArray& name, int bits) const
{
    constexpr uint32_t longest = 64 * 1024; // units of four bytes
    const xcb_atom_t atom = existingAtom(name);
    if (window == XCB_WINDOW_NONE || atom == XCB_ATOM_NONE)
        return {};
    const auto cookie =
        xcb_get_property(m_connection, 0, window, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    const ReplyPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != bits)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

std::optional<QPoint> X11Connection::pointer() const
{
    const auto cookie = xcb_query_pointer(m_connection, rootOf(m_connection, m_screen));
    const ReplyPtr<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(m_connection, cookie, nullptr));
    if (!reply || !reply->same_screen)
        return std::nullopt;
    return QPoint(reply->root_x, reply->root_y);
}

} // namespace quindle
