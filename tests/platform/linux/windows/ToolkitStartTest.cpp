#include "platform/linux/windows/ToolkitStart.h"

#include <sysexits.h>

#include <gtest/gtest.h>

#include "tests/support/Texts.h"

using namespace quindle;

namespace {

TEST(ToolkitStartTest, TheDisplaysThatWereTriedAreNamed)
{
    struct Case
    {
        const char* wayland;
        const char* x11;
        const char* toolkit;
        const char* text;
    };
    for (const Case& tried : {
             Case{"", ":7", "", "no window can be shown on the display \":7\""},
             Case{"wayland-1", "", "", "no window can be shown on the display \"wayland-1\""},
             Case{"wayland-1", ":7", "", "no window can be shown on the display \"wayland-1\" or \":7\""},
             Case{"", "", "", "there is no display to show a window on"},
             Case{"", "", "bogus", "there is no display to show a window on, QT_QPA_PLATFORM=bogus"},
         })
        EXPECT_EQ(refusedDisplayText(tried.wayland, tried.x11, tried.toolkit), latin(tried.text));
}

TEST(ToolkitStartTest, AToolkitThatCannotStartEndsTheProcessInOrder)
{
    const auto start = [] {
        const ToolkitStart toolkit;
        qFatal("no platform");
    };
    EXPECT_EXIT(start(), testing::ExitedWithCode(EX_UNAVAILABLE), "display");
}

TEST(ToolkitStartTest, OnceItHasStartedAFaultAborts)
{
    const auto start = [] {
        ToolkitStart toolkit;
        toolkit.end();
        qFatal("a fault of the program");
    };
    EXPECT_EXIT(start(), testing::KilledBySignal(SIGABRT), "a fault of the program");
}

} // namespace
