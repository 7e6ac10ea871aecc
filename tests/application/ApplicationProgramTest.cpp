#include "application/ApplicationProgram.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "application/pages/DetailsPage.h"
#include "platform/recorded/MachineFile.h"
#include "settings/ApplicationPreferences.h"
#include "tests/preferences/Input.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "view/FactRow.h"
#include "widgets/PlainLabel.h"
#include "widgets/controls/BoundControls.h"

using namespace quindle;

namespace {

struct ApplicationProgramTest : testing::Test
{
    ApplicationProgramTest()
    {
        computer.setComputer(latin("MacBookAir6,2"), latin("C02MN1TXF5YW"));
        setCharge(66);
        computer.bundle.bundlePath = latin("/usr/lib/Quindle Helper/Quindle.app");
        helperBundle.bundlePath =
            computer.bundle.bundlePath + latin("/Contents/Resources/Quindle-Helper.app");
    }

    void setCharge(qint64 charge)
    {
        computer.battery() = {
            {latin("CurrentCapacity"), charge},     {latin("MaxCapacity"), qint64{100}},
            {latin("DesignCapacity"), qint64{110}}, {latin("CycleCount"), qint64{42}},
            {latin("Temperature"), qint64{3031}},   {latin("IsCharging"), false},
            {latin("ExternalConnected"), false},    {latin("BatterySerialNumber"), latin("D86SECRET")}};
    }

    ApplicationProgram& program()
    {
        if (!made) {
            preferences = std::make_unique<ApplicationPreferences>(computer.platform);
            made = std::make_unique<ApplicationProgram>(computer.platform, *preferences, helperBundle, true,
                                                        extras);
            made->present();
            QApplication::processEvents();
        }
        return *made;
    }

    void show(const char* page)
    {
        program().window().showPage(latin(page));
        QApplication::processEvents();
    }

