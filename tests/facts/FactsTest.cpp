#include "facts/Facts.h"

#include <gtest/gtest.h>

#include <QLocale>

#include "tests/facts/FactComputer.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestTranslation.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

struct FactsTest : testing::Test, test::FactComputer
{
    static QString lines(std::initializer_list<const char16_t*> texts)
    {
        QStringList all;
        for (const char16_t* text : texts)
            all.append(QString::fromUtf16(text));
        return all.join(u'\n');
    }
};

TEST_F(FactsTest, OfTheView)
{
    addDevices();
    make();
    EXPECT_EQ(shown(FactPlace::View), lines({u"State|Discharging...",
                                             u"Discharging with|12.4 W",
                                             u"Time until empty|3:42",
                                             u"Health|83.9 % · Good · 6,000 of 7,150 mAh",
                                             u"Charge|66.7 % · 4,000 of 6,000 mAh",
                                             u"Charge limit|80 %",
                                             u"Cycles|1,293 cycles",
                                             u"Made by|Simplo · bq20z451",
                                             u"Age|306 days",
                                             u"Temperature|30.0 °C",
                                             u"Adapter|Not connected",
                                             u"Failures|No Errors",
                                             u"Marathon Mouse M705|85 %",
                                             u"K750 Keyboard|Low",
                                             u"Demo Computer|MacBook Air",
                                             u"Model|(11-inch, Late 2013)",
                                             u"System|OS X El Capitan",
                                             u"Age|235 days",
                                             u"Serial number|D867D0E10AB1234",
                                             u"Serial number|C02MN1TXF5YW"}));
}

TEST_F(FactsTest, OfTheMenu)
{
    addDevices();
    make();
    EXPECT_EQ(shown(FactPlace::Menu),
              lines({u"|Discharging... · 12.4 W", u"Time until empty|3:42", u"Health|83.9 % · Good",
                     u"Charge|66.7 % · 4,000 of 6,000 mAh", u"Charge limit|80 %",
                     u"Full charge|6,000 of 7,150 mAh", u"Cycles|1,293", u"Battery made by|Simplo · bq20z451",
                     u"Battery age|306 days", u"Temperature|30.0 °C", u"Adapter|Not connected",
                     u"Failures|No Errors", u"Computer|Demo Computer", u"Type|MacBook Air",
                     u"Model|(11-inch, Late 2013)", u"System|OS X El Capitan", u"Computer age|235 days"}));
}

TEST_F(FactsTest, OfTheReport)
{
    addDevices();
    plugIn();
    make();
    EXPECT_EQ(shown(FactPlace::Report), lines({u"Charge|66.7 % (4000 mAh of 6000 mAh)",
                                               u"Health|83.9 % (6000 mAh of 7150 mAh)",
                                               u"Condition|Good",
                                               u"State|Charging...",
                                               u"Charging with|12.4 W",
                                               u"Charge limit|80 %",
                                               u"Adapter|Connected (60 Watts)",
                                               u"Cycles|1293",
                                               u"Temperature|30.0 °C",
                                               u"Failures|No Errors",
                                               u"Manufacturer|Simplo",
                                               u"Device|bq20z451",
                                               u"Serial number|D867D0E10AB1234",
                                               u"Manufactured|2014-03-02 (306 days)",
                                               u"Marathon Mouse M705|85 %",
                                               u"K750 Keyboard|Low",
                                               u"Name|Demo Computer",
                                               u"Type|MacBook Air (11-inch, Late 2013)",
                                               u"Model|MacBookAir6,2",
                                               u"System|OS X El Capitan",
                                               u"Serial number|C02MN1TXF5YW",
                                               u"Built|2014-05-12 (235 days)"}));
}

TEST_F(FactsTest, OfTheMenuAreAtMostThreeUnderTheTitle)
{
    const std::vector<Fact> facts = factsFor(FactPlace::Menu, {});
    EXPECT_LE(
        std::count_if(facts.begin(), facts.end(), [](const Fact& f) { return f.rank <= lastRankOfMenu; }), 3);
}

TEST_F(FactsTest, AreAlwaysTheSameInMenus)
{
    const auto ids = [](const std::vector<Fact>& facts) {
        std::vector<FactId> all;
        for (const Fact& fact : facts)
            all.push_back(fact.id);
        return all;
    };
    const auto unknown = ids(factsFor(FactPlace::Menu, {}));
    make();
    EXPECT_EQ(ids(factsFor(FactPlace::Menu, sources())), unknown);
    removeBattery();
    make();
    EXPECT_EQ(ids(factsFor(FactPlace::Menu, sources())), unknown);
    addDevices();
    EXPECT_EQ(ids(factsFor(FactPlace::Menu, sources())), unknown);
}

