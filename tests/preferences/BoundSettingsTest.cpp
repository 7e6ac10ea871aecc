#include "preferences/panes/BoundSettings.h"

#include <gtest/gtest.h>

#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QString helperUrl()
{
    return QStringLiteral("file:///opt/Quindle.app/Contents/Resources/Quindle-Helper.app");
}

struct BoundSettingsTest : testing::Test, test::SettingsFixture
{
    BoundSettingsTest()
    {
        QObject::connect(&settings, &BoundSettings::changed, &settings, [this] { ++changes; });
    }

    int changes = 0;
};

TEST_F(BoundSettingsTest, ReadsDefaults)
{
    EXPECT_EQ(settings.customStatusBar(), QStringLiteral("%p%"));
    EXPECT_EQ(settings.temperatureSettingIndex(), 0);
    EXPECT_FALSE(settings.showsIconsInMenuBar());
    EXPECT_FALSE(settings.autoUpload());
    EXPECT_FALSE(settings.autoUploadBatteryData());
    EXPECT_FALSE(settings.startsAtLogin());
    EXPECT_EQ(changes, 0);
}

TEST_F(BoundSettingsTest, ReadsWhatAnotherProcessStores)
{
    suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%w W")},
               {QStringLiteral("temperatureSettingIndex"), 7},
               {QStringLiteral("showIconsInMenuBar"), 1},
               {QStringLiteral("autoUpload"), true}};
    standard() = {{QStringLiteral("autoUploadBatteryData"), 3}};
    EXPECT_EQ(settings.property("customStatusBar"), QVariant(QStringLiteral("%w W")));
    EXPECT_EQ(settings.property("temperatureSettingIndex"), QVariant(qint64(7)));
    EXPECT_EQ(settings.property("showsIconsInMenuBar"), QVariant(true));
    EXPECT_EQ(settings.property("autoUpload"), QVariant(true));
    EXPECT_EQ(settings.property("autoUploadBatteryData"), QVariant(true));
    suite()[QStringLiteral("showIconsInMenuBar")] = 2;
    EXPECT_FALSE(settings.showsIconsInMenuBar());
}

TEST_F(BoundSettingsTest, StoresTypedAndAnnouncesOnce)
{
    settings.setCustomStatusBar(QStringLiteral("%t"));
    EXPECT_EQ(changes, 1);
    settings.setTemperatureSettingIndex(2);
    EXPECT_EQ(changes, 2);
    settings.setShowsIconsInMenuBar(true);
    EXPECT_EQ(changes, 3);
    settings.setAutoUpload(true);
    EXPECT_EQ(changes, 4);
    const QVariantMap stored{{QStringLiteral("customStatusBar"), QStringLiteral("%t")},
                             {QStringLiteral("temperatureSettingIndex"), qint64(2)},
                             {QStringLiteral("showIconsInMenuBar"), qint64(1)},
                             {QStringLiteral("autoUpload"), true}};
    EXPECT_EQ(suite(), stored);
    EXPECT_TRUE(standard().isEmpty());

    settings.setShowsIconsInMenuBar(false);
    EXPECT_EQ(suite()[QStringLiteral("showIconsInMenuBar")], QVariant(qint64(0)));
    settings.setAutoUploadBatteryData(true);
    EXPECT_EQ(standard()[QStringLiteral("autoUploadBatteryData")], QVariant(qint64(1)));
    settings.setAutoUploadBatteryData(false);
    EXPECT_EQ(standard()[QStringLiteral("autoUploadBatteryData")], QVariant(qint64(0)));
    EXPECT_EQ(changes, 7);
}

TEST_F(BoundSettingsTest, KeepsTheLoginSwitchUntilItLooksAgain)
{
    settings.setStartsAtLogin(true);
    EXPECT_EQ(loginItems.switches, QStringList{QStringLiteral("com.fernhollow.Quindle-Helper on")});
    EXPECT_TRUE(settings.startsAtLogin());
    EXPECT_EQ(changes, 1);
    settings.reload();
    EXPECT_FALSE(settings.startsAtLogin());
    EXPECT_EQ(changes, 2);
    loginItems.urls.append(helperUrl());
    EXPECT_FALSE(settings.startsAtLogin());
    settings.reload();
    EXPECT_TRUE(settings.startsAtLogin());
}

TEST_F(BoundSettingsTest, LooksAgainAtAnnouncedChangesOnceItWasShown)
{
    loginItems.urls.append(helperUrl());
    DistributedNotificationCenter& center = computer.distributedNotificationCenter;
    center.post(QStringLiteral("SettingsChangedNotification"));
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(settings.startsAtLogin()) << "nobody has looked";
    settings.reload();
    settings.reload();
    changes = 0;
    loginItems.urls.clear();
    center.post(QStringLiteral("SettingsChangedNotification"));
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(settings.startsAtLogin());
}

TEST_F(BoundSettingsTest, KeepsTheLoginSwitchWhenAnotherSettingIsAnnounced)
{
    settings.reload();
    settings.setStartsAtLogin(true); // which these login items do not accept
    computer.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    EXPECT_TRUE(settings.startsAtLogin());
    loginItems.urls.append(helperUrl());
    computer.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    settings.setStartsAtLogin(false);
    computer.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    EXPECT_FALSE(settings.startsAtLogin());
}

TEST(BoundSettingsWithoutSuiteTest, ReadsDefaultsAndStoresNothing)
{
    test::SettingsFixture on(false);
    on.settings.setCustomStatusBar(QStringLiteral("%t"));
    on.settings.setShowsIconsInMenuBar(true);
    EXPECT_EQ(on.settings.customStatusBar(), QStringLiteral("%p%"));
    EXPECT_FALSE(on.settings.showsIconsInMenuBar());
    EXPECT_TRUE(on.suite().isEmpty());
    EXPECT_TRUE(on.standard().isEmpty());
}

} // namespace
