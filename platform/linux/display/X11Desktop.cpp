#include "platform/linux/display/X11Desktop.h"

#include <array>
#include <cstdint>
#include <cstring>

#include <QByteArray>
#include <QRandomGenerator>

#include "platform/linux/display/X11Connection.h"
#include "platform/linux/display/X11Display.h"

namespace quindle {

namespace {

/// Text, error, warning and success, each red, green and blue in 16 bits.
Argb textColourOf(const QByteArray& colours)
{
    std::array<std::uint32_t, 3> text{};
    if (static_cast<std::size_t>(colours.size()) < sizeof text)
        return 0;
    std::memcpy(text.data(), colours.constData(), sizeof text);
    const auto eightBits = [](std::uint32_t channel) { return channel >> 8 & 0xff; };
    return opaqueColour(eightBits(text[0]), eightBits(text[1]), eightBits(text[2]));
}

X11Tray trayOf(const X11Connection& connection)
{
    const std::uint32_t tray = connection.selectionOwner("_NET_SYSTEM_TRAY_S");
    if (tray == 0)
        return {};
    return {.isThere = true,
            .textColour = textColourOf(connection.property(tray, "_NET_SYSTEM_TRAY_COLORS", 32))};
}

bool hasCompositingManager(const X11Connection& connection)
{
    return connection.selectionOwner("_NET_WM_CM_S") != 0;
}

std::optional<QPoint> pointerOf(const X11Connection& connection)
{
    return connection.pointer();
}

} // namespace

ServerMark::ServerMark()
    : m_name("_QUINDLE_SERVER_" + QByteArray::number(QRandomGenerator::global()->generate64(), 16))
{
}

X11Tray x11Tray(X11Display& display, ServerMark& mark)
{
    const auto question = [name = mark.name(), isSet = mark.isSet()](const X11Connection& connection) {
        X11Tray tray = trayOf(connection);
        tray.isAnswered = true;
        if (tray.isThere && !isSet)
            connection.makeAtom(name);
        tray.isMarked = connection.hasAtom(name);
        tray.wasReset = isSet && !tray.isMarked;
        return tray;
    };
    const X11Tray tray = display.ask(question).value_or(X11Tray{});
    if (tray.isMarked)
        mark.set();
    return tray;
}

bool hasCompositor(X11Display& display)
{
    return display.ask(hasCompositingManager).value_or(false);
}

std::optional<QPoint> pointerPosition(X11Display& display)
{
    return display.ask(pointerOf).value_or(std::nullopt);
}

} // namespace quindle
