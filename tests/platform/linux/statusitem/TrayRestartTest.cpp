#include "platform/linux/statusitem/TrayRestart.h"

#include <gtest/gtest.h>

using namespace quindle;
using namespace std::chrono_literals;

namespace {

TEST(TrayRestart, ARunThatDoesNotStayIsAFailure)
{
    EXPECT_EQ(failuresAfter(0, 0ms), 1);
    EXPECT_EQ(failuresAfter(1, 59'999ms), 2);
    EXPECT_EQ(failuresAfter(2, 60s), 0);
    EXPECT_EQ(failuresAfter(0, 24h), 0);
}

TEST(TrayRestart, TheFirstFailureIsForgivenAndThePausesGrow)
{
    const std::chrono::seconds pauses[] = {0s, 0s, 1s, 2s, 4s, 8s, 16s, 32s, 64s, 128s, 256s, 300s, 300s};
    int failures = 0;
    for (const auto pause : pauses)
        EXPECT_EQ(pauseAfter(failures++), pause) << failures - 1;
    EXPECT_EQ(pauseAfter(1'000'000), 300s);
}

TEST(TrayRestart, IsLoggedOnceInARow)
{
    int logged = 0;
    for (int failures = 0; failures < 100; ++failures)
        logged += logsFailure(failures) ? 1 : 0;
    EXPECT_EQ(logged, 1);
    EXPECT_FALSE(logsFailure(1)) << "one that was killed";
}

} // namespace
