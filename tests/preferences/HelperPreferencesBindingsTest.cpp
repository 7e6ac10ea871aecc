#include "preferences/panes/HelperPreferencesBindings.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

#include "preferences/panes/ParameterPopover.h"
#include "tests/preferences/Input.h"
#include "tests/preferences/MenuBarFixture.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "widgets/controls/BoundControls.h"
#include "widgets/controls/RadioMatrix.h"

namespace quindle {

namespace {

class HelperPreferencesBindingsTest : public testing::Test, protected test::MenuBarFixture
{
protected:
    BoundLineEdit& field() { return control<BoundLineEdit>("customMenuBarTextField"); }

    void showCustomText()
    {
        settings.setMenuBarSetting(1);
        helper->showWindow();
        QCoreApplication::processEvents();
    }

    void type(const char* text)
    {
        field().setFocus();
        field().selectAll();
        field().insert(latin(text));
    }

    QString shownTitle() { return control<QLabel>("shownTitle").text(); }
};

} // namespace

TEST_F(HelperPreferencesBindingsTest, everyKeyPathResolves)
{
    const SettingsBinder binder(helper->window(), settings);
    EXPECT_EQ(binder.unresolved(), QStringList());
    EXPECT_EQ(binder.paths(), (QStringList{latin("autoUploadBatteryData"), latin("customStatusBar"),
                                           latin("shownMenuBarSetting"), latin("showsIconsInMenuBar"),
                                           latin("startsAtLogin"), latin("temperatureSettingIndex")}));
}

TEST_F(HelperPreferencesBindingsTest, showsWhatIsStored)
{
    suite() = {{latin("customStatusBar"), latin("%w W")},
               {latin("temperatureSettingIndex"), qint64{2}},
               {latin("showIconsInMenuBar"), qint64{1}}};
    standard() = {{latin("customMenuBarSettingSelectedIndex"), qint64{1}},
                  {latin("autoUploadBatteryData"), qint64{1}}};
    EXPECT_EQ(field().text(), latin("%w W"));
    EXPECT_EQ(control<RadioMatrix>("temperatureMatrix").selectedTag(), 2);
    EXPECT_TRUE(control<QCheckBox>("showIconsBox").isChecked());
    EXPECT_TRUE(control<QCheckBox>("autoSaveBox").isChecked());
    EXPECT_EQ(control<RadioMatrix>("menuBarSettingGroup").selectedTag(), 1);
    EXPECT_EQ(shownTitle(), latin("-12.4 W"));
}

TEST_F(HelperPreferencesBindingsTest, showingStoresAndAsksForNothing)
{
    computer.userDefaults.standardDefaults.writes.clear();
    helper->showWindow();
    settings.reload();
    helper->window().close();
    EXPECT_TRUE(computer.userDefaults.standardDefaults.writes.isEmpty());
    EXPECT_TRUE(computer.userDefaults.suiteDefaults.writes.isEmpty());
    EXPECT_TRUE(title.calls.isEmpty());
}

TEST_F(HelperPreferencesBindingsTest, unknownUnitSelectsNoCell)
{
    suite()[latin("temperatureSettingIndex")] = qint64{7};
    const auto& matrix = control<RadioMatrix>("temperatureMatrix");
    EXPECT_EQ(matrix.selectedTag(), -1);
    settings.setTemperatureSettingIndex(1);
    EXPECT_EQ(matrix.selectedTag(), 1);
    settings.setTemperatureSettingIndex(7);
    EXPECT_EQ(matrix.selectedTag(), -1);
}

TEST_F(HelperPreferencesBindingsTest, temperatureGroupHasACellForEachUnit)
{
    EXPECT_EQ(control<RadioMatrix>("temperatureMatrix").cells().size(), 3);
    showCustomText();
    for (const int unit : {1, 2, 0}) {
        title.calls.clear();
        cell("temperatureMatrix", unit).click();
        EXPECT_EQ(title.calls, (QStringList{latin("battery"), latin("title")}));
        EXPECT_EQ(title.suiteThen.value(latin("temperatureSettingIndex")), QVariant(qint64{unit}));
        EXPECT_EQ(title.standardThen.value(latin("QDBatteryTemperatureMode")), QVariant(qint64{unit}));
    }
}

TEST_F(HelperPreferencesBindingsTest, rowIsStoredBeforeTheTitleIsUpdated)
{
    helper->showWindow();
    cell("menuBarSettingGroup", 1).click();
    EXPECT_EQ(title.standardThen.value(latin("customMenuBarSettingSelectedIndex")), QVariant(qint64{1}));
    EXPECT_TRUE(field().isEnabled());
    EXPECT_TRUE(control("temperatureMatrix").isEnabled());
    EXPECT_TRUE(control("parametersButton").isEnabled());
    cell("menuBarSettingGroup", 0).click();
    EXPECT_EQ(title.standardThen.value(latin("customMenuBarSettingSelectedIndex")), QVariant(qint64{0}));
    EXPECT_FALSE(field().isEnabled());
    EXPECT_FALSE(control("temperatureMatrix").isEnabled());
    EXPECT_FALSE(control("parametersButton").isEnabled());
    EXPECT_EQ(title.calls, QStringList(2, latin("title")));
}

TEST_F(HelperPreferencesBindingsTest, standardTitleIsShownAndTheOwnTextComesBack)
{
    showCustomText();
    settings.setCustomStatusBar(latin("%w W"));
    cell("menuBarSettingGroup", 0).click();
    EXPECT_EQ(title.suiteThen.value(latin("customStatusBar")), QVariant(latin("%p%")));
    EXPECT_EQ(shownTitle(), latin("66.7%"));
    cell("menuBarSettingGroup", 1).click();
    EXPECT_EQ(title.suiteThen.value(latin("customStatusBar")), QVariant(latin("%w W")));
    EXPECT_EQ(field().text(), latin("%w W"));
}

TEST_F(HelperPreferencesBindingsTest, choosingTheSelectedRowRunsItsAction)
{
    helper->showWindow();
    cell("menuBarSettingGroup", 0).click();
    EXPECT_EQ(title.calls, QStringList(latin("title")));
    EXPECT_EQ(standard().value(latin("customMenuBarSettingSelectedIndex")), QVariant(qint64{0}));
    cell("menuBarSettingGroup", 1).click();
    cell("menuBarSettingGroup", 1).click();
    EXPECT_EQ(title.calls, QStringList(3, latin("title")));
    title.calls.clear();
    cell("temperatureMatrix", 0).click();
    EXPECT_EQ(title.calls, (QStringList{latin("battery"), latin("title")}));
}

TEST_F(HelperPreferencesBindingsTest, aTextInForceIsShownAsSelectedAndStoresNothing)
{
    suite()[latin("customStatusBar")] = latin("%w W");
    helper->showWindow();
    EXPECT_EQ(control<RadioMatrix>("menuBarSettingGroup").selectedTag(), 1);
    EXPECT_FALSE(field().isEnabled()) << "it was not chosen here";
    suite()[latin("customStatusBar")] = latin("%p%");
    settings.reload();
    EXPECT_EQ(control<RadioMatrix>("menuBarSettingGroup").selectedTag(), 0);
    suite()[latin("customStatusBar")] = latin("%w W");
    settings.reload();
    EXPECT_EQ(control<RadioMatrix>("menuBarSettingGroup").selectedTag(), 1);
    EXPECT_TRUE(standard().isEmpty());
    EXPECT_TRUE(title.calls.isEmpty());
    cell("menuBarSettingGroup", 1).click();
    EXPECT_EQ(standard().value(latin("customMenuBarSettingSelectedIndex")), QVariant(qint64{1}));
    EXPECT_TRUE(field().isEnabled());
    EXPECT_EQ(field().text(), latin("%w W"));
}

TEST_F(HelperPreferencesBindingsTest, theMainApplicationsTextIsLeftAlone)
{
    standard() = {{latin("statusBarString"), latin("theirs")}};
    suite()[latin("customStatusBar")] = latin("%w W");
    showCustomText();
    cell("menuBarSettingGroup", 0).click();
    EXPECT_EQ(standard().value(latin("statusBarString")), QVariant(latin("theirs")));
    cell("menuBarSettingGroup", 1).click();
    EXPECT_EQ(field().text(), latin("%w W"));
    EXPECT_EQ(standard().value(latin("statusBarString")), QVariant(latin("theirs")));
}

TEST_F(HelperPreferencesBindingsTest, enterStoresTheTextAndUpdatesTheTitleOnce)
{
    showCustomText();
    type("%l");
    EXPECT_EQ(shownTitle(), latin("293"));
    EXPECT_TRUE(title.calls.isEmpty());
    test::pressKey(field(), Qt::Key_Return);
    EXPECT_EQ(title.calls, QStringList(latin("title")));
    EXPECT_EQ(title.suiteThen.value(latin("customStatusBar")), QVariant(latin("%l")));
    control("closeButton").setFocus();
    EXPECT_EQ(title.calls.size(), 1);
}

TEST_F(HelperPreferencesBindingsTest, leavingTheFieldStoresTheText)
{
    showCustomText();
    type("%l");
    control("closeButton").setFocus();
    EXPECT_EQ(title.calls, QStringList(latin("title")));
    EXPECT_EQ(suite().value(latin("customStatusBar")), QVariant(latin("%l")));
}

TEST_F(HelperPreferencesBindingsTest, closingStoresTheText)
{
    showCustomText();
    type("%l");
    helper->window().close();
    EXPECT_EQ(suite().value(latin("customStatusBar")), QVariant(latin("%l")));
    EXPECT_EQ(title.calls, QStringList(latin("title")));
}

TEST_F(HelperPreferencesBindingsTest, escapeTakesTheTextBackAndThenCloses)
{
    showCustomText();
    const QString before = field().text();
    type("%l");
    test::pressKey(field(), Qt::Key_Escape);
    EXPECT_TRUE(helper->window().isVisible());
    EXPECT_EQ(field().text(), before);
    test::pressKey(field(), Qt::Key_Escape);
    EXPECT_FALSE(helper->window().isVisible());
    EXPECT_TRUE(title.calls.isEmpty());
}

TEST_F(HelperPreferencesBindingsTest, textBeingEditedIsNotOverwritten)
{
    showCustomText();
    type("%r and");
    settings.setCustomStatusBar(latin("%w"));
    EXPECT_EQ(field().text(), latin("%r and"));
    control("closeButton").setFocus();
    EXPECT_EQ(suite().value(latin("customStatusBar")), QVariant(latin("%r and")));
}

TEST_F(HelperPreferencesBindingsTest, choosingTheStandardTitleKeepsTheTextThatWasBeingTyped)
{
    showCustomText();
    type("%l cycles");
    cell("menuBarSettingGroup", 0).setFocus(Qt::MouseFocusReason);
    cell("menuBarSettingGroup", 0).click();
    EXPECT_EQ(standard().value(latin("parkedCustomStatusBar")), QVariant(latin("%l cycles")));
    EXPECT_EQ(suite().value(latin("customStatusBar")), QVariant(latin("%p%")));
    EXPECT_EQ(field().text(), latin("%p%"));
}

TEST_F(HelperPreferencesBindingsTest, iconBoxStoresOneOrZeroBeforeTheTitleIsUpdated)
{
    auto& box = control<QCheckBox>("showIconsBox");
    box.click();
    EXPECT_EQ(title.suiteThen.value(latin("showIconsInMenuBar")), QVariant(qint64{1}));
    box.click();
    EXPECT_EQ(title.suiteThen.value(latin("showIconsInMenuBar")), QVariant(qint64{0}));
    EXPECT_EQ(title.calls, QStringList(2, latin("title")));
}

TEST_F(HelperPreferencesBindingsTest, changesMadeElsewhereShowAtOnce)
{
    helper->showWindow();
    settings.setMenuBarSetting(1);
    settings.setCustomStatusBar(latin("%mA mA"));
    settings.setShowsIconsInMenuBar(true);
    settings.setAutoUploadBatteryData(true);
    settings.setStartsAtLogin(true);
    settings.setTemperatureSettingIndex(1);
    EXPECT_EQ(control<RadioMatrix>("menuBarSettingGroup").selectedTag(), 1);
    EXPECT_TRUE(field().isEnabled());
    EXPECT_TRUE(control("temperatureMatrix").isEnabled());
    EXPECT_EQ(field().text(), latin("%mA mA"));
    EXPECT_EQ(shownTitle(), latin("-1043 mA"));
    EXPECT_TRUE(control<QCheckBox>("showIconsBox").isChecked());
    EXPECT_TRUE(control<QCheckBox>("autoSaveBox").isChecked());
    EXPECT_TRUE(control<QCheckBox>("runInBackgroundBox").isChecked());
    EXPECT_EQ(control<RadioMatrix>("temperatureMatrix").selectedTag(), 1);
    EXPECT_TRUE(title.calls.isEmpty());
}

TEST_F(HelperPreferencesBindingsTest, insertedPlaceholderIsStoredAtOnce)
{
    showCustomText();
    field().setCursorPosition(0);
    field().insert(latin("%r "));
    Q_EMIT helper->outlets().parameterPopover->inserted();
    EXPECT_EQ(title.suiteThen.value(latin("customStatusBar")), QVariant(latin("%r %p%")));
}

TEST_F(HelperPreferencesBindingsTest, previewFollowsTheBattery)
{
    helper->showWindow();
    title.values->stateOfCharge = 12;
    helper->refresh();
    EXPECT_EQ(shownTitle(), latin("12.0%"));
}

} // namespace quindle
