#include "records/FirstWeek.h"

#include <limits>

#include "tests/records/TemporaryHistory.h"

using namespace quindle;

namespace {

using State = PowerHistoryPoint::State;
constexpr qint64 takenOverAt = 1'700'000'000;

class FakePowerHistory : public PowerHistory
{
public:
    std::optional<RecordedPower> recorded;
    int calls = 0;

    std::optional<RecordedPower> lastWeek() override
    {
        ++calls;
        return recorded;
    }
};

TEST(UPowerSamples, ChargeWithTheLastRateBefore)
{
    const RecordedPower recorded{.charge = {{1000, 80, State::Charging},
                                            {400, 81, State::Discharging},
                                            {700, 100, State::Full},
                                            {5000, 50, State::Idle}},
                                 .rate = {{995, 12.5, State::Charging},
                                          {300, 9.25, State::Discharging},
                                          {900, 7, State::Discharging},
                                          {1001, 3, State::Charging}}};
    const std::vector<Sample> expected{{400, 81, -9.25, SampleState::Discharging},
                                       {700, 100, std::nullopt, SampleState::Full}, // the rate is too old
                                       {1000, 80, 12.5, SampleState::Charging},
                                       {5000, 50, std::nullopt, SampleState::Unknown}};
    EXPECT_EQ(samplesFromHistory(recorded, 6000), expected);
    EXPECT_EQ(samplesFromHistory(recorded, 700), std::vector<Sample>{expected[0]});
}

TEST(UPowerSamples, WhatWasNotMeasuredIsNoSample)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const RecordedPower recorded{.charge = {{1, 0, State::Unknown},
                                            {2, nan, State::Full},
                                            {3, -1, State::Full},
                                            {4, 101, State::Full},
                                            {5, 50, State::Full}},
                                 .rate = {{5, 0, State::Unknown}, {5, nan, State::Discharging}}};
    EXPECT_EQ(samplesFromHistory(recorded, 10),
              (std::vector<Sample>{{5, 50, std::nullopt, SampleState::Full}}));
}

struct FirstWeekTest : TemporaryHistory
{
    FirstWeekTest()
    {
        history.recorded = RecordedPower{
            {{takenOverAt - 100, 80, State::Discharging}, {takenOverAt - 10, 79, State::Discharging}}, {}};
    }

    FakePowerHistory history;
};

TEST_F(FirstWeekTest, IsTakenOverOnceAndMarked)
{
    SampleStore store(database());
    EXPECT_TRUE(takeOverFirstWeek(store, history, takenOverAt).isGood());
    const auto stored = store.storedBetween(0, always);
    ASSERT_EQ(stored.size(), 2U);
    EXPECT_EQ(stored[0].source, SampleSource::UPower);
    history.recorded->charge.push_back({takenOverAt - 50, 10, State::Charging});
    EXPECT_TRUE(takeOverFirstWeek(store, history, takenOverAt + 100).isGood());
    EXPECT_EQ(history.calls, 1);
    EXPECT_EQ(store.storedBetween(0, always), stored);
}

TEST_F(FirstWeekTest, EndsWhereOwnSamplesBegin)
{
    SampleStore store(database());
    store.append({sampleAt(takenOverAt - 50)});
    EXPECT_TRUE(takeOverFirstWeek(store, history, takenOverAt).isGood());
    EXPECT_EQ(store.samplesBetween(0, always).size(), 2U);
    EXPECT_EQ(store.firstMoment(), takenOverAt - 100);
}

TEST_F(FirstWeekTest, ASilentServiceIsAskedAgain)
{
    SampleStore store(database());
    const auto recorded = std::exchange(history.recorded, std::nullopt);
    EXPECT_TRUE(takeOverFirstWeek(store, history, takenOverAt).isGood());
    EXPECT_FALSE(QFile::exists(database()));
    history.recorded = recorded;
    EXPECT_TRUE(takeOverFirstWeek(store, history, takenOverAt).isGood());
    EXPECT_EQ(store.samplesBetween(0, always).size(), 2U);
}

} // namespace
