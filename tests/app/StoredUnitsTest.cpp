#include "app/StoredUnits.h"

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// A launched helper whose battery has 30 °C.
struct StoredUnitsTest : testing::Test, Helper
{
    StoredUnitsTest()
    {
        setBattery(50);
        setRegistry("Temperature", qint64{3031});
        launch();
        QObject::connect(delegate.get(), &HelperAppDelegate::statusItemRefreshed, delegate.get(),
                         [this] { ++refreshes; });
    }

    void storeElsewhere(const char* key, qint64 mode)
    {
        platform.userDefaults.standardDefaults.values[QLatin1String(key)] = mode;
        platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    }

    TemperatureUnit temperatureUnit() { return delegate->myMac().Battery()->temperatureMode(); }

    int refreshes = 0;
};

TEST_F(StoredUnitsTest, OfAnotherProcessAreShownAtOnce)
{
    followStoredUnits(platform.platform, *delegate);
    storeElsewhere("QDBatteryTemperatureMode", 1);
    EXPECT_EQ(temperatureUnit(), TemperatureUnit::Fahrenheit);
    EXPECT_EQ(refreshes, 2) << "for the notification, and for what is shown in the new unit";
    storeElsewhere("QDMacAgeMode", 2);
    EXPECT_EQ(delegate->myMac().ageMode(), 2);
}

TEST_F(StoredUnitsTest, WithoutAChangeNothingIsRefreshedAnew)
{
    followStoredUnits(platform.platform, *delegate);
    storeElsewhere("QDBatteryTemperatureMode", 0);
    EXPECT_EQ(refreshes, 1);
}

TEST_F(StoredUnitsTest, TheDelegateByItselfLeavesItsModels)
{
    storeElsewhere("QDBatteryTemperatureMode", 1);
    storeElsewhere("QDMacAgeMode", 2);
    EXPECT_EQ(temperatureUnit(), TemperatureUnit::Celsius);
    EXPECT_EQ(delegate->myMac().ageMode(), 0);
}

} // namespace
