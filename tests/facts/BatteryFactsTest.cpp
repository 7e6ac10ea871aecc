#include "facts/BatteryFacts.h"

#include <gtest/gtest.h>

#include "tests/facts/FactComputer.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct BatteryFactsTest : testing::Test, test::FactComputer
{
    /// Everything that any place shows, to search for what none of them may show.
    QString shownAnywhere()
    {
        QString all = toolTipText(sources());
        for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::Report})
            all += u'\n' + shown(place);
        return all;
    }
};

struct UnknownCase
{
    const char* key;
    QVariant value;                 ///< invalid: missing
    std::vector<FactId> notShown;   ///< nowhere
    std::vector<const char*> never; ///< texts that must not be shown anywhere
};

TEST_F(BatteryFactsTest, WhatIsNotKnownIsNotShown)
{
    const UnknownCase cases[]{
        {"Temperature", {}, {FactId::Temperature}, {"0.0 °C"}},
        {"CycleCount", {}, {FactId::Cycles}, {"0 cycles", "Cycles|0"}},
        {"CycleCount", 0, {FactId::Cycles}, {"0 cycles", "Cycles|0"}},
        {"CycleCount", -1, {FactId::Cycles}, {"|-1"}},
        {"Amperage", {}, {FactId::Power}, {"0.0 W"}},
        {"Voltage", {}, {FactId::Power}, {"0.0 W"}},
        {"ManufactureDate", {}, {FactId::BatteryAge}, {"1979", "Manufactured"}},
        {"ManufactureDate", 1, {FactId::BatteryAge}, {"1979"}},
        {"MaxCapacity", {}, {}, {"inf", "nan", "0.0 %"}},
        {"MaxCapacity", 0, {}, {"inf", "nan", "0.0 %"}},
        {"Manufacturer", {}, {FactId::Manufacturer}, {}},
        {"DeviceName", QStringLiteral(" "), {FactId::Device}, {}},
        {"BatterySerialNumber", {}, {FactId::BatterySerial}, {}},
    };
    const QVariantMap whole = platform.battery();
    for (const UnknownCase& row : cases) {
        platform.battery() = whole;
        setBattery(row.key, row.value);
        make();
        for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::Report}) {
            for (const FactId id : row.notShown)
                EXPECT_FALSE(fact(id, place).shown) << row.key;
        }
        for (const char* text : row.never)
            EXPECT_FALSE(shownAnywhere().contains(QString::fromUtf8(text))) << row.key << ' ' << text;
    }
}

struct ChargeCase
{
    int current;
    int full;
    const char16_t* inView;
    const char16_t* inReport;
};

TEST_F(BatteryFactsTest, ChargeWithEitherCapacityMissing)
{
    const ChargeCase cases[]{
        {4000, 6000, u"66.7 % · 4,000 of 6,000 mAh", u"66.7 % (4000 mAh of 6000 mAh)"},
        {0, 6000, u"0.0 % · – of 6,000 mAh", u"0.0 %"},
        {4000, 0, u"4,000 mAh", u"4000 mAh"},
        {0, 0, u"", u""},
    };
    for (const ChargeCase& row : cases) {
        setBattery("CurrentCapacity", row.current);
        setBattery("MaxCapacity", row.full);
        make();
        EXPECT_EQ(factText(fact(FactId::Charge), FactPlace::View), QString::fromUtf16(row.inView));
        EXPECT_EQ(factText(fact(FactId::Charge, FactPlace::Report), FactPlace::Report),
                  QString::fromUtf16(row.inReport));
        EXPECT_EQ(fact(FactId::Charge).percent.has_value(), row.full > 0);
    }
}

