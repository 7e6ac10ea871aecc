// A program that needed no bus let the library start its thread when it ended, and crashed once in thousands
// of runs.

#include <filesystem>

#include <gtest/gtest.h>

#include "platform/linux/session/BluetoothBatteries.h"
#include "platform/linux/session/PresentBus.h"

namespace quindle {

namespace {

std::ptrdiff_t threads()
{
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    return std::distance(begin(tasks), end(tasks));
}

TEST(UnusedBusTest, StartsNoThreadAtItsEnd)
{
    const auto before = threads();
    {
        const BluetoothBatteries batteries;
        const PresentBus bus(QDBusConnection::SessionBus, QStringLiteral("unused"));
    }
    EXPECT_EQ(threads(), before);
}

} // namespace

} // namespace quindle