    /// Every line of facts and every label that is seen, as a person reads them.
    QStringList seen()
    {
        QStringList texts;
        for (const QLabel* label : program().window().findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                texts.append(label->text());
        return texts;
    }

    template <typename Control>
    Control* control(const char* accessibleName)
    {
        for (Control* candidate : program().window().findChildren<Control*>())
            if (candidate->accessibleName() == latin(accessibleName) ||
                candidate->property("text").toString().remove(u'&') == latin(accessibleName))
                return candidate;
        return nullptr;
    }

    FakePlatform computer;
    FakeBundle helperBundle;
    ApplicationExtras extras;
    std::unique_ptr<ApplicationPreferences> preferences;
    std::unique_ptr<ApplicationProgram> made;
};

TEST_F(ApplicationProgramTest, TheBatteryIsShownAndFollowed)
{
    show("Battery");
    EXPECT_TRUE(seen().contains(latin("66.0"))) << seen().join(u'\n').toStdString();
    EXPECT_TRUE(seen().contains(latin("42 cycles"))) << seen().join(u'\n').toStdString();
    EXPECT_TRUE(seen().filter(latin("66.0 %")).size() == 1) << "in the sidebar";
    setCharge(65);
    computer.runLoop.advance(10);
    EXPECT_TRUE(seen().contains(latin("65.0"))) << seen().join(u'\n').toStdString();
    setCharge(64);
    computer.powerEvents.observer();
    EXPECT_TRUE(seen().contains(latin("64.0"))) << "without waiting for a timer";
}

TEST_F(ApplicationProgramTest, AClickIsAnnouncedToTheHelper)
{
    show("Battery");
    computer.distributedNotificationCenter.posted.clear();
    for (FactRow* row : program().window().findChildren<FactRow*>())
        if (row->fact().click == FactClick::Temperature)
            Q_EMIT row->clicked(FactClick::Temperature);
    EXPECT_EQ(computer.userDefaults.standardDefaults.values.value(latin("QDBatteryTemperatureMode")),
              QVariant(qint64{1}));
    EXPECT_EQ(computer.distributedNotificationCenter.posted,
              QStringList{latin("SettingsChangedNotification")});
}

TEST_F(ApplicationProgramTest, LeavesTheHelpersCopiesOfSettingsAlone)
{
    computer.userDefaults.suiteDefaults.values = {{latin("runInBackground"), true}};
    program();
    EXPECT_FALSE(computer.userDefaults.standardDefaults.values.contains(latin("runInBackground")));
}

TEST_F(ApplicationProgramTest, TimersAreOnTimeWhileTheWindowIsSeen)
{
    program();
    EXPECT_TRUE(computer.runLoop.isPunctual());
    program().window().close();
    EXPECT_FALSE(computer.runLoop.isPunctual());
}

TEST_F(ApplicationProgramTest, ABatteryThatComesLaterIsShown)
{
    computer.registry.entries.erase(latin("AppleSmartBattery"));
    computer.registry.tellsWhetherMatched = true;
    show("Battery");
    EXPECT_TRUE(seen().contains(latin("No battery")));
    setCharge(50);
    computer.runLoop.advance(10);
    EXPECT_TRUE(seen().contains(latin("50.0"))) << seen().join(u'\n').toStdString();
}

TEST_F(ApplicationProgramTest, EachOfSeveralBatteriesIsShownByItself)
{
    for (const char* name : {"45N1113", "45N1127"})
        computer.powerSources.sources->push_back(QVariantMap{{latin("Type"), latin("InternalBattery")},
                                                             {latin("Name"), latin(name)},
                                                             {latin("Current Capacity"), qint64{40}},
                                                             {latin("Max Capacity"), qint64{100}}});
    show("Battery");
    EXPECT_TRUE(seen().contains(latin("Batteries"))) << seen().join(u'\n').toStdString();
    EXPECT_TRUE(seen().contains(latin("45N1127"))) << seen().join(u'\n').toStdString();
    EXPECT_EQ(seen().count(latin("40 %")), 2);
}

TEST_F(ApplicationProgramTest, DevicesAreShown)
{
    computer.powerSources.devices = {{latin("Mouse"), 80, std::nullopt}};
    show("Battery");
    EXPECT_TRUE(seen().contains(latin("Mouse"))) << seen().join(u'\n').toStdString();
    EXPECT_TRUE(seen().contains(latin("80 %")));
}

TEST_F(ApplicationProgramTest, DetailsAreFoundAndCopied)
{
    show("Details");
    auto* search = control<QLineEdit>("Search details");
    ASSERT_TRUE(search);
    const auto* rows = program().window().findChild<QTreeWidget*>();
    EXPECT_EQ(rows->topLevelItemCount(), 2);
    search->setText(latin("cycle"));
    ASSERT_EQ(rows->topLevelItemCount(), 1);
    ASSERT_EQ(rows->topLevelItem(0)->childCount(), 1);
    EXPECT_EQ(rows->topLevelItem(0)->child(0)->text(1), latin("42"));
    control<QPushButton>("Copy as Text")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), latin("Registry: AppleSmartBattery\nCycleCount: 42\n"));
    search->setText(latin("nothing of this kind"));
    EXPECT_TRUE(seen().contains(latin("Nothing found")));
}

TEST_F(ApplicationProgramTest, DetailsFollowTheBattery)
{
    show("Details");
    control<QLineEdit>("Search details")->setText(latin("CurrentCapacity"));
    const auto* rows = program().window().findChild<QTreeWidget*>();
    const auto* item = rows->topLevelItem(0)->child(0);
    EXPECT_EQ(item->text(1), latin("66"));
    setCharge(65);
    computer.runLoop.advance(10);
    EXPECT_EQ(rows->topLevelItem(0)->child(0), item) << "the row stays, and what is selected with it";
    EXPECT_EQ(item->text(1), latin("65"));
}