TEST_F(BatteryFactsTest, CapacitiesInTheDriversOwnWattHours)
{
    make();
    EXPECT_EQ(fact(FactId::Charge).click, FactClick::Nothing) << "the driver counts charges";
    showsWattHours = true;
    EXPECT_EQ(fact(FactId::Charge).detail, QStringLiteral("4,000 of 6,000 mAh"));
    platform.powerSources.energyVoltage = 11.4;
    EXPECT_EQ(fact(FactId::Charge).detail, QStringLiteral("45.6 of 68.4 Wh"));
    EXPECT_EQ(fact(FactId::Charge).click, FactClick::Capacity);
    EXPECT_EQ(fact(FactId::Health).detail, QStringLiteral("68.4 of 81.5 Wh"));
    EXPECT_EQ(fact(FactId::Health).click, FactClick::Capacity);
    EXPECT_TRUE(fact(FactId::Health).toolTip.startsWith(QStringLiteral("83.2 Wh: The capacity")));
    EXPECT_EQ(fact(FactId::FullCharge, FactPlace::Menu).value, QStringLiteral("68.4 of 81.5 Wh"));
    EXPECT_EQ(fact(FactId::Charge, FactPlace::Report).detail, QStringLiteral("4000 mAh of 6000 mAh"));
    showsWattHours = false;
    EXPECT_EQ(fact(FactId::Charge).detail, QStringLiteral("4,000 of 6,000 mAh"));
    EXPECT_EQ(fact(FactId::Charge).click, FactClick::Capacity);
    setBattery("CurrentCapacity", {});
    setBattery("MaxCapacity", {});
    make();
    EXPECT_EQ(fact(FactId::Charge).click, FactClick::Nothing) << "there is nothing to switch";
}

TEST_F(BatteryFactsTest, WithoutADesignCapacityThereIsNoHealthAndTheViewSaysSo)
{
    platform.setComputer(QStringLiteral("20Y70037MH"), QStringLiteral("PF123456"));
    setBattery("DesignCapacity", {});
    make();
    const Fact health = fact(FactId::Health);
    EXPECT_TRUE(health.shown);
    EXPECT_EQ(health.value, QStringLiteral(u"No design capacity · Good"));
    EXPECT_EQ(health.detail, QString()) << "the charge has the full charge";
    EXPECT_FALSE(fact(FactId::FullCharge, FactPlace::Menu).shown);
    EXPECT_FALSE(health.percent);
    EXPECT_FALSE(fact(FactId::Health, FactPlace::Report).shown);
    EXPECT_EQ(fact(FactId::Condition, FactPlace::Report).value, QStringLiteral("Good"));
    EXPECT_EQ(fact(FactId::Health, FactPlace::Menu).value, QStringLiteral("Good"));
    EXPECT_FALSE(shownAnywhere().contains(QStringLiteral("inf")));
    setCondition(QString());
    make();
    EXPECT_EQ(fact(FactId::Health).value, QStringLiteral("No design capacity"));
    EXPECT_FALSE(fact(FactId::Health, FactPlace::Menu).shown);
}

TEST_F(BatteryFactsTest, WithoutAFullChargeThereIsNoHealthEither)
{
    setBattery("MaxCapacity", 0);
    make();
    EXPECT_EQ(fact(FactId::Health).value, QStringLiteral(u"Not known · Good"));
    EXPECT_FALSE(fact(FactId::Health).percent);
}

TEST_F(BatteryFactsTest, AGaugesChipAloneHasNotMadeTheBattery)
{
    setBattery("Manufacturer", {});
    make();
    EXPECT_EQ(fact(FactId::MadeBy).caption, QStringLiteral("Device"));
    EXPECT_EQ(fact(FactId::MadeBy).value, QStringLiteral("bq20z451"));
    EXPECT_EQ(fact(FactId::MadeBy, FactPlace::Menu).caption, QStringLiteral("Battery device"));
    EXPECT_EQ(fact(FactId::Device, FactPlace::Report).caption, QStringLiteral("Device"));
    setBattery("Manufacturer", QStringLiteral("SMP"));
    setBattery("DeviceName", {});
    make();
    EXPECT_EQ(fact(FactId::MadeBy).caption, QStringLiteral("Made by"));
    EXPECT_EQ(fact(FactId::MadeBy, FactPlace::Menu).caption, QStringLiteral("Battery made by"));
}

TEST_F(BatteryFactsTest, DemoShowsItsTimeThoughNoStateIsKnown)
{
    makeDemo();
    ASSERT_TRUE(battery().BatteryState().isEmpty());
    EXPECT_EQ(fact(FactId::Time).value, QStringLiteral("4:41"));
    EXPECT_TRUE(fact(FactId::Time).shown);
    EXPECT_EQ(toolTipText(sources()), QStringLiteral("4.6 W\nTime until empty 4:41"));
    EXPECT_TRUE(shown(FactPlace::Report).contains(QStringLiteral("Time until empty|4:41")));
    EXPECT_TRUE(shown(FactPlace::Menu).contains(QStringLiteral("Time until empty|4:41")));
}

