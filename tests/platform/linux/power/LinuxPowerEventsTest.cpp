#include "platform/linux/power/LinuxPowerEvents.h"

#include <cerrno>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <libudev.h>

#include "tests/support/LogLines.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

bool refusesToReceive = false;

} // namespace

// Replaces the library's, which cannot be made to fail: what a kernel without the socket answers.
extern "C" int udev_monitor_enable_receiving(udev_monitor* monitor)
{
    using Function = int (*)(udev_monitor*);
    static const auto ofLibrary =
        reinterpret_cast<Function>(dlsym(RTLD_NEXT, "udev_monitor_enable_receiving"));
    return refusesToReceive ? -EACCES : ofLibrary(monitor);
}

namespace {

TEST(LinuxPowerEventsTest, AfterAFailureTheyAreAskedForAgain)
{
    const LogLines log;
    LinuxPowerEvents events([] {});
    refusesToReceive = true;
    events.setObserver([] {});
    events.setObserver([] {});
    EXPECT_EQ(LogLines::lines().size(), 2);
    refusesToReceive = false;
    events.setObserver([] {});
    EXPECT_EQ(LogLines::lines().size(), 2);
}

} // namespace
