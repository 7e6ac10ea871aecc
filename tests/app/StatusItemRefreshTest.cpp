// Title, icon and bar colours as one refresh puts them together.

#include <limits>

#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "platform/Image.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

void Helper::refresh()
{
    if (QDBattery* battery = delegate->myMac().Battery())
        battery->updateData();
    delegate->updateStatusBarTitle();
}

namespace {

struct StatusItemRefreshTest : testing::Test, Helper
{
    bool isTemplate() { return delegate->statusItem().image()->isTemplate(); }

    const HueFilter* chargeFilter() { return interface.stateOfChargeProgress().contentFilters().at(0).get(); }
    const HueFilter* healthFilter() { return interface.stateOfHealthProgress().contentFilters().at(0).get(); }
    const HueFilter* green() { return delegate->hueColorGreen().get(); }
    const HueFilter* yellow() { return delegate->hueColorYellow().get(); }
    const HueFilter* red() { return delegate->hueColorRed().get(); }
};

TEST_F(StatusItemRefreshTest, WithoutABattery)
{
    setShared("customStatusBar", QStringLiteral("always"));
    launch();
    EXPECT_EQ(title(), QString());
    EXPECT_EQ(imageName(), QStringLiteral("AppIconBW"));
    EXPECT_EQ(delegate->statusItem().image()->size(), QSizeF(21, 21));
    EXPECT_FALSE(isTemplate());
    EXPECT_EQ(delegate->shownView()->name, QStringLiteral("noBatteryView"));
    EXPECT_EQ(record().titlesSet, QStringList({QString(), QString()}));
    EXPECT_EQ(record().fontSizesSet, std::vector<double>({12.0, 12.0}));
    EXPECT_EQ(chargeFilter(), green());
}

TEST_F(StatusItemRefreshTest, TheTitleIsSetThreeTimes)
{
    setBattery(87);
    launch();
    record().titlesSet.clear();
    refresh();
    EXPECT_EQ(record().titlesSet,
              QStringList({QStringLiteral("100 %"), QStringLiteral("87.0%"), QStringLiteral("87.0%")}));
}

TEST_F(StatusItemRefreshTest, TheNumberShowsPowerWhereTheIconWould)
{
    setBattery(87);
    launch();
    EXPECT_FALSE(record().fallbackOnPower);
    platform.battery()[QStringLiteral("ExternalConnected")] = true;
    refresh();
    EXPECT_TRUE(record().fallbackOnPower) << "on power, not charging";
    platform.battery()[QStringLiteral("ExternalConnected")] = false;
    refresh();
    EXPECT_FALSE(record().fallbackOnPower);
}

TEST_F(StatusItemRefreshTest, AnEmptyTemplateLeavesTheIconAlone)
{
    setBattery(87);
    setShared("customStatusBar", QString());
    setShared("showIconsInMenuBar", 1);
    launch();
    EXPECT_EQ(title(), QString());
    EXPECT_EQ(record().titlesSet.constLast(), QString());
    EXPECT_NE(delegate->statusItem().image(), nullptr);
}

TEST_F(StatusItemRefreshTest, OnlyOneShowsTheIcon)
{
    setBattery(87);
    for (const qint64 setting : {0, 2, -1}) {
        setShared("showIconsInMenuBar", setting);
        if (!delegate)
            launch();
        refresh();
        EXPECT_EQ(imageName(), QString()) << setting;
    }
    setShared("showIconsInMenuBar", qint64{1});
    refresh();
    EXPECT_EQ(imageName(), QStringLiteral("#bat34"));
    EXPECT_EQ(delegate->statusItem().image()->size(), QSizeF(21, 21));
}

TEST_F(StatusItemRefreshTest, IconBands)
{
    struct Case
    {
        qint64 charge;
        bool adapter;
        const char* icon;
    };
    constexpr Case cases[] = {{19, false, "#bat04"},      {20, false, "#bat14"}, {39, false, "#bat14"},
                              {40, false, "#bat24"},      {69, false, "#bat24"}, {70, false, "#bat34"},
                              {89, false, "#bat34"},      {90, false, "#bat44"}, {79, true, "#bat04Charge"},
                              {80, true, "#bat44Charge"}, {0, false, "#bat04"}};
    setBattery(50);
    setShared("showIconsInMenuBar", qint64{1});
    launch();
    for (const Case& row : cases) {
        setBattery(row.charge);
        setRegistry("ExternalConnected", row.adapter);
        refresh();
        EXPECT_EQ(imageName(), QLatin1String(row.icon)) << row.charge;
    }
}

TEST_F(StatusItemRefreshTest, ChargingWithoutAnAdapterShowsTheChargingIcon)
{
    setBattery(85);
    setRegistry("IsCharging", true);
    setShared("showIconsInMenuBar", qint64{1});
    launch();
    EXPECT_EQ(imageName(), QStringLiteral("#bat44Charge"));
}

TEST_F(StatusItemRefreshTest, TheMarkStaysWithTheName)
{
    setBattery(50);
    setShared("showIconsInMenuBar", qint64{1});
    launch();
    EXPECT_TRUE(isTemplate()); // the second refresh of the launch marked the image of the first
    setBattery(95);
    refresh();
    EXPECT_FALSE(isTemplate());
    refresh();
    EXPECT_TRUE(isTemplate());
    setBattery(50);
    refresh();
    EXPECT_TRUE(isTemplate()); // marked before, and there is one image of that name
    setShared("showIconsInMenuBar", qint64{0});
    refresh();
    setShared("showIconsInMenuBar", qint64{1});
    refresh();
    EXPECT_TRUE(isTemplate());
}

TEST_F(StatusItemRefreshTest, AnAdapterPluggedInBetweenTheTwoTestsLeavesTheIcon)
{
    setBattery(50);
    setShared("showIconsInMenuBar", qint64{1});
    launch();
    setBattery(95);
    refresh();
    const auto before = delegate->statusItem().image();
    before->setTemplate(false);
    int asked = 0;
    platform.registry.onRead = [&](const QString& key) {
        if (key == QStringLiteral("ExternalConnected"))
            setRegistry("ExternalConnected", ++asked > 1);
    };
    delegate->updateStatusBarTitle();
    EXPECT_EQ(delegate->statusItem().image(), before);
    EXPECT_FALSE(isTemplate());
}

TEST_F(StatusItemRefreshTest, BarColours)
{
    struct Case
    {
        qint64 charge;
        qint64 design; // health is 100 / design
        char chargeBar;
        char healthBar;
    };
    constexpr Case cases[] = {{40, 100, 'g', 'g'},  {39, 100, 'y', 'g'}, {19, 100, 'r', 'g'},
                              {70, 143, 'g', 'y'},  {30, 143, 'y', 'r'}, {60, 143, 'g', 'r'},
                              {61, 143, 'g', 'y'},  {79, 143, 'g', 'y'}, {80, 143, 'g', 'r'},
                              {100, 143, 'g', 'r'}, {30, 105, 'y', 'g'}, {0, 125, 'r', 'g'}};
    setBattery(50);
    launch();
    const auto letter = [&](const HueFilter* filter) {
        return filter == green() ? 'g' : filter == yellow() ? 'y' : filter == red() ? 'r' : '?';
    };
    for (const Case& row : cases) {
        setBattery(row.charge, row.design);
        refresh();
        EXPECT_EQ(letter(chargeFilter()), row.chargeBar) << row.charge << '/' << row.design;
        EXPECT_EQ(letter(healthFilter()), row.healthBar) << row.charge << '/' << row.design;
    }
}

TEST_F(StatusItemRefreshTest, NegativeAndNotANumberLeaveTheBars)
{
    setBattery(30, 143);
    setShared("showIconsInMenuBar", qint64{1});
    launch();
    ASSERT_EQ(chargeFilter(), yellow());
    ASSERT_EQ(healthFilter(), red());
    setBattery(-5, 143);
    refresh();
    EXPECT_EQ(chargeFilter(), yellow());
    EXPECT_EQ(healthFilter(), red());
    setRegistry("CurrentCapacity", qint64{0});
    setRegistry("MaxCapacity", qint64{0});
    refresh();
    EXPECT_EQ(chargeFilter(), yellow());
    EXPECT_EQ(imageName(), QStringLiteral("#bat04"));
    EXPECT_EQ(title(), QStringLiteral("nan%"));
    setRegistry("CurrentCapacity", qint64{5});
    refresh();
    EXPECT_EQ(chargeFilter(), green());
    EXPECT_EQ(imageName(), QStringLiteral("#bat44"));
    EXPECT_EQ(title(), QStringLiteral("inf%"));
}

TEST_F(StatusItemRefreshTest, LaunchColoursOverTheFirstGreen)
{
    setBattery(0);
    setRegistry("MaxCapacity", qint64{0});
    launch();
    EXPECT_EQ(chargeFilter(), green());
    EXPECT_EQ(healthFilter(), green());
}

TEST_F(StatusItemRefreshTest, GivesWhatThePlaceholdersStandFor)
{
    setBattery(87);
    setRegistry("Temperature", qint64{3031});
    setRegistry("IsCharging", true);
    launch();
    const auto values = delegate->titleValues();
    ASSERT_TRUE(values);
    EXPECT_EQ(values->temperature, 30.0);
    EXPECT_EQ(values->stateOfCharge, 87.0);
    EXPECT_TRUE(values->isCharging);
    setShared("temperatureSettingIndex", qint64{1});
    EXPECT_EQ(delegate->titleValues()->temperature, 85.9);
}

TEST_F(StatusItemRefreshTest, PlaceholdersStandForNothingWithoutABattery)
{
    launch();
    EXPECT_FALSE(delegate->titleValues());
    delegate->reloadBattery();
    EXPECT_EQ(title(), QString());
}

TEST_F(StatusItemRefreshTest, ReloadingTheBatteryTakesItsOwnUnitAnew)
{
    setBattery(87);
    setRegistry("Temperature", qint64{3031});
    launch();
    platform.userDefaults.standardDefaults.values[QStringLiteral("QDBatteryTemperatureMode")] = qint64{2};
    delegate->updateStatusBarTitle();
    EXPECT_EQ(delegate->myMac().Battery()->property("Temperature"), QStringLiteral("30.0 \u00b0C"));
    delegate->reloadBattery();
    EXPECT_EQ(delegate->myMac().Battery()->property("Temperature"), QStringLiteral("303.1 K"));
}

TEST_F(StatusItemRefreshTest, TemperatureInTheTitleFollowsTheSharedSetting)
{
    setBattery(50);
    setRegistry("Temperature", qint64{3031});
    platform.userDefaults.standardDefaults.values[QStringLiteral("QDBatteryTemperatureMode")] = qint64{2};
    setShared("customStatusBar", QStringLiteral("%t"));
    setShared("temperatureSettingIndex", qint64{1});
    launch();
    EXPECT_EQ(title(), QStringLiteral("85.9"));
    setShared("temperatureSettingIndex", qint64{2});
    refresh();
    EXPECT_EQ(title(), QStringLiteral("30.0"));
}

TEST_F(StatusItemRefreshTest, CurrentInTheTitleIsReadNow)
{
    setBattery(50);
    setRegistry("Amperage", qint64{-1600});
    setRegistry("InstantAmperage", qint64{-1500});
    setShared("customStatusBar", QStringLiteral("%mA %m"));
    launch();
    EXPECT_EQ(title(), QStringLiteral("-1600 %m"));
}

} // namespace
