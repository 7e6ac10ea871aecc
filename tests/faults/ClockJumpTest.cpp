// The computer's clock set forward and back by years, while the helper runs.

#include <random>

#include "battery/QDBattery.h"
#include "platform/Image.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

constexpr double day = 86400;
constexpr double year = 365 * day;

struct ClockJumpTest : testing::Test, Helper
{
    ClockJumpTest()
    {
        setBattery(50);
        setRegistry("ManufactureDate", qint64{17506});
        setShared("autoUpload", true);
        launch();
        QObject::connect(delegate.get(), &HelperAppDelegate::dailyUploadStarted, delegate.get(),
                         [this] { ++uploads; });
    }

    int uploads = 0;
};

TEST_F(ClockJumpTest, ForwardByYearsIsOneDayThatHasPassed)
{
    platform.clock.advance(10 * year);
    platform.runLoop.advance(60);
    EXPECT_EQ(uploads, 1);
    EXPECT_EQ(title(), QStringLiteral("50.0%"));
}

TEST_F(ClockJumpTest, BackByYearsNothingIsSentUntilTheMarkHasPassed)
{
    platform.clock.advance(-10 * year);
    platform.runLoop.advance(60);
    platform.clock.advance(10 * year);
    platform.runLoop.advance(60);
    EXPECT_EQ(uploads, 0);
    platform.clock.advance(day);
    platform.runLoop.advance(10);
    EXPECT_EQ(uploads, 1);
}

TEST_F(ClockJumpTest, FiveHundredJumpsAtRandom)
{
    std::mt19937 random(20261121);
    std::uniform_real_distribution<double> years(-200, 200);
    const QDateTime start = platform.clock.time;
    int expected = 0;
    for (int jump = 0; jump < 500; ++jump) {
        platform.clock.time = start.addSecs(static_cast<qint64>(years(random) * year));
        const qint64 sinceMark = delegate->lastDailyUploadToOnlineService().msecsTo(platform.clock.time);
        expected += sinceMark > static_cast<qint64>(day) * 1000 ? 1 : 0;
        delegate->myMac().Battery()->updateData();
        delegate->updateStatusBarTitle();
        ASSERT_EQ(uploads, expected) << jump;
        ASSERT_EQ(title(), QStringLiteral("50.0%")) << jump;
    }
    EXPECT_GT(uploads, 2);
    EXPECT_LT(uploads, 100);
}

} // namespace
