#include "battery/DetailRows.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(DetailText, NumbersEqualToABooleanAreWords)
{
    const std::pair<QVariant, const char*> rows[] = {
        {true, "YES"},
        {false, "NO"},
        {1, "YES"},
        {0, "NO"},
        {qint64{1}, "YES"},
        {1.0, "YES"},
        {0.0, "NO"},
        {-0.0, "NO"},
        {2, "2"},
        {-1, "-1"},
        {0.5, "0.5"},
        {61.5, "61.5"},
        {qint64{9007199254740993}, "9007199254740993"},
        {QStringLiteral("1"), "1"}, // a text is no number
        {QStringLiteral("Good"), "Good"},
        {QStringLiteral(""), ""},
        {QByteArray("\x0a\x0b", 2), "<0a0b>"},
    };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(detailText(value), QString::fromLatin1(text)) << testing::PrintToString(value);
}

TEST(DetailRow, KeepsEveryKey)
{
    const QVariantMap row = detailRow({{QStringLiteral("Is Present"), true},
                                       {QStringLiteral("Max Capacity"), 100},
                                       {QStringLiteral("BatteryHealth"), QStringLiteral("Good")}});
    EXPECT_EQ(row, (QVariantMap{{QStringLiteral("Is Present"), QStringLiteral("YES")},
                                {QStringLiteral("Max Capacity"), QStringLiteral("100")},
                                {QStringLiteral("BatteryHealth"), QStringLiteral("Good")}}));
    EXPECT_TRUE(detailRow({}).isEmpty());
}

TEST(DescribePowerSources, KeepsTheOrderOfTheService)
{
    const QVariantMap supply{{QStringLiteral("Name"), QStringLiteral("a supply")}};
    const QVariantMap battery{{QStringLiteral("Name"), QStringLiteral("InternalBattery-0")}};
    FakePowerSources service;
    service.sources = {supply, battery};
    EXPECT_EQ(describePowerSources(service), (std::vector{supply, battery}));
    service.sources->clear();
    EXPECT_TRUE(describePowerSources(service).empty());
}

TEST(DescribePowerSources, AServiceWithoutAnAnswerIsFatal)
{
    FakePowerSources service;
    service.sources = {QVariantMap(), std::nullopt};
    EXPECT_DEATH(describePowerSources(service), "a power source cannot be described");
    service.sources.reset();
    EXPECT_DEATH(describePowerSources(service), "the power sources cannot be listed");
}

} // namespace
