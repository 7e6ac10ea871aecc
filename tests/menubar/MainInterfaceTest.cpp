#include "menubar/MainInterface.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "menubar/BatteryFacts.h"
#include "tests/menubar/FakeModels.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using Kind = StatusMenu::Kind;

namespace {

class RecordingActions : public StatusMenuActions
{
public:
    void openApplication() override { calls.append(QStringLiteral("application")); }
    void openPreferences() override { calls.append(QStringLiteral("preferences")); }
    void openMenuBarText() override { calls.append(QStringLiteral("menu bar text")); }
    void quitApp() override { calls.append(QStringLiteral("quit")); }

    QStringList calls;
};

struct MainInterfaceTest : testing::Test
{
    MainInterfaceTest()
    {
        mac.battery = &battery;
        interface.macObjectController().addObject(&mac);
        interface.statusMenu().addObserver([this](int) { ++changes; });
    }

    QStringList visibleFacts()
    {
        QStringList texts;
        for (const StatusMenu::Row& row : interface.statusMenu().rows()) {
            if (row.kind == Kind::Fact && row.visible)
                texts.append(row.text);
        }
        return texts;
    }

    test::FakeBattery battery;
    test::FakeMac mac;
    MainInterface interface;
    int changes = 0;
};

TEST_F(MainInterfaceTest, EveryOutletIsThere)
{
    const MainOutlets outlets = interface.outlets();
    EXPECT_EQ(outlets.menuView->name, QStringLiteral("menuView"));
    EXPECT_EQ(outlets.noBatteryView->name, QStringLiteral("noBatteryView"));
    EXPECT_EQ(outlets.macObjectController, &interface.macObjectController());
    EXPECT_EQ(outlets.stateOfChargeProgress, &interface.stateOfChargeProgress());
    EXPECT_EQ(outlets.stateOfHealthProgress, &interface.stateOfHealthProgress());
    EXPECT_EQ(outlets.statusMenu, &interface.statusMenu());
    EXPECT_GT(outlets.versionItem, 0);
}

TEST_F(MainInterfaceTest, EntriesInOrder)
{
    QStringList texts;
    for (const StatusMenu::Row& row : interface.statusMenu().rows()) {
        if (row.kind != Kind::Fact)
            texts.append(row.text);
    }
    EXPECT_EQ(
        texts.join(u'|'),
        QStringLiteral("|Show Battery...|Open Application|Preferences...|Menu Bar Text...|Version|Quit"));
}

TEST_F(MainInterfaceTest, EntriesAskTheApplication)
{
    const int last = static_cast<int>(interface.statusMenu().rows().size());
    for (int id = 1; id <= last; ++id)
        interface.statusMenu().choose(id); // nobody carries them out yet
    RecordingActions actions;
    interface.setActions(&actions);
    for (int id = 1; id <= last; ++id)
        interface.statusMenu().choose(id);
    EXPECT_EQ(actions.calls.join(u' '), QStringLiteral("application preferences menu bar text quit"));
}

TEST_F(MainInterfaceTest, FactsOfABattery)
{
    interface.updateFacts(QStringLiteral("66.7%"));
    const QStringList facts = visibleFacts();
    EXPECT_EQ(facts.value(0), QStringLiteral("66.7%"));
    for (const char16_t* row :
         {u"Charge\t66.7 %", u"Capacity\t4,000 of 6,000 mAh", u"State\tDischarging...",
          u"Discharging with\t12.4 W", u"Time until empty\t3:42", u"Health\t83.9 % · Good",
          u"Full charge\t6,000 of 7,150 mAh", u"Cycles\t293", u"Battery made by\tSimplo · bq20z451",
          u"Battery age\t2.5 years", u"Temperature\t30.0 °C", u"Adapter\tNot connected",
          u"Computer\tDemo Computer", u"Type\tMacBook Air", u"Model\t(13-inch, Late 2013)",
          u"System\tDebian 12", u"Computer age\t34 months"})
        EXPECT_TRUE(facts.contains(QString::fromUtf16(row))) << QString::fromUtf16(row).toStdString();
    EXPECT_FALSE(facts.join(u'\n').contains(QStringLiteral("erial number"))) << "too long for a menu";
}

TEST_F(MainInterfaceTest, RowsWithNothingToTellAreHidden)
{
    battery.manufacturer = {};
    battery.deviceName = QString();
    battery.stateOfHealth = 0.0 / 0.0;
    battery.batteryHealth.clear();
    mac.longModel = {};
    interface.updateFacts(QString());
    const QString facts = visibleFacts().join(u'\n');
    EXPECT_FALSE(facts.contains(QStringLiteral("made by")));
    EXPECT_FALSE(facts.contains(QStringLiteral("Health")));
    EXPECT_TRUE(facts.contains(QStringLiteral("Model\tMacBookAir6,2")));
    EXPECT_TRUE(facts.startsWith(QStringLiteral("Charge\t"))) << facts.toStdString();
}

TEST_F(MainInterfaceTest, OnlyDifferencesAreTold)
{
    interface.updateFacts(QStringLiteral("a"));
    changes = 0;
    interface.updateFacts(QStringLiteral("a"));
    EXPECT_EQ(changes, 0);
    battery.wattThroughput = 13;
    interface.updateFacts(QStringLiteral("a"));
    EXPECT_EQ(changes, 1);
    battery.timeRemaining.clear();
    battery.remainingString = QStringLiteral("Calculating...");
    interface.updateFacts(QStringLiteral("a"));
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(visibleFacts().contains(QStringLiteral("Calculating...")));
}

TEST_F(MainInterfaceTest, NoBattery)
{
    mac.battery = nullptr;
    interface.updateFacts(QString());
    const QStringList facts = visibleFacts();
    EXPECT_EQ(facts.value(0), QStringLiteral("No battery"));
    EXPECT_EQ(facts.value(1), QStringLiteral("Computer\tDemo Computer"));
}

TEST_F(MainInterfaceTest, LongAndBrokenTitlesStayOneShortRow)
{
    interface.updateFacts(QStringLiteral("a\tb\nc ") + QString(10000, u'x'));
    const QString title = visibleFacts().value(0);
    EXPECT_TRUE(title.startsWith(QStringLiteral("a b c x")));
    EXPECT_LE(title.size(), 100);
}

TEST(SingleLine, CutsBetweenCharacters)
{
    EXPECT_EQ(singleLine(QStringLiteral("abcd"), 4), QStringLiteral("abcd"));
    EXPECT_EQ(singleLine(QStringLiteral("abcde"), 4), QStringLiteral(u"abc\u2026"));
    EXPECT_EQ(singleLine(QStringLiteral(u"ab\U0001F50Bcd"), 4), QStringLiteral(u"ab\u2026"));
    EXPECT_EQ(singleLine(QStringLiteral(u"a\u2028b\rc\x01"), 9), QStringLiteral("a b c "));
}

TEST(ToolTipText, StateAndRemainingTime)
{
    test::FakeBattery battery;
    test::FakeMac mac;
    EXPECT_EQ(toolTipText(nullptr), QStringLiteral("No battery"));
    EXPECT_EQ(toolTipText(&mac), QStringLiteral("No battery"));
    mac.battery = &battery;
    EXPECT_EQ(toolTipText(&mac), QStringLiteral(u"Discharging... \u00B7 12.4 W\nTime until empty 3:42"));
    battery.remainingString = QStringLiteral("Calculating...");
    battery.timeRemaining.clear();
    EXPECT_EQ(toolTipText(&mac), QStringLiteral(u"Discharging... \u00B7 12.4 W\nCalculating..."));
    battery.batteryState.clear();
    EXPECT_EQ(toolTipText(&mac), QStringLiteral("12.4 W"));
}

} // namespace
