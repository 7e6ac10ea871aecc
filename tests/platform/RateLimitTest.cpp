#include "platform/RateLimit.h"

#include <vector>

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"

using namespace quindle;

namespace {

struct RateLimitTest : testing::Test
{
    FakeClock clock;
    FakeRunLoop runLoop{clock};
    const QDateTime start = clock.now();
    std::vector<int> refreshes; ///< milliseconds after the start
    RateLimit rate{runLoop, RateLimit::settleTime, [this] { refreshes.push_back(elapsed()); }};

    int elapsed() const { return static_cast<int>(start.msecsTo(clock.now())); }

    void advanceTo(int milliseconds) { runLoop.advance((milliseconds - elapsed()) / 1000.0); }
};

struct Row
{
    const char* what;
    std::vector<int> requests;  ///< milliseconds
    std::vector<int> refreshes; ///< milliseconds
};

const Row rows[] = {
    {"none", {}, {}},
    {"one is shown at once, and again when it has settled", {0}, {0, 20}},
    {"one change told piece by piece", {0, 5, 10, 19}, {0, 20}},
    {"a late piece comes after a pause", {0, 30}, {0, 20, 520}},
    {"many in the pause are one", {0, 30, 100, 200, 518}, {0, 20, 520}},
    {"the last one in the pause is not lost", {0, 519}, {0, 20, 520}},
    {"each pause counts from its own refresh", {0, 30, 530}, {0, 20, 520, 1020}},
    {"half a second gives one refresh back", {0, 530}, {0, 20, 550}},
    {"a second gives both back", {0, 1030}, {0, 20, 1030, 1050}},
    {"one while the second comes back", {0, 1010, 1025}, {0, 20, 1025, 1030}},
    {"plug and battery tell one after the other", {0, 300, 900}, {0, 20, 520, 1020}},
    {"far apart", {0, 5000, 10000}, {0, 20, 5000, 5020, 10000, 10020}},
};

TEST(RateLimit, Table)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        FakeClock clock;
        FakeRunLoop runLoop(clock);
        const QDateTime start = clock.now();
        const auto elapsed = [&] { return static_cast<int>(start.msecsTo(clock.now())); };
        std::vector<int> refreshes;
        RateLimit rate(runLoop, RateLimit::settleTime, [&] { refreshes.push_back(elapsed()); });
        for (const int request : row.requests) {
            runLoop.advance((request - elapsed()) / 1000.0);
            rate.request();
        }
        runLoop.advance(20.0);
        EXPECT_EQ(refreshes, row.refreshes);
    }
}

TEST_F(RateLimitTest, AStormCausesTwoRefreshesASecondAfterTheFirst)
{
    for (int millisecond = 0; millisecond < 10'000; ++millisecond) {
        advanceTo(millisecond);
        rate.request();
    }
    ASSERT_EQ(refreshes.size(), 21U);
    for (std::size_t third = 3; third < refreshes.size(); ++third)
        EXPECT_GE(refreshes[third] - refreshes[third - 2], 999);
    const int last = refreshes.back();
    advanceTo(12'000);
    ASSERT_EQ(refreshes.size(), 22U) << "the last request was lost";
    EXPECT_LE(refreshes.back() - last, 501);
}

TEST_F(RateLimitTest, ARefreshThatAsksForAnotherGetsItLater)
{
    int count = 0;
    RateLimit* asked = nullptr;
    RateLimit asking(runLoop, RateLimit::settleTime, [&] {
        if (++count == 1)
            asked->request();
    });
    asked = &asking;
    asking.request();
    EXPECT_EQ(count, 1);
    runLoop.advance(0.02);
    EXPECT_EQ(count, 2);
    runLoop.advance(10.0);
    EXPECT_EQ(count, 2);
}

TEST_F(RateLimitTest, EventsWithPausesBetweenThemCauseNoMoreInTheLongRun)
{
    for (int millisecond = 0; millisecond < 10'000; millisecond += 540) {
        advanceTo(millisecond);
        rate.request();
    }
    advanceTo(10'000);
    EXPECT_LE(refreshes.size(), 22U);
}

TEST_F(RateLimitTest, WithoutSettlingTheFirstRequestIsActedOnAtOnce)
{
    int count = 0;
    RateLimit limit(runLoop, 0, [&] { ++count; });
    limit.request();
    EXPECT_EQ(count, 1);
    for (int times = 0; times < 1000; ++times)
        limit.request();
    EXPECT_EQ(count, 1);
    runLoop.advance(RateLimit::shortestPause);
    EXPECT_EQ(count, 2);
    runLoop.advance(RateLimit::shortestPause);
    limit.request();
    EXPECT_EQ(count, 3);
}

TEST_F(RateLimitTest, NoTimerIsLeftAtRest)
{
    rate.request();
    runLoop.advance(10.0);
    for (const auto& timer : runLoop.timers)
        EXPECT_FALSE(timer->valid);
}

} // namespace