TEST_F(ApplicationProgramTest, AMachineFileHasSerialNumbersOnlyWhereTheyAreAskedFor)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(latin("machine.plist"));
    show("Details");
    auto* page = program().window().findChild<DetailsPage*>();
    const auto saved = [&] {
        page->saveTo(path);
        const MachineResult result = readMachineFile(path);
        return std::holds_alternative<Machine>(result) ? std::get<Machine>(result).keys : QVariantMap();
    };
    const auto serialOf = [](const QVariantMap& keys) {
        return keys.value(latin("Registry"))
            .toMap()
            .value(latin("AppleSmartBattery"))
            .toMap()
            .value(latin("BatterySerialNumber"));
    };
    const QVariantMap without = saved();
    EXPECT_TRUE(seen().contains(latin("Saved"))) << seen().join(u'\n').toStdString();
    EXPECT_TRUE(serialOf(without).isValid());
    EXPECT_NE(serialOf(without), QVariant(latin("D86SECRET")));
    EXPECT_EQ(without.value(latin("Bundle")).toMap().value(latin("Path")), helperBundle.bundlePath);
    control<QCheckBox>("With serial numbers")->setChecked(true);
    EXPECT_EQ(serialOf(saved()), QVariant(latin("D86SECRET")));
}

TEST_F(ApplicationProgramTest, AMachineFileOfAMacHoldsItsRegistryAsItIsWithoutTheSerialNumber)
{
    FakeRegistry asItIs;
    asItIs.entries[latin("AppleSmartBattery")] = {{latin("CurrentCapacity"), qint64{78}},
                                                  {latin("Serial"), latin("F8YSECRET")}};
    extras.registryAsItIs = &asItIs;
    const QTemporaryDir folder;
    const QString path = folder.filePath(latin("machine.plist"));
    show("Details");
    program().window().findChild<DetailsPage*>()->saveTo(path);
    const MachineResult result = readMachineFile(path);
    ASSERT_TRUE(std::holds_alternative<Machine>(result));
    const QVariantMap registry = std::get<Machine>(result).keys.value(latin("Registry")).toMap();
    const QVariantMap battery = registry.value(latin("AppleSmartBattery")).toMap();
    EXPECT_EQ(battery.value(latin("CurrentCapacity")), QVariant(qint64{78}));
    EXPECT_EQ(battery.value(latin("Serial")).toString().size(), 9);
    EXPECT_NE(battery.value(latin("Serial")), QVariant(latin("F8YSECRET")));
}

TEST_F(ApplicationProgramTest, AFileThatCannotBeWrittenIsNamed)
{
    show("Details");
    program().window().findChild<DetailsPage*>()->saveTo(latin("/proc/no-such-folder/machine.plist"));
    EXPECT_EQ(seen().filter(latin("/proc/no-such-folder/machine.plist: ")).size(), 1)
        << seen().join(u'\n').toStdString();
}

TEST_F(ApplicationProgramTest, SettingsAreTheHelpersAndAnnounced)
{
    show("Settings");
    auto* icon = control<QCheckBox>("Show battery icon");
    ASSERT_TRUE(icon);
    icon->click();
    EXPECT_EQ(computer.userDefaults.suiteDefaults.values.value(latin("showIconsInMenuBar")),
              QVariant(qint64{1}));
    EXPECT_EQ(computer.distributedNotificationCenter.posted,
              QStringList{latin("SettingsChangedNotification")});
}

TEST_F(ApplicationProgramTest, StartAtLoginIsSwitchedHereAndNotInTheHelper)
{
    show("Settings");
    auto* login = control<BoundCheckBox>("Start when I log in");
    ASSERT_TRUE(login);
    EXPECT_TRUE(login->isEnabled());
    EXPECT_FALSE(login->isChecked());
    login->click();
    EXPECT_EQ(computer.loginItems.enabled.at(latin("com.fernhollow.Quindle-Helper")), true);
    EXPECT_TRUE(seen().filter(latin("can only be disabled")).isEmpty());
}

