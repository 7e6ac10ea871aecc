#include "settings/HistorySettings.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"

using namespace quindle;

namespace {

struct HistorySettings : testing::Test
{
    MemoryUserDefaults own;

    void store(const char* key, const QVariant& value) { own.values[QLatin1String(key)] = value; }
};

TEST_F(HistorySettings, AreOnAndForEverAtFirst)
{
    EXPECT_TRUE(recordsHistory(own));
    EXPECT_EQ(historyDays(own), 0);
    EXPECT_TRUE(own.writes.isEmpty());
}

TEST_F(HistorySettings, AreWrittenAndRead)
{
    setRecordsHistory(own, false);
    setHistoryDays(own, 365);
    EXPECT_FALSE(recordsHistory(own));
    EXPECT_EQ(historyDays(own), 365);
    EXPECT_EQ(own.values, QVariantMap({{QStringLiteral("recordHistory"), false},
                                       {QStringLiteral("historyDays"), qint64{365}}}));
}

TEST_F(HistorySettings, ThatAreSomethingElseCountAsMissing)
{
    store("recordHistory", QStringLiteral("false"));
    store("historyDays", QVariantMap());
    EXPECT_TRUE(recordsHistory(own));
    EXPECT_EQ(historyDays(own), 0);
}

TEST_F(HistorySettings, DaysBelowNoneAreForEver)
{
    for (const qint64 days : {qint64{-1}, std::numeric_limits<qint64>::min()}) {
        store("historyDays", days);
        EXPECT_EQ(historyDays(own), 0);
    }
}

TEST_F(HistorySettings, DaysBeyondAllHistoryAreForEver)
{
    store("historyDays", qint64{1'000'000});
    EXPECT_EQ(historyDays(own), 1'000'000);
    for (const QVariant& days : {QVariant(qint64{1'000'001}), QVariant(std::numeric_limits<qint64>::max()),
                                 QVariant(1e300), QVariant(QStringLiteral("999999999999999"))}) {
        store("historyDays", days);
        EXPECT_EQ(historyDays(own), 0) << days.toString().toStdString();
    }
}

} // namespace
