#include "preferences/panes/HelperPreferences.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <gtest/gtest.h>

#include "preferences/panes/ParameterPopover.h"
#include "tests/preferences/MenuBarFixture.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "widgets/controls/BoundControls.h"
#include "widgets/controls/RadioMatrix.h"

namespace quindle {

namespace {

class HelperPreferencesTest : public testing::Test, protected test::MenuBarFixture
{
protected:
    bool isCustomTextEnabled()
    {
        const bool field = control("customMenuBarTextField").isEnabled();
        EXPECT_EQ(control("temperatureMatrix").isEnabled(), field);
        return field;
    }

    void storeRow(const QVariant& row) { standard()[latin("customMenuBarSettingSelectedIndex")] = row; }
};

using HelperPreferencesDeathTest = HelperPreferencesTest;

struct LoadCase
{
    const char* name;
    QVariant stored;
    bool enabled;
};

class LoadedWindow : public testing::TestWithParam<LoadCase>
{
};

} // namespace

TEST_P(LoadedWindow, enablesTheCustomTextForTheNumberOneOnly)
{
    test::MenuBarFixture fixture;
    if (GetParam().stored.isValid())
        fixture.standard()[latin("customMenuBarSettingSelectedIndex")] = GetParam().stored;
    EXPECT_EQ(fixture.control("customMenuBarTextField").isEnabled(), GetParam().enabled);
    EXPECT_EQ(fixture.control("temperatureMatrix").isEnabled(), GetParam().enabled);
    EXPECT_EQ(fixture.control<RadioMatrix>("menuBarSettingGroup").selectedTag(), GetParam().enabled ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Stored, LoadedWindow,
                         testing::Values(LoadCase{"absent", {}, false}, LoadCase{"zero", qint64{0}, false},
                                         LoadCase{"one", qint64{1}, true}, LoadCase{"two", qint64{2}, false},
                                         LoadCase{"text", QStringLiteral("1"), false}),
                         [](const testing::TestParamInfo<LoadCase>& c) { return std::string(c.param.name); });

TEST_F(HelperPreferencesTest, makesItsWindowWhenItIsFirstNeeded)
{
    EXPECT_EQ(helper->outlets().parameterPopover, nullptr);
    helper->window();
    EXPECT_NE(helper->outlets().parameterPopover, nullptr);
    EXPECT_TRUE(helper->window().isMovableByWindowBackground());
    EXPECT_TRUE(title.calls.isEmpty());
}

TEST_F(HelperPreferencesTest, takesTheDelegateByEitherInitialiser)
{
    EXPECT_EQ(&helper->delegate(), &title);
    EXPECT_EQ(&HelperPreferences::initWithCoder(settings, title)->delegate(), &title);
}

TEST_F(HelperPreferencesTest, puttingItsInterfaceIntoAGivenWindow)
{
    auto given = std::make_unique<HelperPreferencesWindow>();
    const HelperPreferencesWindow* window = given.get();
    const auto other = HelperPreferences::initWithWindow(std::move(given), settings, title);
    EXPECT_EQ(&other->window(), window);
    EXPECT_NE(window->findChild<QPushButton*>(latin("closeButton")), nullptr);
}

TEST_F(HelperPreferencesTest, worksWhenStoredInAnInterface)
{
    const auto coded = HelperPreferences::initWithCoder(settings, title);
    coded->showWindow();
    EXPECT_TRUE(coded->window().isVisible());
}

TEST_F(HelperPreferencesTest, anyRowButTheFirstEnablesTheCustomText)
{
    helper->window();
    RadioMatrix sender;
    sender.setCells({latin("a"), latin("b"), latin("c")});
    const std::vector<std::pair<int, bool>> rows{{1, true}, {0, false}, {2, true}, {-1, true}};
    for (const auto& [row, enabled] : rows) {
        title.calls.clear();
        sender.setSelectedTag(row);
        helper->setMenuBarSetting(&sender);
        EXPECT_EQ(isCustomTextEnabled(), enabled) << row;
        EXPECT_EQ(title.calls, QStringList(latin("title"))) << row;
    }
    EXPECT_TRUE(standard().isEmpty());
    EXPECT_TRUE(suite().isEmpty());
}

TEST_F(HelperPreferencesTest, threeActionsUpdateTheTitleAndStoreNothing)
{
    RadioMatrix matrix;
    QCheckBox box;
    QLineEdit field(latin("%w"));
    helper->setTemperature(&matrix);
    EXPECT_EQ(title.calls.size(), 1);
    helper->showIconsInMenuBarClicked(&box);
    EXPECT_EQ(title.calls.size(), 2);
    helper->changeMenuBarTemplate(&field);
    EXPECT_EQ(title.calls, QStringList(3, latin("title")));
    EXPECT_TRUE(standard().isEmpty());
    EXPECT_TRUE(suite().isEmpty());
}

TEST_F(HelperPreferencesTest, uploadMarkIsOneOrZeroInTheOwnSettingsOnly)
{
    auto& box = control<QCheckBox>("autoSaveBox");
    box.click();
    EXPECT_EQ(standard().value(latin("autoUploadBatteryData")), QVariant(qint64{1}));
    box.click();
    EXPECT_EQ(standard().value(latin("autoUploadBatteryData")), QVariant(qint64{0}));
    EXPECT_TRUE(suite().isEmpty());
    EXPECT_FALSE(settings.autoUpload());
    EXPECT_TRUE(title.calls.isEmpty());
}

TEST_F(HelperPreferencesTest, runInBackgroundSwitchesTheLoginItemByItsIdentifier)
{
    auto& box = control<QCheckBox>("runInBackgroundBox");
    box.click();
    box.click();
    const QString identifier = latin("com.fernhollow.Quindle-Helper");
    EXPECT_EQ(loginItems.switches, (QStringList{identifier + latin(" on"), identifier + latin(" off")}));
    EXPECT_TRUE(loginItems.urls.isEmpty());
    EXPECT_TRUE(standard().isEmpty());
    EXPECT_TRUE(suite().isEmpty());
    EXPECT_TRUE(title.calls.isEmpty());
}

TEST_F(HelperPreferencesTest, announcesNothingToOtherProcesses)
{
    storeRow(qint64{1});
    helper->showWindow();
    for (auto* button : helper->window().findChildren<QAbstractButton*>())
        if (button->objectName() != latin("closeButton"))
            button->click();
    control<BoundLineEdit>("customMenuBarTextField").commit();
    EXPECT_FALSE(standard().isEmpty());
    EXPECT_TRUE(computer.distributedNotificationCenter.posted.isEmpty());
}

TEST_F(HelperPreferencesTest, aMinimizedWindowComesBack)
{
    helper->showWindow();
    helper->window().showMinimized();
    QApplication::processEvents();
    ASSERT_TRUE(helper->window().isMinimized());
    helper->showWindow();
    EXPECT_FALSE(helper->window().isMinimized());
    EXPECT_TRUE(helper->window().isVisible());
}

TEST_F(HelperPreferencesTest, closes)
{
    helper->showWindow();
    control<QPushButton>("closeButton").click();
    EXPECT_FALSE(helper->window().isVisible());
    helper->showWindow();
    EXPECT_TRUE(helper->window().isVisible());
}

TEST_F(HelperPreferencesTest, popoverOpensAtTheEndOfItsButton)
{
    storeRow(qint64{1});
    helper->showWindow();
    helper->window().move(0, 0); // room for it on the right
    auto& button = control<QPushButton>("parametersButton");
    button.click();
    const ParameterPopover& popover = *helper->outlets().parameterPopover;
    ASSERT_TRUE(popover.isVisible());
    EXPECT_GE(popover.pos().x(), button.mapToGlobal(button.rect().topRight()).x());
}

TEST_F(HelperPreferencesTest, tabGoesThroughTheControlsAsTheyStand)
{
    storeRow(qint64{1});
    helper->showWindow();
    QStringList visited;
    QWidget* const first = &cell("menuBarSettingGroup", 1);
    QWidget* next = first;
    do {
        if (next->isVisible() && (next->focusPolicy() & Qt::TabFocus) != 0)
            visited.append(next->accessibleName().isEmpty() ? static_cast<QAbstractButton*>(next)->text()
                                                            : next->accessibleName());
        next = next->nextInFocusChain();
    } while (next != first);
    EXPECT_EQ(visited,
              (QStringList{latin("C&ustom text"), latin("Custom menu bar text"), latin("Parameters"),
                           latin("&Celsius"), latin("&Fahrenheit"), latin("&Kelvin"),
                           latin("Show battery icon"), latin("Mark battery data for automatic upload"),
                           latin("Run in the background when I log in"), latin("Close"),
                           latin("&Standard title")}));
}

TEST_F(HelperPreferencesTest, noMnemonicTwiceAndEveryControlHasAName)
{
    QString mnemonics;
    for (const auto* button : helper->window().findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(button->text().isEmpty()) << button->objectName().toStdString();
        const QString text = button->text();
        ASSERT_TRUE(text.contains(u'&')) << text.toStdString();
        const QChar mnemonic = text.at(text.indexOf(u'&') + 1).toLower();
        EXPECT_FALSE(mnemonics.contains(mnemonic)) << text.toStdString();
        mnemonics.append(mnemonic);
    }
    EXPECT_EQ(mnemonics.size(), 10);
    for (const char* name : {"customMenuBarTextField", "temperatureMatrix", "menuBarSettingGroup"})
        EXPECT_FALSE(control(name).accessibleName().isEmpty()) << name;
}

TEST_F(HelperPreferencesTest, loginItemsAreLookedAtWheneverItIsShown)
{
    helper->showWindow();
    EXPECT_FALSE(control<QCheckBox>("runInBackgroundBox").isChecked());
    helper->window().close();
    loginItems.urls = {latin("file://") + computer.bundle.bundlePath};
    helper->showWindow();
    EXPECT_TRUE(control<QCheckBox>("runInBackgroundBox").isChecked());
    EXPECT_TRUE(loginItems.switches.isEmpty());
}

TEST_F(HelperPreferencesTest, refreshOfAWindowNeverMadeMakesNone)
{
    helper->refresh();
    EXPECT_EQ(helper->outlets().parameterPopover, nullptr);
}

TEST_F(HelperPreferencesTest, otherActionsNeedNoOutlets)
{
    helper->window();
    helper->outlets() = {};
    helper->setTemperature(nullptr);
    helper->showIconsInMenuBarClicked(nullptr);
    helper->changeMenuBarTemplate(nullptr);
    helper->changeAutoSave(&control<QCheckBox>("autoSaveBox"));
    helper->setRunInBackground(&control<QCheckBox>("runInBackgroundBox"));
    helper->refresh();
    helper->closeWindow(nullptr);
    EXPECT_EQ(title.calls.size(), 3);
}

TEST_F(HelperPreferencesDeathTest, actionsNeedTheirOutlets)
{
    helper->window();
    RadioMatrix sender;
    helper->outlets().parameterPopover = nullptr;
    EXPECT_DEATH(helper->showParameterPopover(&sender), "no outlet parameterPopover");
    helper->outlets().temperatureMatrix = nullptr;
    EXPECT_DEATH(helper->setMenuBarSetting(&sender), "no outlet temperatureMatrix");
    EXPECT_DEATH(helper->windowDidLoad(), "no outlet temperatureMatrix");
    helper->outlets().customMenuBarTextField = nullptr;
    EXPECT_DEATH(helper->setMenuBarSetting(&sender), "no outlet customMenuBarTextField");
}

TEST_F(HelperPreferencesDeathTest, outletsAreNotKeptAlive)
{
    helper->window();
    delete helper->outlets().temperatureMatrix;
    RadioMatrix sender;
    EXPECT_DEATH(helper->setMenuBarSetting(&sender), "no outlet temperatureMatrix");
}

} // namespace quindle
