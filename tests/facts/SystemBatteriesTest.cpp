#include "facts/SystemBatteries.h"

#include <gtest/gtest.h>

#include "facts/Facts.h"
#include "tests/facts/FactComputer.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariantMap described(const char* name, qint64 held, std::optional<qint64> current = {})
{
    QVariantMap description{{QStringLiteral("Type"), QStringLiteral("InternalBattery")},
                            {QStringLiteral("Name"), QString::fromLatin1(name)},
                            {QStringLiteral("Current Capacity"), held},
                            {QStringLiteral("Max Capacity"), qint64{100}},
                            {QStringLiteral("Power Source State"), QStringLiteral("Battery Power")},
                            {QStringLiteral("Is Charging"), false}};
    if (current)
        description.insert(QStringLiteral("Current"), *current);
    return description;
}

QString words(const Fact& fact)
{
    return fact.caption + u'|' + factText(fact, FactPlace::View);
}

TEST(SystemBatteriesTest, OneAloneIsNoPartOfSeveral)
{
    EXPECT_TRUE(systemBatteryFacts({}).empty());
    EXPECT_TRUE(systemBatteryFacts({described("45N1113", 50)}).empty());
}

TEST(SystemBatteriesTest, EachHasItsNameChargeStateAndCondition)
{
    QVariantMap second = described("45N1127", 81, 0);
    second.insert(QStringLiteral("BatteryHealth"), QStringLiteral("Good"));
    QVariantMap third = described("Slice", 12, 900);
    third.insert(QStringLiteral("Is Charging"), true);
    const auto facts = systemBatteryFacts({described("45N1113", 50, -1200), second, third});
    ASSERT_EQ(facts.size(), 3U);
    EXPECT_EQ(words(facts[0]), QStringLiteral("45N1113|50 % · Discharging"));
    EXPECT_EQ(words(facts[1]), QStringLiteral("45N1127|81 % · Good")) << "the other one feeds the computer";
    EXPECT_EQ(words(facts[2]), QStringLiteral("Slice|12 % · Charging"));
    EXPECT_EQ(facts[1].percent, std::optional(81.0));
    EXPECT_TRUE(facts[0].shown);
}

TEST(SystemBatteriesTest, WithoutANameTheyAreNumbered)
{
    const auto facts = systemBatteryFacts({described("InternalBattery", 50), described("", 60)});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(facts[0].caption, QStringLiteral("Battery 1"));
    EXPECT_EQ(facts[1].caption, QStringLiteral("Battery 2"));
}

TEST(SystemBatteriesTest, AChargeThatIsNotKnownIsADash)
{
    QVariantMap unknown = described("Slice", 50);
    unknown.remove(QStringLiteral("Current Capacity"));
    QVariantMap noRoom = described("Other", 50);
    noRoom.insert(QStringLiteral("Max Capacity"), qint64{0});
    const auto facts = systemBatteryFacts({unknown, noRoom});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(words(facts[0]), QStringLiteral("Slice|–"));
    EXPECT_EQ(words(facts[1]), QStringLiteral("Other|–"));
    EXPECT_FALSE(facts[0].percent);
}

TEST(SystemBatteriesTest, AnAbsurdChargeIsShownAsItIs)
{
    QVariantMap absurd = described("Slice", qint64{1} << 62);
    absurd.insert(QStringLiteral("Max Capacity"), qint64{1});
    const auto facts = systemBatteryFacts({absurd, described("Other", 50)});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(words(facts[0]), QStringLiteral("Slice|461168601842738790400 %"));
}

TEST(SystemBatteriesTest, ASupplyDischargesWhenItSaysSo)
{
    QVariantMap supply = described("Back-UPS", 90);
    supply.insert(QStringLiteral("Type"), QStringLiteral("UPS"));
    const auto facts = systemBatteryFacts({described("45N1113", 50), supply});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(words(facts[1]), QStringLiteral("Back-UPS|90 % · Discharging"));
}

TEST(SystemBatteriesTest, AnEmptyBayAndOtherSourcesAreNone)
{
    QVariantMap absent = described("45N1127", 0);
    absent.insert(QStringLiteral("Is Present"), false);
    QVariantMap other = described("Something", 50);
    other.insert(QStringLiteral("Type"), QStringLiteral("Accessory Source"));
    EXPECT_TRUE(systemBatteryFacts({described("45N1113", 50), absent, other}).empty());
}

struct SystemBatteriesEverywhere : testing::Test, test::FactComputer
{
    SystemBatteriesEverywhere()
    {
        platform.powerSources.sources = {described("45N1113", 50, -1200), described("45N1127", 81)};
    }
};

TEST_F(SystemBatteriesEverywhere, AreInViewMenuAndReportOfAComputerWithABattery)
{
    make();
    for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::Report}) {
        EXPECT_TRUE(shown(place).contains(QStringLiteral(u"45N1113|50 % · Discharging"))) << int(place);
        EXPECT_TRUE(shown(place).contains(QStringLiteral("45N1127|81 %"))) << int(place);
    }
    EXPECT_FALSE(toolTipText(sources()).contains(QStringLiteral("45N1113")));
    removeBattery();
    make();
    for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::Report})
        EXPECT_FALSE(shown(place).contains(QStringLiteral("45N1113"))) << int(place);
}

TEST_F(SystemBatteriesEverywhere, MenusHaveAsManyRowsForThemWhateverThereIs)
{
    const std::size_t rows = factsFor(FactPlace::Menu, {}).size();
    make();
    EXPECT_EQ(factsFor(FactPlace::Menu, sources()).size(), rows);
    auto& listed = *platform.powerSources.sources;
    while (listed.size() < 9)
        listed.push_back(described("Slice", 20));
    EXPECT_EQ(factsFor(FactPlace::Menu, sources()).size(), rows);
    listed.clear();
    EXPECT_EQ(factsFor(FactPlace::Menu, sources()).size(), rows);
}

} // namespace
