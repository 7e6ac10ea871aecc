#include "platform/linux/power/EstimatorText.h"

#include <gtest/gtest.h>

using namespace quindle;
using namespace std::chrono_literals;

namespace {

/// One that has watched a battery with a falling current for that long.
TimeEstimator watched(std::chrono::seconds time, std::optional<double> current,
                      TimeEstimator::Direction direction)
{
    TimeEstimator estimator;
    estimator.setState(direction == TimeEstimator::Direction::Charging, direction);
    for (auto now = 100s; now <= 100s + time; now += 5s) {
        const double gone = std::chrono::duration<double>(now - 100s).count();
        estimator.addSample(
            {now, 3000 - gone / 3, 5000.5, current ? std::optional(*current - gone) : current});
    }
    return estimator;
}

TEST(EstimatorText, AnotherOneGoesOnFromThere)
{
    for (const TimeEstimator::Direction direction :
         {TimeEstimator::Direction::Charging, TimeEstimator::Direction::Discharging,
          TimeEstimator::Direction::Idle}) {
        for (const std::optional<double> current : {std::optional(1234.5), std::optional<double>()}) {
            TimeEstimator first = watched(300s, current, direction);
            TimeEstimator second;
            const auto memory = estimatorMemoryFrom(estimatorText(first.memory()));
            ASSERT_TRUE(memory);
            second.setMemory(*memory);
            for (TimeEstimator* estimator : {&first, &second}) {
                estimator->setState(direction == TimeEstimator::Direction::Charging, direction);
                estimator->addSample({405s, 2899, 5000.5, current});
            }
            EXPECT_EQ(first.minutesUntilEmpty(), second.minutesUntilEmpty());
            EXPECT_EQ(first.minutesUntilFull(), second.minutesUntilFull());
        }
    }
    const TimeEstimator discharging = watched(300s, 1000, TimeEstimator::Direction::Discharging);
    EXPECT_TRUE(discharging.minutesUntilEmpty()) << "nothing was compared";
}

TEST(EstimatorText, IsShortHoweverLongItWatched)
{
    EXPECT_LT(estimatorText(watched(600s, 1000, TimeEstimator::Direction::Charging).memory()).size(), 2000);
}

TEST(EstimatorText, OneThatKnowsNothingSaysNothing)
{
    EXPECT_EQ(estimatorText(TimeEstimator().memory()), QByteArray());
}

TEST(EstimatorText, OtherTextsAreNone)
{
    const char* const texts[]{
        "",
        "\n",
        "plugged charging",
        "plugged\n",
        "plugged up\n",
        "maybe charging\n",
        "plugged charging\n1 2 3\n",
        "plugged charging\n1 2 3 4 5\n",
        "plugged charging\nx 2 3 4\n",
        "plugged charging\n1 2 3 nan\n",
        "plugged charging\n1 2 inf 4\n",
        "plugged charging\n5 2 3 4\n1 2 3 4\n",
        "plugged charging\n1 2 3 4",
    };
    for (const char* text : texts)
        EXPECT_FALSE(estimatorMemoryFrom(text)) << text;
    EXPECT_TRUE(estimatorMemoryFrom("unplugged discharging\n1 2 3 -4.5\n2 - - -\n"));
}

} // namespace