TEST_F(FactsTest, NothingIsShownOfNothing)
{
    for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::ToolTip, FactPlace::Report}) {
        for (const Fact& fact : factsFor(place, {}))
            EXPECT_FALSE(fact.shown) << fact.caption.toStdString();
    }
}

TEST_F(FactsTest, WithoutABatteryDevicesAndComputerAreLeft)
{
    removeBattery();
    addDevices(); // a limit too, which is not shown
    make();
    EXPECT_EQ(shown(FactPlace::View),
              lines({u"Marathon Mouse M705|85 %", u"K750 Keyboard|Low", u"Demo Computer|MacBook Air",
                     u"Model|(11-inch, Late 2013)", u"System|OS X El Capitan", u"Age|235 days",
                     u"Serial number|C02MN1TXF5YW"}));
}

TEST_F(FactsTest, ToolTipHasStateAndTime)
{
    EXPECT_EQ(toolTipText({}), QStringLiteral("No battery"));
    make();
    EXPECT_EQ(toolTipText(sources()), lines({u"Discharging... · 12.4 W", u"Time until empty 3:42"}));
    plugIn();
    make();
    EXPECT_EQ(toolTipText(sources()), lines({u"Charging... · 12.4 W", u"Calculating..."}));
    fillUp();
    make();
    EXPECT_EQ(toolTipText(sources()), lines({u"Charged · 0.0 W", u"Battery fully charged"}));
    holdBack();
    make();
    EXPECT_EQ(toolTipText(sources()), QStringLiteral("0.0 W"));
    removeBattery();
    make();
    EXPECT_EQ(toolTipText(sources()), QStringLiteral("No battery"));
}

TEST_F(FactsTest, TheToolTipAsksNobodyForTheLimit)
{
    make();
    platform.powerSources.calls = 0;
    toolTipText(sources());
    EXPECT_EQ(platform.powerSources.calls, 0);
}

TEST_F(FactsTest, ClicksSwitchUnits)
{
    make();
    performClick(FactClick::BatteryAge, *mac);
    performClick(FactClick::Temperature, *mac);
    performClick(FactClick::ComputerAge, *mac);
    performClick(FactClick::Nothing, *mac);
    EXPECT_EQ(fact(FactId::BatteryAge).value, QStringLiteral("10 months"));
    EXPECT_EQ(fact(FactId::Temperature).value, QStringLiteral("85.9 °F"));
    EXPECT_EQ(fact(FactId::ComputerAge).value, QStringLiteral("7 months"));
    removeBattery();
    make();
    performClick(FactClick::BatteryAge, *mac);
    performClick(FactClick::Temperature, *mac);
}

TEST_F(FactsTest, TheReportIsTheSameInEveryLocale)
{
    make();
    const QString here = shown(FactPlace::Report);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(shown(FactPlace::Report), here);
    EXPECT_EQ(fact(FactId::Cycles).value, QStringLiteral(u"1\u202F293 cycles"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(FactsTest, FromRightToLeftValuesBesideOtherTextsAreIsolated)
{
    const TestTranslation arabic(u("C"), u("ar_LY"));
    make();
    EXPECT_EQ(toolTipText(sources()),
              QStringLiteral(u"\u2068\u200F\u2068Discharging...\u2069 \u00B7 \u206812.4 W\u2069\u2069\n"
                             u"Time until empty \u20683:42\u2069"));
    EXPECT_EQ(factText(fact(FactId::Cycles), FactPlace::Menu), QStringLiteral(u"\u20681,293 cycles\u2069"));
    // Alone in its label, where it may be copied.
    EXPECT_EQ(factText(fact(FactId::Cycles), FactPlace::View), u("1,293 cycles"));
    EXPECT_EQ(factText(fact(FactId::Cycles), FactPlace::Report), u("1,293 cycles"));
}

TEST(FactWithId, IsOneWithoutATextWhereThereIsNone)
{
    std::vector<Fact> facts(2);
    facts[1].id = FactId::Health;
    facts[1].value = u("2");
    EXPECT_EQ(factWithId(facts, FactId::Health).value, u("2"));
    EXPECT_FALSE(factWithId(facts, FactId::State).shown);
    EXPECT_EQ(factWithId(facts, FactId::State).value, QString());
}

} // namespace