TEST_F(ApplicationProgramTest, EveryPageFitsIntoTheSmallestWindow)
{
    program().window().resize(640, 420);
    for (const char* page : {"Battery", "History", "Snapshots", "Details", "Settings"}) {
        show(page);
        EXPECT_EQ(program().window().size(), QSize(640, 420)) << page;
        for (const QScrollArea* area : program().window().findChildren<QScrollArea*>()) {
            if (area->isVisible()) {
                EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width()) << page;
            }
        }
    }
}

TEST_F(ApplicationProgramTest, InALargeFontNothingIsOutOfReach)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPixelSize(16); // the screen of the tests has room for 800 pixels
    QApplication::setFont(large);
    program().window().resize(640, 420);
    for (const char* page : {"Battery", "History", "Snapshots", "Details", "Settings"}) {
        show(page);
        for (const QScrollArea* area : program().window().findChildren<QScrollArea*>()) {
            const bool isWider = area->widget()->width() > area->viewport()->width();
            EXPECT_TRUE(!area->isVisible() || !isWider || area->horizontalScrollBar()->isVisible()) << page;
        }
        for (const QPushButton* button : program().window().findChildren<QPushButton*>()) {
            const bool isWhole = button->width() >= button->minimumSizeHint().width();
            EXPECT_TRUE(!button->isVisible() || isWhole) << page << button->text().toStdString();
        }
    }
    QApplication::setFont(before);
}

TEST_F(ApplicationProgramTest, WarningsAndHistoryThatOthersSwitchShowAtOnce)
{
    show("Settings");
    QVariantMap& stored = computer.userDefaults.standardDefaults.values;
    stored.insert(latin("recordHistory"), false);
    stored.insert(latin("warnLowPercent"), qint64{44});
    computer.distributedNotificationCenter.post(latin("SettingsChangedNotification"));
    EXPECT_FALSE(control<BoundCheckBox>("Record charge, power and a daily snapshot")->isChecked());
    EXPECT_EQ(control<QSpinBox>("Percentage for battery low")->value(), 44);
}

TEST_F(ApplicationProgramTest, EscapeClearsTheSearchBeforeItCloses)
{
    show("Details");
    auto* search = control<QLineEdit>("Search details");
    ASSERT_TRUE(search);
    search->setFocus();
    search->setText(latin("cyc"));
    test::pressKey(*search, Qt::Key_Escape);
    EXPECT_EQ(search->text(), QString());
    EXPECT_TRUE(program().window().isVisible());
    test::pressKey(*search, Qt::Key_Escape);
    EXPECT_FALSE(program().window().isVisible());
}

TEST_F(ApplicationProgramTest, SettingsShowTheLoginItemOfTheHelper)
{
    computer.loginItems.urls = {
        latin("file:///usr/lib/Quindle%20Helper/Quindle.app/Contents/Resources/Quindle-Helper.app/")};
    show("Settings");
    EXPECT_TRUE(control<BoundCheckBox>("Start when I log in")->isChecked());
}

TEST_F(ApplicationProgramTest, FieldsOfTheSettingsDoNotGrowWithALargeScreen)
{
    program().window().resize(1800, 900);
    show("Settings");
    const auto* text = control<QLineEdit>("Menu bar text");
    ASSERT_TRUE(text);
    EXPECT_LT(text->width(), 46 * text->fontMetrics().height());
}

TEST_F(ApplicationProgramTest, TabGoesFromTheTopOfTheSettingsToTheBottom)
{
    show("Settings");
    const QWidget* page = program().window().findChild<QWidget*>(latin("settingsPage"));
    ASSERT_TRUE(page);
    QStringList reached;
    for (const QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain())
        for (const char* name : {"Menu bar text", "Command for battery low", "Keep charge and power"})
            if (next->accessibleName() == latin(name))
                reached.append(latin(name));
    EXPECT_EQ(reached, (QStringList{latin("Menu bar text"), latin("Command for battery low"),
                                    latin("Keep charge and power")}));
}

} // namespace
