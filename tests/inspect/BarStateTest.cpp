#include "inspect/BarState.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct StateRow
{
    qint64 charge; ///< of 100 mAh
    bool isCharging;
    bool isPlugged;
    bool isCharged;
    const char* title;
    const char* icon;
    const char* state;
    const char* colourClass;
};

constexpr StateRow stateRows[] = {
    {64, false, false, false, "64.0%", "#bat24", "discharging", "good"},
    {40, false, false, false, "40.0%", "#bat24", "discharging", "good"},
    {39, false, false, false, "39.0%", "#bat14", "discharging", "warning"},
    {20, false, false, false, "20.0%", "#bat14", "discharging", "warning"},
    {19, false, false, false, "19.0%", "#bat04", "discharging", "critical"},
    {0, false, false, false, "0.0%", "#bat04", "discharging", "critical"},
    {19, true, true, false, "19.0%", "#bat04Charge", "charging", "critical"},
    {64, true, false, false, "64.0%", "#bat04Charge", "charging", "good"},
    {80, false, true, false, "80.0%", "#bat44Charge", "plugged", "good"},
    {100, false, true, true, "100.0%", "#bat44Charge", "full", "good"},
    {100, false, false, true, "100.0%", "#bat44", "discharging", "good"},
};

TEST(BarState, Table)
{
    for (const StateRow& row : stateRows) {
        SCOPED_TRACE(testing::Message() << row.charge << ' ' << row.state);
        Helper helper;
        helper.setBattery(row.charge);
        helper.setRegistry("IsCharging", row.isCharging);
        helper.setRegistry("ExternalConnected", row.isPlugged);
        helper.setRegistry("FullyCharged", row.isCharged);
        helper.launch();
        const BarState state = barState(*helper.delegate, QStringLiteral("tip"));
        EXPECT_EQ(state.title, QLatin1String(row.title));
        EXPECT_EQ(state.toolTip, QStringLiteral("tip"));
        EXPECT_EQ(state.icon, QLatin1String(row.icon));
        EXPECT_EQ(state.state, QLatin1String(row.state));
        EXPECT_EQ(state.percentage, static_cast<int>(row.charge));
        EXPECT_EQ(state.colourClass, QLatin1String(row.colourClass));
    }
}

TEST(BarState, ShowsTheIconThatTheTrayShows)
{
    for (const StateRow& row : stateRows) {
        Helper helper;
        helper.setShared("showIconsInMenuBar", 1);
        helper.setBattery(row.charge);
        helper.setRegistry("IsCharging", row.isCharging);
        helper.setRegistry("ExternalConnected", row.isPlugged);
        helper.launch();
        EXPECT_EQ(barState(*helper.delegate, QString()).icon, helper.imageName());
    }
}

TEST(BarState, WithoutABattery)
{
    Helper helper;
    helper.launch();
    EXPECT_EQ(barState(*helper.delegate, QStringLiteral("No battery")),
              (BarState{.title = QString(),
                        .toolTip = QStringLiteral("No battery"),
                        .icon = QStringLiteral("AppIconBW"),
                        .state = QStringLiteral("no-battery"),
                        .percentage = std::nullopt,
                        .colourClass = QStringLiteral("no-battery")}));
}

TEST(BarState, ABatteryTakenOutHasNoPercentage)
{
    Helper helper;
    helper.setBattery(64);
    helper.launch();
    helper.platform.registry.entries.clear();
    helper.platform.powerEvents.observer();
    helper.platform.runLoop.advance(1.0);
    const BarState state = barState(*helper.delegate, QString());
    EXPECT_EQ(state.percentage, std::nullopt);
    EXPECT_EQ(state.colourClass, QStringLiteral("unknown"));
}

TEST(BarState, ClassOfACharge)
{
    EXPECT_EQ(chargeClass(40), QStringLiteral("good"));
    EXPECT_EQ(chargeClass(39.99), QStringLiteral("warning"));
    EXPECT_EQ(chargeClass(19.99), QStringLiteral("critical"));
    EXPECT_EQ(chargeClass(-1), QStringLiteral("unknown"));
    EXPECT_EQ(chargeClass(std::numeric_limits<double>::quiet_NaN()), QStringLiteral("unknown"));
}

} // namespace
