#include "settings/WarningSettings.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct WarningSettingsTest : testing::Test
{
    MemoryUserDefaults own;

    void store(const char* key, const QVariant& value) { own.values[QLatin1String(key)] = value; }

    int percent(WarningLevel level) const { return warningSettings(own)[level].percent; }
};

TEST_F(WarningSettingsTest, WarnOfEverythingAtFirst)
{
    const WarningSettings settings = warningSettings(own);
    const int percents[] = {20, 10, 5, 100, 0};
    for (const WarningLevel level : warningLevels)
        EXPECT_EQ(settings[level],
                  (LevelSettings{.isOn = true, .percent = percents[indexOf(level)], .command = {}}));
    EXPECT_EQ(warningsChoice(own), WarningsChoice::Automatic);
    EXPECT_TRUE(own.writes.isEmpty());
}

TEST_F(WarningSettingsTest, AreWrittenAndRead)
{
    setWarningsChoice(own, WarningsChoice::Off);
    setWarningOn(own, WarningLevel::VeryLow, false);
    setWarningPercent(own, WarningLevel::Full, 80);
    setWarningCommand(own, WarningLevel::LimitReached, QStringLiteral("a b"));
    EXPECT_EQ(own.values, QVariantMap({{QStringLiteral("warnings"), QStringLiteral("off")},
                                       {QStringLiteral("warnVeryLow"), false},
                                       {QStringLiteral("warnFullPercent"), qint64{80}},
                                       {QStringLiteral("warnLimitCommand"), QStringLiteral("a b")}}));
    const WarningSettings settings = warningSettings(own);
    EXPECT_FALSE(settings[WarningLevel::VeryLow].isOn);
    EXPECT_EQ(settings[WarningLevel::Full].percent, 80);
    EXPECT_EQ(settings[WarningLevel::LimitReached].command, QStringLiteral("a b"));
    for (const auto choice : {WarningsChoice::On, WarningsChoice::Automatic, WarningsChoice::Off}) {
        setWarningsChoice(own, choice);
        EXPECT_EQ(warningsChoice(own), choice);
    }
}

TEST_F(WarningSettingsTest, ThatAreSomethingElseCountAsMissing)
{
    store("warnings", 1);
    store("warnLow", QStringLiteral("no"));
    store("warnLowPercent", QStringLiteral("30"));
    store("warnLowCommand", 7);
    EXPECT_EQ(warningsChoice(own), WarningsChoice::Automatic);
    EXPECT_EQ(warningSettings(own)[WarningLevel::Low],
              (LevelSettings{.isOn = true, .percent = 20, .command = {}}));
}

TEST_F(WarningSettingsTest, PercentagesOutsideTheirRangeCountAsMissing)
{
    for (const qint64 stored : {qint64{0}, qint64{-5}, qint64{100}, std::numeric_limits<qint64>::max()}) {
        store("warnLowPercent", stored);
        EXPECT_EQ(percent(WarningLevel::Low), 20) << stored;
    }
    store("warnFullPercent", qint64{49});
    EXPECT_EQ(percent(WarningLevel::Full), 100);
    store("warnLimitPercent", qint64{100});
    EXPECT_EQ(percent(WarningLevel::LimitReached), 0);
    store("warnLimitPercent", qint64{85});
    EXPECT_EQ(percent(WarningLevel::LimitReached), 85);
}

} // namespace