TEST_F(BatteryFactsTest, ACaptionAloneSaysThatTheTimeIsNotEstimatedYet)
{
    setBattery("AvgTimeToEmpty", 65535);
    make();
    for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::ToolTip}) {
        EXPECT_EQ(fact(FactId::Time, place).caption, QStringLiteral("Calculating..."));
        EXPECT_TRUE(fact(FactId::Time, place).shown);
    }
    EXPECT_FALSE(fact(FactId::Time, FactPlace::Report).shown);
    holdBack();
    make();
    EXPECT_FALSE(fact(FactId::Time).shown) << "no state is known";
}

TEST_F(BatteryFactsTest, TheMenuDoesNotSayTwiceThatTheBatteryIsFull)
{
    fillUp();
    make();
    EXPECT_EQ(factText(fact(FactId::State, FactPlace::Menu), FactPlace::Menu),
              QStringLiteral(u"Charged · 0.0 W"));
    EXPECT_FALSE(fact(FactId::Time, FactPlace::Menu).shown);
    EXPECT_EQ(fact(FactId::Time).caption, QStringLiteral("Battery fully charged"));
}

TEST_F(BatteryFactsTest, TheFirstStateTextIsSpelledAsItIs)
{
    holdBack();
    make();
    EXPECT_EQ(fact(FactId::Power).caption, QStringLiteral("Chargin with"));
    EXPECT_EQ(fact(FactId::Power).value, QStringLiteral("0.0 W")) << "no current is a current of 0";
}

TEST_F(BatteryFactsTest, ALimitIsShownWhereThereIsOne)
{
    make();
    EXPECT_FALSE(shownAnywhere().contains(QStringLiteral("Charge limit")));
    platform.powerSources.limit = 80;
    for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::Report})
        EXPECT_EQ(fact(FactId::ChargeLimit, place).value, QStringLiteral("80 %"));
    EXPECT_EQ(fact(FactId::State).value, QStringLiteral("Discharging...")) << "it is no state";
}

TEST_F(BatteryFactsTest, AgeHasTheDateInItsToolTip)
{
    make();
    EXPECT_EQ(fact(FactId::BatteryAge).toolTip, QStringLiteral("Manufactured 2014-03-02"));
    EXPECT_EQ(fact(FactId::BatteryAge).click, FactClick::BatteryAge);
    EXPECT_EQ(fact(FactId::Temperature).click, FactClick::Temperature);
    makeDemo();
    EXPECT_EQ(factText(fact(FactId::BatteryAge, FactPlace::Report), FactPlace::Report),
              QStringLiteral("2014-04-04"));
    EXPECT_FALSE(fact(FactId::BatteryAge).shown) << "it has no age text";
}

TEST_F(BatteryFactsTest, FailuresAskForNoAttention)
{
    make();
    EXPECT_EQ(fact(FactId::Failures).value, QStringLiteral("No Errors"));
    EXPECT_TRUE(fact(FactId::Failures).isQuiet);
}

TEST_F(BatteryFactsTest, CyclesAndCapacitiesExplainThemselves)
{
    make();
    EXPECT_EQ(fact(FactId::Cycles).toolTip, QDBattery::CycleCount_Desc());
    EXPECT_EQ(fact(FactId::Health).toolTip,
              QStringLiteral("7,300 mAh: ") + QDBattery::ReportedDesignCapacity_Desc() +
                  QStringLiteral("\n7,150 mAh: ") + QDBattery::ActualDesignCapacity_Desc());
    setBattery("CycleCount", 1);
    platform.setComputer(QStringLiteral("MacBookPro11,1"), QStringLiteral("C02MN1TXF5YW"));
    make();
    EXPECT_EQ(fact(FactId::Cycles).value, QStringLiteral("1 cycle"));
    EXPECT_EQ(fact(FactId::Health).toolTip,
              QStringLiteral("7,300 mAh: ") + QDBattery::ReportedDesignCapacity_Desc());
}

} // namespace
