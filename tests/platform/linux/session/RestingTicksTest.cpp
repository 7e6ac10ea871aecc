#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/session/RestingTicks.h"
#include "tests/support/ComesTrue.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

using RestClock = RestingTicks::Clock;

/// What the thread finds; it may outlive the test.
struct Found
{
    std::atomic<int> begun = 0;
    std::atomic<int> asked = 0; ///< looks that were begun
    std::atomic<int> looked = 0;
    std::atomic<bool> canBegin = true;
    std::atomic<bool> isStill = true;
    std::mutex mutex;
    std::condition_variable changed;
    bool hangs = false;

    void setHangs(bool value)
    {
        const std::scoped_lock lock(mutex);
        hangs = value;
        changed.notify_all();
    }
};

struct RestingTicksTest : testing::Test
{
    ~RestingTicksTest() override { found->setHangs(false); }

    static RestingTicks::Watch watch(std::shared_ptr<Found> found)
    {
        return {.begin =
                    [found] {
                        ++found->begun;
                        return found->canBegin.load();
                    },
                .isStill =
                    [found] {
                        ++found->asked;
                        std::unique_lock lock(found->mutex);
                        found->changed.wait(lock, [&] { return !found->hangs; });
                        ++found->looked;
                        return found->isStill.load();
                    }};
    }

    void prepare()
    {
        ticks.prepare();
        ASSERT_TRUE(comesTrue([&] { return ticks.isPrepared(); }));
    }

    static std::vector<RestClock::time_point> moments(int count)
    {
        std::vector<RestClock::time_point> moments;
        for (int moment = 0; moment < count; ++moment)
            moments.push_back(RestClock::now() + (moment + 1) * 30ms);
        return moments;
    }

    const std::shared_ptr<Found> found = std::make_shared<Found>();
    int wakes = 0;
    RestingTicks ticks{watch(found), [this] { ++wakes; }, 1h};
};

TEST_F(RestingTicksTest, NothingNewWakesNobody)
{
    prepare();
    ticks.rest(moments(5), RestClock::now() + 1h);
    EXPECT_TRUE(comesTrue([&] { return found->looked == 5; }));
    EXPECT_TRUE(ticks.isPrepared());
    QCoreApplication::processEvents();
    EXPECT_EQ(wakes, 0);
}

TEST_F(RestingTicksTest, TheFirstLookThatFindsSomethingNewWakes)
{
    prepare();
    found->isStill = false;
    ticks.rest(moments(5), RestClock::now() + 1h);
    EXPECT_TRUE(comesTrue([&] { return wakes == 1; }));
    EXPECT_EQ(found->looked, 1);
    EXPECT_FALSE(ticks.isPrepared());
    found->isStill = true;
    prepare();
    EXPECT_EQ(found->begun, 2);
}

TEST_F(RestingTicksTest, ALookThatHangsWakes)
{
    RestingTicks impatient(
        watch(found), [this] { ++wakes; }, 20ms);
    impatient.prepare();
    ASSERT_TRUE(comesTrue([&] { return impatient.isPrepared(); }));
    found->setHangs(true);
    impatient.rest(moments(5), RestClock::now() + 1h);
    // A busy machine may let the look begin later than it is waited for.
    EXPECT_TRUE(comesTrue([&] { return wakes == 1 && found->asked == 1; }));
    impatient.end();
    EXPECT_FALSE(impatient.isPrepared());
    impatient.prepare(); // waits for nobody
    found->setHangs(false);
    EXPECT_TRUE(comesTrue([&] { return impatient.isPrepared(); }));
}

TEST_F(RestingTicksTest, WhoHasWokenIsNotWokenAgain)
{
    found->isStill = false;
    std::vector<RestClock::time_point> moment;
    // A machine that was held up until the look, which may come a little early, begins again.
    const auto isTooLate = [&] { return moment.empty() || RestClock::now() >= moment.front() - 40ms; };
    for (int attempt = 0; attempt < 100 && isTooLate(); ++attempt) {
        ticks.forget();
        ASSERT_TRUE(comesTrue([this] {
            ticks.prepare();
            return ticks.isPrepared();
        }));
        found->looked = 0;
        moment = {RestClock::now() + 80ms};
        ticks.rest(moment, RestClock::now() + 1h);
        ticks.end();
    }
    wakes = 0;
    EXPECT_TRUE(comesTrue([&] { return RestClock::now() > moment.front() + 100ms; }));
    EXPECT_EQ(wakes, 0);
    EXPECT_EQ(found->looked, 0);
}

TEST_F(RestingTicksTest, ARestFollowsTheOther)
{
    prepare();
    ticks.rest(moments(2), RestClock::now() + 100ms);
    EXPECT_TRUE(comesTrue([&] { return found->looked == 2; }));
    ticks.end();
    ticks.rest(moments(2), RestClock::now() + 1h);
    EXPECT_TRUE(comesTrue([&] { return found->looked == 4; }));
    EXPECT_EQ(found->begun, 1);
    EXPECT_EQ(wakes, 0);
}

TEST_F(RestingTicksTest, WhatCannotBeWatchedIsNotAskedForEachTime)
{
    found->canBegin = false;
    ticks.prepare();
    EXPECT_TRUE(comesTrue([&] { return found->begun == 1; }));
    for (int call = 0; call < 20; ++call)
        ticks.prepare();
    EXPECT_FALSE(ticks.isPrepared());
    EXPECT_EQ(found->begun, 1);
    found->canBegin = true;
    EXPECT_TRUE(comesTrue([&] {
        ticks.prepare();
        return ticks.isPrepared();
    }));
}

TEST_F(RestingTicksTest, ForgettingBeginsAnew)
{
    prepare();
    ticks.forget();
    EXPECT_FALSE(ticks.isPrepared());
    prepare();
    EXPECT_EQ(found->begun, 2);
}

} // namespace
