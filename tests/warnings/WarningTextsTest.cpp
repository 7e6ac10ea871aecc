#include "warnings/WarningTexts.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "warnings/WarningWatch.h"

using namespace quindle;

namespace {

Notification shown(WarningLevel level, double percent, std::optional<int> minutes = std::nullopt)
{
    return notificationOf({.level = level, .percent = percent, .minutes = minutes});
}

TEST(WarningTextsTest, SayTheLevelAndWhatIsLeft)
{
    const Notification low = shown(WarningLevel::Low, 19.6);
    EXPECT_EQ(low.title, latin("Battery low"));
    EXPECT_EQ(low.text, latin("20% left"));
    EXPECT_EQ(low.iconName, latin("battery-low"));
    EXPECT_EQ(shown(WarningLevel::VeryLow, 10).title, latin("Battery very low"));
    EXPECT_EQ(shown(WarningLevel::NearlyEmpty, 3).title, latin("Battery nearly empty"));
    EXPECT_EQ(shown(WarningLevel::Full, 100.4).text, latin("100%"));
    EXPECT_EQ(shown(WarningLevel::LimitReached, 80).title, latin("Charge limit reached"));
}

TEST(WarningTextsTest, SayTimesAboutAsWellAsTheyAreKnown)
{
    const auto text = [](int minutes) { return shown(WarningLevel::Low, 50, minutes).text; };
    EXPECT_EQ(text(1), latin("About a minute left"));
    EXPECT_EQ(text(7), latin("About 7 minutes left"));
    EXPECT_EQ(text(10), latin("About 10 minutes left"));
    EXPECT_EQ(text(12), latin("About 10 minutes left"));
    EXPECT_EQ(text(13), latin("About 15 minutes left"));
    EXPECT_EQ(text(20), latin("About 20 minutes left"));
}

TEST(WarningTextsTest, AreCriticalAtFivePercentAndNearlyEmpty)
{
    using Urgency = Notification::Urgency;
    EXPECT_EQ(shown(WarningLevel::Low, 20).urgency, Urgency::Normal);
    EXPECT_EQ(shown(WarningLevel::VeryLow, 5.1).urgency, Urgency::Normal);
    EXPECT_EQ(shown(WarningLevel::VeryLow, 5).urgency, Urgency::Critical);
    EXPECT_EQ(shown(WarningLevel::NearlyEmpty, 8).urgency, Urgency::Critical);
    EXPECT_EQ(shown(WarningLevel::Full, 100).urgency, Urgency::Low);
}

TEST(WarningTextsTest, NameLevelChargeAndStateToCommands)
{
    const auto words = [](WarningLevel level, SampleState state) {
        return commandArguments({.level = level, .percent = 9.6, .state = state}).join(u' ');
    };
    EXPECT_EQ(words(WarningLevel::Low, SampleState::Discharging), latin("low 10 discharging"));
    EXPECT_EQ(words(WarningLevel::VeryLow, SampleState::Discharging), latin("very-low 10 discharging"));
    EXPECT_EQ(words(WarningLevel::NearlyEmpty, SampleState::Discharging),
              latin("nearly-empty 10 discharging"));
    EXPECT_EQ(words(WarningLevel::Full, SampleState::Full), latin("full 10 full"));
    EXPECT_EQ(words(WarningLevel::LimitReached, SampleState::Charging), latin("limit 10 charging"));
    EXPECT_EQ(words(WarningLevel::LimitReached, SampleState::Unknown), latin("limit 10 plugged"));
}

} // namespace
