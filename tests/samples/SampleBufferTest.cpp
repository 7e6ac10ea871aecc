#include "samples/SampleBuffer.h"

#include <gtest/gtest.h>

#include "samples/Sample.h"

using namespace quindle;

namespace {

constexpr auto discharging = SampleState::Discharging;
constexpr auto charging = SampleState::Charging;
constexpr auto ignored = SampleFate::Ignored;
constexpr auto added = SampleFate::Added;
constexpr auto replaces = SampleFate::Replaces;

struct FateCase
{
    const char* what;
    Sample last;
    Sample next;
    SampleFate fate;
};

const FateCase fateCases[] = {
    {"nothing else", {0, 50, -10, discharging}, {60, 50, -10, discharging}, ignored},
    {"nothing else for a day", {0, 50, -10, discharging}, {86'400, 50, -10, discharging}, ignored},
    {"a tenth of a point less", {0, 50.3, -10, discharging}, {60, 50.2, -10, discharging}, added},
    {"a tenth of a point more", {0, 50.2, -10, discharging}, {60, 50.3, -10, discharging}, added},
    {"less than a tenth", {0, 50.29, -10, discharging}, {60, 50.2, -10, discharging}, ignored},
    {"much within the minute", {0, 50, -10, discharging}, {59, 40, -30, discharging}, ignored},
    {"a second into the next minute", {59, 50, -10, discharging}, {60, 40, -10, discharging}, added},
    {"another state", {0, 50, 0, discharging}, {60, 50, 0, charging}, added},
    {"another state within the minute", {0, 50, -10, discharging}, {59, 50, 20, charging}, replaces},
    {"half a watt", {0, 50, -2, discharging}, {60, 50, -2.5, discharging}, added},
    {"half a watt less", {0, 50, -2.5, discharging}, {60, 50, -2, discharging}, added},
    {"less than half a watt", {0, 50, -2, discharging}, {60, 50, -2.4, discharging}, ignored},
    {"less than a tenth of it", {0, 50, 60, charging}, {60, 50, 55, charging}, ignored},
    {"a tenth of it", {0, 50, 60, charging}, {60, 50, 54, charging}, added},
    {"a power that is known now", {0, 50, std::nullopt, charging}, {60, 50, 0, charging}, added},
    {"a power that is not known any more", {0, 50, 0, charging}, {60, 50, std::nullopt, charging}, added},
    {"a power that is not known", {0, 50, std::nullopt, charging}, {60, 50, std::nullopt, charging}, ignored},
    {"a clock set back", {3600, 50, -10, discharging}, {60, 49, -10, discharging}, added},
};

TEST(SampleFate, OfWhatFollowsALastSample)
{
    for (const FateCase& entry : fateCases)
        EXPECT_EQ(sampleFate(entry.last, entry.next), entry.fate) << entry.what;
}

TEST(SampleBuffer, KeepsWhatHasChangedInOrder)
{
    SampleBuffer buffer;
    EXPECT_TRUE(buffer.isEmpty());
    EXPECT_EQ(buffer.lines(), "");
    buffer.add({0, 50, -10, discharging});
    buffer.add({10, 49.9, -10, discharging});
    buffer.add({60, 49.9, -10, discharging});
    buffer.add({120, 49.9, -10, discharging});
    EXPECT_EQ(buffer.lines(), "0 50 -10 discharging\n60 49.9 -10 discharging\n");
}

TEST(SampleBuffer, TheLastStateOfAMinuteCounts)
{
    SampleBuffer buffer;
    buffer.add({0, 50, -10, discharging});
    buffer.add({20, 50, 20, charging});
    buffer.add({40, 50, -11, discharging});
    buffer.add({59, 50.1, 30, charging});
    EXPECT_EQ(buffer.lines(), "59 50.1 30 charging\n");
}

TEST(SampleBuffer, ComparesWithWhatItHasLetGoOf)
{
    SampleBuffer buffer;
    buffer.add({0, 50, -10, discharging});
    buffer.clear();
    buffer.add({60, 50, -10, discharging});
    EXPECT_TRUE(buffer.isEmpty());
    buffer.add({61, 50, 10, charging});
    EXPECT_EQ(buffer.lines(), "61 50 10 charging\n");
    buffer.clear();
    buffer.add({62, 50, -10, discharging});
    EXPECT_EQ(buffer.lines(), "62 50 -10 discharging\n")
        << "a state is not lost with the minute's first half";
}

TEST(SampleBuffer, LetsTheOldestFallOutWhenItIsFull)
{
    constexpr qint64 more = 10;
    SampleBuffer buffer;
    for (qint64 minute = 0; minute < qint64{SampleBuffer::most} + more; ++minute)
        buffer.add({minute * 60, minute % 2 == 0 ? 50.0 : 60.0, -10, discharging});
    EXPECT_EQ(buffer.size(), SampleBuffer::most);
    const QByteArray lines = buffer.lines();
    EXPECT_TRUE(lines.startsWith(QByteArray::number(more * 60) + ' '));
    EXPECT_EQ(lines.count('\n'), qsizetype{SampleBuffer::most});
}

TEST(SampleBuffer, HoldsAtMostAHundredKilobytes)
{
    EXPECT_LE(sizeof(Sample) * SampleBuffer::most, 100'000U);
}

} // namespace
