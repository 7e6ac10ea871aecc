#include "application/pages/SystemBatteries.h"

#include <gtest/gtest.h>

#include "facts/Facts.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariantMap battery(const char* name, qint64 held, std::optional<qint64> current = {})
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

QString shown(const Fact& fact)
{
    return fact.caption + u'|' + factText(fact, FactPlace::View);
}

TEST(SystemBatteriesTest, OneAloneIsNoPartOfSeveral)
{
    EXPECT_TRUE(systemBatteryFacts({}).empty());
    EXPECT_TRUE(systemBatteryFacts({battery("45N1113", 50)}).empty());
}

TEST(SystemBatteriesTest, EachHasItsNameChargeStateAndCondition)
{
    QVariantMap second = battery("45N1127", 81, 0);
    second.insert(QStringLiteral("BatteryHealth"), QStringLiteral("Good"));
    QVariantMap third = battery("Slice", 12, 900);
    third.insert(QStringLiteral("Is Charging"), true);
    const auto facts = systemBatteryFacts({battery("45N1113", 50, -1200), second, third});
    ASSERT_EQ(facts.size(), 3U);
    EXPECT_EQ(shown(facts[0]), QStringLiteral("45N1113|50 % · Discharging"));
    EXPECT_EQ(shown(facts[1]), QStringLiteral("45N1127|81 % · Good")) << "the other one feeds the computer";
    EXPECT_EQ(shown(facts[2]), QStringLiteral("Slice|12 % · Charging"));
    EXPECT_EQ(facts[1].percent, std::optional(81.0));
    EXPECT_TRUE(facts[0].shown);
}

TEST(SystemBatteriesTest, WithoutANameTheyAreNumbered)
{
    const auto facts = systemBatteryFacts({battery("InternalBattery", 50), battery("", 60)});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(facts[0].caption, QStringLiteral("Battery 1"));
    EXPECT_EQ(facts[1].caption, QStringLiteral("Battery 2"));
}

TEST(SystemBatteriesTest, AChargeThatIsNotKnownIsADash)
{
    QVariantMap unknown = battery("Slice", 50);
    unknown.remove(QStringLiteral("Current Capacity"));
    QVariantMap noRoom = battery("Other", 50);
    noRoom.insert(QStringLiteral("Max Capacity"), qint64{0});
    const auto facts = systemBatteryFacts({unknown, noRoom});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(shown(facts[0]), QStringLiteral("Slice|–"));
    EXPECT_EQ(shown(facts[1]), QStringLiteral("Other|–"));
    EXPECT_FALSE(facts[0].percent);
}

TEST(SystemBatteriesTest, ASupplyDischargesWhenItSaysSo)
{
    QVariantMap supply = battery("Back-UPS", 90);
    supply.insert(QStringLiteral("Type"), QStringLiteral("UPS"));
    const auto facts = systemBatteryFacts({battery("45N1113", 50), supply});
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(shown(facts[1]), QStringLiteral("Back-UPS|90 % · Discharging"));
}

} // namespace
