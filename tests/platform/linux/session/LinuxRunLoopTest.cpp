#include <atomic>
#include <string>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

#include "platform/linux/session/LinuxRunLoop.h"
#include "tests/support/ComesTrue.h"

using namespace quindle;

namespace {

void runLoopFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

TEST(LinuxRunLoop, FiresAgainAndAgain)
{
    LinuxRunLoop runLoop;
    int fired = 0;
    QElapsedTimer watch;
    watch.start();
    runLoop.scheduleRepeatingTimer(0.02, 0, [&] { ++fired; });
    EXPECT_TRUE(comesTrue([&] { return fired >= 3; }));
    EXPECT_GE(watch.nsecsElapsed(), 60'000'000);
}

TEST(LinuxRunLoop, TolerantTimerWaitsForTheOther)
{
    QElapsedTimer watch;
    watch.start();
    bool runs = false;
    LinuxRunLoop runLoop([&] { return runs ? static_cast<double>(watch.nsecsElapsed()) / 1e9 : 0; });
    std::string fired;
    runLoop.scheduleRepeatingTimer(0.05, 0.05, [&] { fired += 'a'; });
    runLoop.scheduleRepeatingTimer(0.1, 0, [&] { fired += 'b'; });
    runs = true;
    EXPECT_TRUE(comesTrue([&] { return fired.size() >= 2; }));
    EXPECT_EQ(fired.substr(0, 2), "ab");
}

TEST(LinuxRunLoop, InvalidatedTimerIsSilent)
{
    LinuxRunLoop runLoop;
    int fired = 0;
    int other = 0;
    const auto timer = runLoop.scheduleRepeatingTimer(0.01, 0, [&] { ++fired; });
    runLoop.scheduleRepeatingTimer(0.01, 0, [&] { ++other; });
    timer->invalidate();
    timer->invalidate();
    EXPECT_TRUE(comesTrue([&] { return other >= 3; }));
    EXPECT_EQ(fired, 0);
}

TEST(LinuxRunLoop, TimersChangeInsideACallback)
{
    LinuxRunLoop runLoop;
    std::string fired;
    std::shared_ptr<Timer> first;
    std::shared_ptr<Timer> second;
    first = runLoop.scheduleRepeatingTimer(0.02, 0.02, [&] {
        fired += '1';
        first->invalidate();
        second->invalidate();
        runLoop.scheduleRepeatingTimer(0.01, 0, [&] { fired += '3'; });
    });
    second = runLoop.scheduleRepeatingTimer(0.02, 0.02, [&] { fired += '2'; });
    EXPECT_TRUE(comesTrue([&] { return fired.size() >= 3; }));
    EXPECT_EQ(fired.substr(0, 3), "133"); // a slow machine makes up for several ticks at once
}

TEST(LinuxRunLoop, TicksGoOnInALoopInsideACallback)
{
    LinuxRunLoop runLoop;
    int other = 0;
    bool entered = false;
    bool wentOn = false;
    runLoop.scheduleRepeatingTimer(0.01, 0, [&] {
        if (std::exchange(entered, true))
            return;
        const int before = other;
        wentOn = comesTrue([&] { return other >= before + 2; });
    });
    runLoop.scheduleRepeatingTimer(0.01, 0, [&] { ++other; });
    EXPECT_TRUE(comesTrue([&] { return entered; }));
    EXPECT_TRUE(wentOn);
}

TEST(LinuxRunLoop, MissedTicksArePassedOver)
{
    double now = 0;
    LinuxRunLoop runLoop([&] { return now; });
    int fired = 0;
    runLoop.scheduleRepeatingTimer(0.01, 0, [&] { ++fired; });
    now = 10;
    EXPECT_TRUE(comesTrue([&] { return fired == 1; }));
    runLoopFor(50);
    EXPECT_EQ(fired, 1);
}

TEST(LinuxRunLoop, TicksComeOnTimeWhileSomebodyWantsThem)
{
    double now = 0;
    LinuxRunLoop runLoop([&] { return now; });
    std::string fired;
    runLoop.scheduleRepeatingTimer(1000, 1000, [&] { fired += 'a'; });
    runLoop.scheduleRepeatingTimer(2000, 0, [&] { fired += 'b'; });
    now = 1500;
    Punctuality wanted = runLoop.keepPunctual();
    const Punctuality copy = wanted;
    wanted = runLoop.keepPunctual();
    EXPECT_TRUE(comesTrue([&] { return fired == "a"; })); // at once
    now = 2000;
    wanted.reset();
    EXPECT_TRUE(comesTrue([&] { return fired == "aab"; }));
    now = 3500;
    wanted = runLoop.keepPunctual();
    EXPECT_TRUE(comesTrue([&] { return fired == "aaba"; }));
}

TEST(LinuxRunLoop, TicksMayBeLateAgainWhenNobodyWantsThemOnTime)
{
    double now = 0;
    LinuxRunLoop runLoop([&] { return now; });
    int fired = 0;
    runLoop.scheduleRepeatingTimer(1000, 1000, [&] { ++fired; });
    runLoop.scheduleRepeatingTimer(2000, 0, [] {});
    runLoop.keepPunctual();
    now = 1500;
    runLoop.keepPunctual().reset();
    runLoopFor(20);
    EXPECT_EQ(fired, 0);
}

QElapsedTimer startedWatch()
{
    QElapsedTimer watch;
    watch.start();
    return watch;
}

/// Ticks every 10 seconds, yet each comes at once: the clock leaps ahead when one has taken place.
struct RestingLoopTest : testing::Test
{
    RestingLoopTest()
    {
        timer = runLoop.scheduleRepeatingTimer(10, 0, [this] {
            ++fired;
            leapTo(10 * (fired + (isStill ? looks.load() : 0)) + 9.98);
        });
        runLoop.restWhen([this] { return mayRest; }, {.begin = [] { return true; },
                                                      .isStill =
                                                          [this] {
                                                              ++looks;
                                                              return isStill.load();
                                                          }});
        leapTo(9.98);
    }

