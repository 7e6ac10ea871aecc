#include "windows/WindowWatch.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QWidget>

#include "tests/support/MessageBus.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

struct WindowWatchTest : testing::Test
{
    /// Lets several times the patience pass.
    static void wait()
    {
        QElapsedTimer clock;
        clock.start();
        comesTrue([&clock] { return clock.hasExpired(300); });
    }

    int idle = 0;
    WindowWatch watch{50ms, [this] { ++idle; }};
};

TEST_F(WindowWatchTest, NothingOpenIsIdleAgainAndAgain)
{
    EXPECT_TRUE(comesTrue([this] { return idle >= 2; }));
}

TEST_F(WindowWatchTest, IsNotIdleWhileAWindowIsOpen)
{
    QWidget first;
    QWidget second;
    first.show();
    second.show();
    wait();
    EXPECT_EQ(idle, 0);
    first.hide();
    wait();
    EXPECT_EQ(idle, 0) << "another one is open";
    second.close();
    EXPECT_TRUE(comesTrue([this] { return idle > 0; }));
}

TEST_F(WindowWatchTest, AWindowThatHasJustOpenedCounts)
{
    QWidget window;
    window.show();
    // As if the timer came before what the opening has queued.
    QCoreApplication::removePostedEvents(&watch);
    wait();
    EXPECT_EQ(idle, 0);
}

TEST_F(WindowWatchTest, AWindowThatIsDestroyedIsNoLongerOpen)
{
    auto window = std::make_unique<QWidget>();
    window->show();
    wait();
    EXPECT_EQ(idle, 0);
    window.reset();
    EXPECT_TRUE(comesTrue([this] { return idle > 0; }));
}

TEST_F(WindowWatchTest, WhatWasCopiedKeepsTheProcess)
{
    int idleTimes = 0;
    bool isNeeded = false;
    const WindowWatch holding(
        50ms, [&] { ++idleTimes; }, [&] { return isNeeded; });
    isNeeded = true;
    QGuiApplication::clipboard()->setText(QStringLiteral("83.9 %"));
    idleTimes = 0;
    wait();
    EXPECT_EQ(idleTimes, 0);
    isNeeded = false; // another program has copied something
    QGuiApplication::clipboard()->setText(QStringLiteral("other"));
    EXPECT_TRUE(comesTrue([&] { return idleTimes > 0; }));
}

TEST_F(WindowWatchTest, WhatIsInAWindowDoesNotMatter)
{
    QWidget window;
    QWidget child(&window);
    window.show();
    child.hide();
    wait();
    EXPECT_EQ(idle, 0);
}

} // namespace
