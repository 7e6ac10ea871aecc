#include "preferences/panes/BoundSettings.h"

#include <gtest/gtest.h>

#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

namespace {

QString u(const char* text)
{
    return QString::fromLatin1(text);
}

class BoundMenuBarSettingsTest : public testing::Test
{
protected:
    BoundMenuBarSettingsTest()
    {
        QObject::connect(&settings, &BoundSettings::changed, &settings, [this] { ++changes; });
    }

    test::SettingsFixture fixture;
    BoundSettings& settings = fixture.settings;
    int changes = 0;
};

struct StoredRow
{
    const char* name;
    QVariant stored;
    qint64 row;
};

class StoredMenuBarSetting : public testing::TestWithParam<StoredRow>
{
};

} // namespace

TEST_P(StoredMenuBarSetting, isCustomForTheNumberOneOnly)
{
    test::SettingsFixture fixture;
    if (GetParam().stored.isValid())
        fixture.standard()[u("customMenuBarSettingSelectedIndex")] = GetParam().stored;
    EXPECT_EQ(fixture.settings.menuBarSetting(), GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(
    Values, StoredMenuBarSetting,
    testing::Values(StoredRow{"absent", {}, 0}, StoredRow{"zero", qint64{0}, 0},
                    StoredRow{"one", qint64{1}, 1}, StoredRow{"two", qint64{2}, 0},
                    StoredRow{"negative", qint64{-1}, 0}, StoredRow{"text", QStringLiteral("1"), 0},
                    StoredRow{"fraction", 1.5, 0}, StoredRow{"list", QVariantList{1}, 0}),
    [](const testing::TestParamInfo<StoredRow>& c) { return std::string(c.param.name); });

TEST_F(BoundMenuBarSettingsTest, menuBarSettingIsStoredAsAnInteger)
{
    settings.setMenuBarSetting(1);
    EXPECT_EQ(fixture.standard().value(u("customMenuBarSettingSelectedIndex")), QVariant(qint64{1}));
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(fixture.suite().isEmpty());
}

TEST_F(BoundMenuBarSettingsTest, standardTitleKeepsTheTextUntilItIsWantedAgain)
{
    settings.setMenuBarSetting(1);
    settings.setCustomStatusBar(u("%w W"));
    settings.setMenuBarSetting(0);
    EXPECT_EQ(settings.customStatusBar(), u("%p%"));
    EXPECT_EQ(fixture.standard().value(u("parkedCustomStatusBar")), QVariant(u("%w W")));
    settings.setMenuBarSetting(1);
    EXPECT_EQ(fixture.suite().value(u("customStatusBar")), QVariant(u("%w W")));
    EXPECT_FALSE(fixture.standard().contains(u("statusBarString")));
}

TEST_F(BoundMenuBarSettingsTest, aTextWrittenElsewhereIsParkedToo)
{
    settings.setCustomStatusBar(u("%w W"));
    settings.setMenuBarSetting(0);
    EXPECT_EQ(settings.customStatusBar(), u("%p%"));
    EXPECT_EQ(fixture.standard().value(u("parkedCustomStatusBar")), QVariant(u("%w W")));
}

TEST_F(BoundMenuBarSettingsTest, noPaneReadsOrWritesTheMainApplicationsText)
{
    fixture.standard() = {{u("statusBarString"), u("theirs")}};
    settings.setMenuBarSetting(1);
    EXPECT_EQ(settings.customStatusBar(), u("%p%"));
    settings.setCustomStatusBar(u("%w W"));
    settings.setMenuBarSetting(0);
    EXPECT_EQ(fixture.standard().value(u("statusBarString")), QVariant(u("theirs")));
}

TEST_F(BoundMenuBarSettingsTest, theOwnTextComesBackOnlyAfterTheStandardTitle)
{
    fixture.standard() = {{u("parkedCustomStatusBar"), u("%w W")}};
    settings.setMenuBarSetting(1);
    EXPECT_EQ(settings.customStatusBar(), u("%w W"));
    settings.setCustomStatusBar(u("%p%")); // put back to the default elsewhere
    settings.setMenuBarSetting(1);
    EXPECT_EQ(settings.customStatusBar(), u("%p%"));
    settings.setMenuBarSetting(0);
    settings.setMenuBarSetting(1);
    EXPECT_EQ(settings.customStatusBar(), u("%w W"));
}

TEST_F(BoundMenuBarSettingsTest, theRowOfTheTextInForceIsShown)
{
    EXPECT_EQ(settings.shownMenuBarSetting(), 0);
    settings.setCustomStatusBar(u("%w W"));
    EXPECT_EQ(settings.shownMenuBarSetting(), 1);
    EXPECT_EQ(settings.menuBarSetting(), 0) << "nobody chose it in the window";
    EXPECT_TRUE(fixture.standard().isEmpty());
    settings.setCustomStatusBar(u("%p%"));
    EXPECT_EQ(settings.shownMenuBarSetting(), 0);
    settings.setMenuBarSetting(1);
    EXPECT_EQ(settings.shownMenuBarSetting(), 1) << "an own text that says the same as the standard title";
}

TEST_F(BoundMenuBarSettingsTest, temperatureOfTitleAndViewWritesBothKeys)
{
    settings.setTemperatureOfTitleAndView(2);
    EXPECT_EQ(fixture.suite().value(u("temperatureSettingIndex")), QVariant(qint64{2}));
    EXPECT_EQ(fixture.standard().value(u("QDBatteryTemperatureMode")), QVariant(qint64{2}));
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundMenuBarSettingsTest, temperatureOfTheTitleAloneLeavesTheView)
{
    settings.setTemperatureSettingIndex(1);
    EXPECT_TRUE(fixture.standard().isEmpty());
}

TEST_F(BoundMenuBarSettingsTest, presentationIsStoredAsAText)
{
    const QStringList stored{u(""), u("label"), u("wide"), u("icon")};
    for (int value = 0; value < stored.size(); ++value) {
        settings.setStatusItemPresentation(value);
        EXPECT_EQ(fixture.standard().value(u("statusItemPresentation")), QVariant(stored[value]));
        EXPECT_EQ(settings.statusItemPresentation(), value);
    }
    EXPECT_EQ(changes, 4);
}

TEST_F(BoundMenuBarSettingsTest, unknownPresentationIsThePanelsOwn)
{
    EXPECT_EQ(settings.statusItemPresentation(), 0);
    fixture.standard()[u("statusItemPresentation")] = u("huge");
    EXPECT_EQ(settings.statusItemPresentation(), 0);
    fixture.standard()[u("statusItemPresentation")] = qint64{2};
    EXPECT_EQ(settings.statusItemPresentation(), 0);
}

TEST_F(BoundMenuBarSettingsTest, uploadMarkIsOneOrZeroAndPermitsNothing)
{
    settings.setAutoUploadBatteryData(true);
    EXPECT_EQ(fixture.standard().value(u("autoUploadBatteryData")), QVariant(qint64{1}));
    settings.setAutoUploadBatteryData(false);
    EXPECT_EQ(fixture.standard().value(u("autoUploadBatteryData")), QVariant(qint64{0}));
    EXPECT_FALSE(settings.autoUpload());
    EXPECT_TRUE(fixture.suite().isEmpty());
}

} // namespace quindle