    // The thread must not look any more when this ends.
    ~RestingLoopTest() override { runLoop.keepPunctual(); }

    void leapTo(double moment)
    {
        base = moment;
        watch.restart();
        runLoop.keepPunctual(); // counts the time to the next tick anew
    }

    std::atomic<int> looks = 0;
    std::atomic<bool> isStill = true;
    int fired = 0;
    bool mayRest = true;
    double base = 0;
    QElapsedTimer watch = startedWatch();
    LinuxRunLoop runLoop{[this] { return base + static_cast<double>(watch.nsecsElapsed()) / 1e9; }};
    std::shared_ptr<Timer> timer;
};

TEST_F(RestingLoopTest, ATickThatWouldFindNothingNewIsLeftOut)
{
    EXPECT_TRUE(comesTrue([&] { return looks == 1; }));
    EXPECT_GE(fired, 2); // one that began to watch, and one that saw that nothing had changed until then
    const int before = fired;
    runLoopFor(60);
    EXPECT_EQ(fired, before);
}

TEST_F(RestingLoopTest, OneThatFindsSomethingTakesPlace)
{
    isStill = false;
    EXPECT_TRUE(comesTrue([&] { return looks >= 2 && fired >= 4; }));
}

TEST_F(RestingLoopTest, NoneIsLeftOutWhereItMayNot)
{
    mayRest = false;
    EXPECT_TRUE(comesTrue([&] { return fired >= 5; }));
    EXPECT_EQ(looks, 0);
}

TEST_F(RestingLoopTest, SomebodyWhoWantsTicksOnTimeGetsThem)
{
    const Punctuality wanted = runLoop.keepPunctual();
    EXPECT_TRUE(comesTrue([&] { return fired >= 5; }));
    EXPECT_EQ(looks, 0);
}

TEST(LinuxRunLoop, AWishMayOutliveTheLoop)
{
    Punctuality wanted;
    {
        LinuxRunLoop runLoop;
        wanted = runLoop.keepPunctual();
    }
    wanted.reset();
}

TEST(LinuxRunLoop, LettingGoOfTimerOrLoopIsSafe)
{
    int fired = 0;
    std::shared_ptr<Timer> timer;
    {
        LinuxRunLoop runLoop;
        timer = runLoop.scheduleRepeatingTimer(0.005, 0, [&] { ++fired; });
    }
    timer->invalidate();
    runLoopFor(30);
    EXPECT_EQ(fired, 0);
}

} // namespace
