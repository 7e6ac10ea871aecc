#include "records/trend/TrendLine.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

using namespace quindle;

namespace {

/// A line of slope -5 from 100 with noise; always the same numbers.
std::vector<TrendValue> noisyLine(int count, double noise, unsigned seed = 5)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> beside(0, noise);
    std::vector<TrendValue> values;
    for (int index = 0; index < count; ++index) {
        const double x = index / 365.25;
        values.push_back({x, 100 - 5 * x + (noise > 0 ? beside(random) : 0)});
    }
    return values;
}

TEST(TrendLine, OfALineIsTheLine)
{
    const auto line = trendLine(noisyLine(100, 0));
    ASSERT_TRUE(line.has_value());
    EXPECT_NEAR(line->slope, -5, 1e-9);
    EXPECT_NEAR(line->intercept, 100, 1e-9);
    EXPECT_NEAR(line->at(2), 90, 1e-9);
    EXPECT_NEAR(line->lowestSlope, -5, 1e-9);
    EXPECT_NEAR(line->highestSlope, -5, 1e-9);
}

TEST(TrendLine, OfTooLittleIsNothing)
{
    EXPECT_FALSE(trendLine({}).has_value());
    EXPECT_FALSE(trendLine({{1, 50}}).has_value());
    EXPECT_FALSE(trendLine({{1, 50}, {1, 60}, {1, 70}}).has_value());
    const auto line = trendLine({{1, 50}, {2, 60}});
    ASSERT_TRUE(line.has_value());
    EXPECT_DOUBLE_EQ(line->slope, 10);
}

TEST(TrendLine, IsNotMovedByOutliers)
{
    std::vector<TrendValue> values = noisyLine(400, 0.3);
    for (std::size_t index = 0; index < values.size(); index += 5)
        values[index].y = index % 2 == 0 ? 10 : 400; // a fifth of all
    const auto line = trendLine(values);
    ASSERT_TRUE(line.has_value());
    EXPECT_NEAR(line->slope, -5, 0.5);
    EXPECT_NEAR(line->at(0.5), 97.5, 0.3);
}

TEST(TrendLine, TheIntervalHoldsTheTruthAsOftenAsItSays)
{
    int held = 0;
    for (unsigned seed = 0; seed < 200; ++seed) {
        const auto line = trendLine(noisyLine(80, 0.5, seed)).value();
        held += line.lowestSlope <= -5 && -5 <= line.highestSlope ? 1 : 0;
    }
    EXPECT_GE(held, 184); // 95 % of 200, less twice the deviation of such a count
    EXPECT_LE(held, 199) << "or it says too little";
}

TEST(TrendLine, KnowsHowFarValuesScatter)
{
    EXPECT_NEAR(trendLine(noisyLine(3000, 0.5))->scatter, 1.96 * 0.5, 0.05)
        << "of single values, not of groups";
    EXPECT_NEAR(trendLine(noisyLine(100, 0))->scatter, 0, 1e-9);
    std::vector<TrendValue> values = noisyLine(400, 0.5);
    for (std::size_t index = 0; index < values.size(); index += 10)
        values[index].y = 400;
    EXPECT_NEAR(trendLine(values)->scatter, 1.96 * 0.5, 0.25);
}

TEST(TrendLine, TheIntervalGrowsWithNoiseAndShrinksWithTime)
{
    const auto width = [](int count, double noise) {
        const auto line = trendLine(noisyLine(count, noise)).value();
        return line.highestSlope - line.lowestSlope;
    };
    EXPECT_GT(width(200, 1), 2 * width(200, 0.3));
    EXPECT_GT(width(100, 0.5), 2 * width(400, 0.5));
}

TEST(TrendLine, NeighboursThatAreAlikeSayLess)
{
    // A firmware that learns anew every three weeks: as many values, of which few are new.
    std::mt19937 random(9);
    std::normal_distribution<double> beside(0, 0.5);
    std::vector<TrendValue> values = noisyLine(420, 0);
    double error = 0;
    for (std::size_t index = 0; index < values.size(); ++index) {
        if (index % 21 == 0)
            error = beside(random);
        values[index].y += error;
    }
    const auto alike = trendLine(values).value();
    const auto independent = trendLine(noisyLine(420, 0.5)).value();
    EXPECT_GT(alike.highestSlope - alike.lowestSlope,
              2 * (independent.highestSlope - independent.lowestSlope));
}

TEST(TrendLine, OfThousandsOfValuesIsThatOfTheirGroups)
{
    const auto line = trendLine(noisyLine(3650, 0.5)).value();
    EXPECT_NEAR(line.slope, -5, 0.05);
    EXPECT_LE(line.lowestSlope, line.slope);
    EXPECT_GE(line.highestSlope, line.slope);
}

TEST(TrendLine, OfTheSameValueIsFlat)
{
    std::vector<TrendValue> values = noisyLine(100, 0);
    for (TrendValue& value : values)
        value.y = 93;
    const auto line = trendLine(values).value();
    EXPECT_EQ(line.slope, 0);
    EXPECT_EQ(line.lowestSlope, 0);
    EXPECT_EQ(line.highestSlope, 0);
}

} // namespace
