#include "platform/linux/display/DisplayKey.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(DisplayKey, IsOneForOneDisplay)
{
    const struct
    {
        const char* wayland;
        const char* x11;
        const char* key;
    } rows[] = {
        {"", ":0", "_0"},
        {"", ":0.0", "_0"},
        {"", ":0.1", "_0"},
        {"", "unix:0", "_0"},
        {"", "unix:0.0", "_0"},
        {"", "unix/:0", "_0"},
        {"", "/tmp/.X11-unix/X0", "_0"},
        {"", "unix:/tmp/.X11-unix/X0", "_0"},
        {"", ":10", "_10"},
        {"", "localhost:10.0", "localhost_10"},
        {"", "host.example:0", "host_example_0"},
        {"", "[::1]:0.0", "___1__0"},
        {"", ":", "_"},
        {"", "", "none"},
        {"wayland-0", ":0", "wayland-0"},
        {"/run/user/1000/wayland-1", "", "wayland-1"},
        {"/elsewhere/wayland-1", "", "_elsewhere_wayland-1"},
    };
    for (const auto& [wayland, x11, key] : rows)
        EXPECT_EQ(displayKey({wayland, x11, "/run/user/1000"}), QString::fromLatin1(key))
            << wayland << ' ' << x11;
}

TEST(DisplayKey, ALongNameIsShortened)
{
    const QByteArray longName = '/' + QByteArray(60, 'a');
    EXPECT_EQ(displayKey({longName, {}, {}}).size(), 32);
    EXPECT_NE(displayKey({longName, {}, {}}), displayKey({longName + 'a', {}, {}}));
}

} // namespace
