// Without permission to upload, every refresh after the first day added observers: ten thousand after one
// more day, and the square of that many refreshes for one changed setting.

#include "platform/Image.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

struct ObserversWithoutEndTest : testing::Test, Helper
{
    ObserversWithoutEndTest()
    {
        setBattery(50);
        launch();
        QObject::connect(delegate.get(), &HelperAppDelegate::statusItemRefreshed, delegate.get(),
                         [this] { ++refreshes; });
    }

    int refreshesForOneChange()
    {
        refreshes = 0;
        platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
        return refreshes;
    }

    int refreshes = 0;
};

TEST_F(ObserversWithoutEndTest, OneRegistrationIsOneRefresh)
{
    EXPECT_EQ(refreshesForOneChange(), 1);
}

TEST_F(ObserversWithoutEndTest, RegisteredAgainTheyAreCalledAgain)
{
    delegate->loadSettings();
    EXPECT_EQ(refreshesForOneChange(), 4);
}

TEST_F(ObserversWithoutEndTest, AThousandRefreshesPastTheDayAreBounded)
{
    platform.clock.advance(86401);
    for (int refresh = 0; refresh < 1000; ++refresh)
        delegate->updateStatusBarTitle();
    EXPECT_EQ(refreshesForOneChange(), 32 * 32);
}

TEST(NotificationCenterTest, AnObserverTooManyIsLoggedOnceAndOthersAreAdded)
{
    static int lines;
    lines = 0;
    const auto former = qInstallMessageHandler([](auto...) { ++lines; });
    NotificationCenter center;
    int one = 0;
    int other = 0;
    const NotificationCenter::Observer observer = [&one] { ++one; };
    for (int time = 0; time < 100; ++time)
        center.addObserver(QStringLiteral("a"), observer);
    center.addObserver(QStringLiteral("a"), [&other] { ++other; });
    center.addObserver(QStringLiteral("b"), observer);
    center.post(QStringLiteral("a"));
    qInstallMessageHandler(former);
    EXPECT_EQ(one, 32);
    EXPECT_EQ(other, 1);
    EXPECT_EQ(lines, 1);
    center.post(QStringLiteral("b"));
    EXPECT_EQ(one, 33);
}

} // namespace
