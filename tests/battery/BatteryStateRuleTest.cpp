#include "battery/BatteryStateRule.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct StateRow
{
    BatteryStateTexts texts;
    const char* state;
    const char* caption;
    const char* remaining;
    const char* time;
};

TEST(BatteryStateRule, Table)
{
    EXPECT_EQ(unknownMinutes, 65535);
    const QString time = QStringLiteral("1:35");
    // The value for "not estimated yet" is formatted like any other time; it is not shown.
    const QString formattedUnknown = QStringLiteral("1092:15");
    const StateRow rows[] = {
        {chargedTexts(), "Charged", "Battery usage", "Battery fully charged", ""},
        {chargingTexts(time, false), "Charging...", "Charging with", "Time until full", "1:35"},
        {chargingTexts(formattedUnknown, true), "Charging...", "Charging with", "Calculating...", ""},
        {chargingTexts(QStringLiteral("0:00"), false), "Charging...", "Charging with", "Time until full",
         "0:00"},
        {dischargingTexts(time, false), "Discharging...", "Discharging with", "Time until empty", "1:35"},
        {dischargingTexts(formattedUnknown, true), "Discharging...", "Discharging with", "Calculating...",
         ""},
        {dischargingTexts(QStringLiteral("0:00"), false), "Discharging...", "Discharging with",
         "Time until empty", "0:00"},
    };
    for (const StateRow& row : rows) {
        EXPECT_EQ(row.texts.batteryState, QLatin1String(row.state));
        EXPECT_EQ(row.texts.stateText, QLatin1String(row.caption)) << row.state;
        EXPECT_EQ(row.texts.remainingString, QLatin1String(row.remaining)) << row.state;
        EXPECT_EQ(row.texts.timeRemaining, QLatin1String(row.time)) << row.state;
    }
}

} // namespace
