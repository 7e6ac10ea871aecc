#include "settings/ApplicationPreferences.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct ApplicationPreferencesTest : testing::Test
{
    FakePlatform platform;
    ApplicationPreferences preferences{platform.platform};

    void store(const char* key, const QVariant& value)
    {
        platform.userDefaults.suiteDefaults.values[QLatin1String(key)] = value;
    }

    void storeOwn(const char* key, const QVariant& value)
    {
        platform.userDefaults.standardDefaults.values[QLatin1String(key)] = value;
    }
};

TEST_F(ApplicationPreferencesTest, MissingReadsAsDefault)
{
    EXPECT_FALSE(preferences.autoUpload());
    EXPECT_EQ(preferences.temperatureSettingIndex(), 0);
    EXPECT_EQ(preferences.showIconsInMenuBar(), 0);
    EXPECT_EQ(preferences.temperatureWarningTag(), 0);
    EXPECT_EQ(preferences.customStatusBar(), QStringLiteral("%p%"));
    EXPECT_FALSE(preferences.runInBackground());
    EXPECT_FALSE(preferences.firstStart());
    EXPECT_EQ(preferences.bundleVersionAtQuit(), std::nullopt);
    EXPECT_EQ(preferences.bundleVersionAtQuitText(), std::nullopt);
    EXPECT_EQ(preferences.statusBarString(), std::nullopt);
    EXPECT_EQ(preferences.runInBackgroundOwn(), std::nullopt);
}

TEST_F(ApplicationPreferencesTest, NumbersAreOneClassAndTextsAreNot)
{
    store("showIconsInMenuBar", true);
    EXPECT_EQ(preferences.showIconsInMenuBar(), 1);
    store("autoUpload", qint64{1});
    EXPECT_TRUE(preferences.autoUpload());
    store("autoUpload", qint64{2});
    EXPECT_FALSE(preferences.autoUpload());
    store("temperatureSettingIndex", QStringLiteral("1"));
    EXPECT_EQ(preferences.temperatureSettingIndex(), 0);
    store("temperatureSettingIndex", 1.0);
    EXPECT_EQ(preferences.temperatureSettingIndex(), 1);
    store("temperatureSettingIndex", 1.5);
    EXPECT_EQ(preferences.temperatureSettingIndex(), 0);
    store("customStatusBar", qint64{7});
    EXPECT_EQ(preferences.customStatusBar(), QStringLiteral("%p%"));
    store("customStatusBar", QStringLiteral(""));
    EXPECT_EQ(preferences.customStatusBar(), QStringLiteral(""));
}

TEST_F(ApplicationPreferencesTest, EachReadGoesToTheDatabase)
{
    store("customStatusBar", QStringLiteral("a"));
    EXPECT_EQ(preferences.customStatusBar(), QStringLiteral("a"));
    store("customStatusBar", QStringLiteral("b"));
    EXPECT_EQ(preferences.customStatusBar(), QStringLiteral("b"));
}

TEST_F(ApplicationPreferencesTest, OneKeyReadAsNumberAndAsText)
{
    storeOwn("bundleVersionAtQuit", QStringLiteral("12"));
    EXPECT_EQ(preferences.bundleVersionAtQuit(), std::nullopt);
    EXPECT_EQ(preferences.bundleVersionAtQuitText(), QStringLiteral("12"));
    storeOwn("bundleVersionAtQuit", qint64{12});
    EXPECT_EQ(preferences.bundleVersionAtQuit(), 12);
    EXPECT_EQ(preferences.bundleVersionAtQuitText(), std::nullopt);
}

TEST_F(ApplicationPreferencesTest, SettingNothingWritesAndRemovesNothing)
{
    preferences.setBundleVersionAtQuit(5);
    preferences.setBundleVersionAtQuit(std::nullopt);
    preferences.setStatusBarString(QStringLiteral("x"));
    preferences.setStatusBarString(std::nullopt);
    preferences.setRunInBackgroundOwn(true);
    preferences.setRunInBackgroundOwn(std::nullopt);
    EXPECT_EQ(preferences.bundleVersionAtQuit(), 5);
    EXPECT_EQ(preferences.statusBarString(), QStringLiteral("x"));
    EXPECT_EQ(preferences.runInBackgroundOwn(), true);
    EXPECT_EQ(platform.userDefaults.standardDefaults.writes.size(), 3);
}

TEST_F(ApplicationPreferencesTest, SettersStoreTypedValuesInTheirDatabase)
{
    preferences.setAutoUpload(true);
    preferences.setTemperatureSettingIndex(1);
    preferences.setShowIconsInMenuBar(1);
    preferences.setTemperatureWarningTag(3);
    preferences.setCustomStatusBar(QStringLiteral("%w W"));
    preferences.setRunInBackground(true);
    preferences.setFirstStart(true);
    preferences.setBundleVersionAtQuitText(QStringLiteral("7"));
    const QVariantMap expected{{QStringLiteral("autoUpload"), true},
                               {QStringLiteral("temperatureSettingIndex"), qint64{1}},
                               {QStringLiteral("showIconsInMenuBar"), qint64{1}},
                               {QStringLiteral("temperatureWarningTag"), qint64{3}},
                               {QStringLiteral("customStatusBar"), QStringLiteral("%w W")},
                               {QStringLiteral("runInBackground"), true},
                               {QStringLiteral("firstStart"), true}};
    EXPECT_EQ(platform.userDefaults.suiteDefaults.values, expected);
    EXPECT_EQ(platform.userDefaults.suiteDefaults.values[QStringLiteral("autoUpload")].typeId(),
              QMetaType::Bool);
    EXPECT_EQ(platform.userDefaults.standardDefaults.values[QStringLiteral("bundleVersionAtQuit")],
              QStringLiteral("7"));
}

struct WithoutSuite : testing::Test
{
    FakePlatform platform;

    WithoutSuite() { platform.userDefaults.suiteAvailable = false; }
};

TEST_F(WithoutSuite, ReadsDefaultsAndWritesNothing)
{
    ApplicationPreferences preferences(platform.platform);
    preferences.setAutoUpload(true);
    preferences.setCustomStatusBar(QStringLiteral("x"));
    preferences.setFirstStart(true);
    EXPECT_FALSE(preferences.hasSuite());
    EXPECT_FALSE(preferences.autoUpload());
    EXPECT_EQ(preferences.customStatusBar(), QStringLiteral("%p%"));
    EXPECT_TRUE(platform.userDefaults.suiteDefaults.values.isEmpty());
}

TEST_F(WithoutSuite, FirstStartIsFatal)
{
    const ApplicationPreferences preferences(platform.platform);
    EXPECT_DEATH(preferences.firstStart(), "firstStart");
}

} // namespace
