#include "menubar/MainInterface.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "tests/facts/FactComputer.h"
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

struct MainInterfaceTest : testing::Test, test::FactComputer
{
    MainInterfaceTest()
    {
        make();
        interface.setPowerSources(&platform.powerSources);
        interface.statusMenu().addObserver([this](int) { ++changes; });
    }

    void make()
    {
        test::FactComputer::make();
        interface.macObjectController().addObject(mac.get());
    }

    /// What is seen in the menu itself, or in "Details".
    QStringList visibleFacts(int parent = 0)
    {
        QStringList texts;
        for (const StatusMenu::Row& row : interface.statusMenu().rows()) {
            if (row.kind == Kind::Fact && row.visible && row.parent == parent)
                texts.append(row.text);
        }
        return texts;
    }

    int detailsId()
    {
        const auto& rows = interface.statusMenu().rows();
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [](const StatusMenu::Row& row) { return row.kind == Kind::Submenu; });
        return static_cast<int>(found - rows.begin()) + 1;
    }

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
    EXPECT_EQ(texts.join(u'|'), QStringLiteral("Details||Show Battery...|Open Application|Preferences...|"
                                               "Menu Bar Text...|Version|Quit"));
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

TEST_F(MainInterfaceTest, AtMostFourFactsStandAboveTheCommands)
{
    interface.updateFacts(QStringLiteral("66.7%"));
    EXPECT_EQ(visibleFacts(),
              (QStringList{QStringLiteral("66.7%"), QStringLiteral(u"Discharging... \u00B7 12.4 W"),
                           QStringLiteral("Time until empty\t3:42"),
                           QStringLiteral(u"Health\t83.9 % \u00B7 Good")}));
    for (const StatusMenu::Row& row : interface.statusMenu().rows())
        EXPECT_FALSE(row.kind == Kind::Fact && row.enabled) << row.text.toStdString();
}

TEST_F(MainInterfaceTest, AFullBatteryIsMentionedOnce)
{
    fillUp();
    make();
    interface.updateFacts(QStringLiteral("100.0%"));
    EXPECT_EQ(visibleFacts().join(u'|'),
              QStringLiteral(u"100.0%|Charged \u00B7 0.0 W|Health\t83.9 % \u00B7 Good"));
}

TEST_F(MainInterfaceTest, AllOtherFactsAreDetails)
{
    platform.powerSources.limit = 80;
    interface.updateFacts(QStringLiteral("66.7%"));
    const QStringList details = visibleFacts(detailsId());
    for (const char16_t* row :
         {u"Charge\t66.7 % · 4,000 of 6,000 mAh", u"Charge limit\t80 %", u"Full charge\t6,000 of 7,150 mAh",
          u"Cycles\t1,293", u"Battery made by\tSimplo · bq20z451", u"Battery age\t306 days",
          u"Temperature\t30.0 °C", u"Adapter\tNot connected", u"Failures\tNo Errors",
          u"Computer\tDemo Computer", u"Type\tMacBook Air", u"Model\t(11-inch, Late 2013)",
          u"System\tOS X El Capitan", u"Computer age\t235 days"})
        EXPECT_TRUE(details.contains(QString::fromUtf16(row))) << QString::fromUtf16(row).toStdString();
    EXPECT_EQ(details.size(), 14);
    EXPECT_FALSE(details.join(u'\n').contains(QStringLiteral("erial number"))) << "too long for a menu";
}

TEST_F(MainInterfaceTest, RowsWithNothingToShowAreHidden)
{
    setBattery("Manufacturer", {});
    setBattery("DeviceName", {});
    setBattery("MaxCapacity", 0);
    setCondition(QString());
    platform.setComputer(QStringLiteral("20Y70037MH"), QStringLiteral("PF123456"));
    make();
    interface.updateFacts(QString());
    const QString all = (visibleFacts() + visibleFacts(detailsId())).join(u'\n');
    EXPECT_FALSE(all.contains(QStringLiteral("made by")));
    EXPECT_FALSE(all.contains(QStringLiteral("Health")));
    EXPECT_TRUE(all.contains(QStringLiteral("Model\t20Y70037MH")));
    EXPECT_TRUE(all.startsWith(QStringLiteral("Discharging..."))) << "an empty title is no row";
}

TEST_F(MainInterfaceTest, OnlyDifferencesAreAnnounced)
{
    interface.updateFacts(QStringLiteral("a"));
    changes = 0;
    interface.updateFacts(QStringLiteral("a"));
    EXPECT_EQ(changes, 0);
    battery().setProperty("WattThroughput", 13.0);
    interface.updateFacts(QStringLiteral("a"));
    EXPECT_EQ(changes, 1);
    battery().setProperty("TimeRemaining", QString());
    battery().setProperty("RemainingString", QStringLiteral("Calculating..."));
    interface.updateFacts(QStringLiteral("a"));
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(visibleFacts().contains(QStringLiteral("Calculating...")));
}

TEST_F(MainInterfaceTest, RowsNeverComeOrGo)
{
    const std::size_t rows = interface.statusMenu().rows().size();
    interface.updateFacts(QStringLiteral("a"));
    addDevices();
    interface.updateFacts(QStringLiteral("a"));
    removeBattery();
    make();
    interface.updateFacts(QString());
    EXPECT_EQ(interface.statusMenu().rows().size(), rows);
}

TEST_F(MainInterfaceTest, NoBattery)
{
    removeBattery();
    make();
    interface.updateFacts(QString());
    EXPECT_EQ(visibleFacts(), QStringList(QStringLiteral("No battery")));
    EXPECT_EQ(visibleFacts(detailsId()).value(0), QStringLiteral("Computer\tDemo Computer"));
    interface.macObjectController().addObject(nullptr);
    interface.updateFacts(QString());
    EXPECT_FALSE(interface.statusMenu().rows().at(static_cast<std::size_t>(detailsId()) - 1).visible);
}

TEST_F(MainInterfaceTest, LongAndBrokenTextsStayOneShortRow)
{
    mac->setProperty("Name", QStringLiteral("n\n").repeated(100));
    interface.updateFacts(QStringLiteral("a\tb\nc ") + QString(10000, u'x'));
    const QString title = visibleFacts().value(0);
    EXPECT_TRUE(title.startsWith(QStringLiteral("a b c x")));
    EXPECT_EQ(title.size(), 100);
    const QString name = visibleFacts(detailsId()).filter(QStringLiteral("Computer\t")).value(0);
    EXPECT_EQ(name.size(), QStringLiteral("Computer\t").size() + 60);
    EXPECT_FALSE(name.contains(u'\n'));
}

TEST_F(MainInterfaceTest, CallsBackWhoeverShowsTheFacts)
{
    int updates = 0;
    interface.setFactsObserver([&updates] { ++updates; });
    interface.updateFacts(QString());
    interface.updateFacts(QString());
    EXPECT_EQ(updates, 2);
    interface.setFactsObserver({});
    interface.updateFacts(QString());
    EXPECT_EQ(updates, 2);
}

} // namespace
