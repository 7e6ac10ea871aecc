#include "application/commands/RecordCommand.h"

#include <limits>
#include <sysexits.h>

#include "records/Thinning.h"
#include "samples/Sample.h"
#include "tests/application/commands/CommandCase.h"

using namespace quindle;

namespace {

constexpr qint64 always = std::numeric_limits<qint64>::max();

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

class FakePowerHistory : public PowerHistory
{
public:
    std::optional<RecordedPower> recorded;

    std::optional<RecordedPower> lastWeek() override { return recorded; }
};

struct RecordCommandTest : CommandCase
{
    RecordCommandTest() { addBattery(); }

    void addBattery()
    {
        computer.battery() = {{text("MaxCapacity"), 4512},
                              {text("DesignCapacity"), 5200},
                              {text("CurrentCapacity"), 4000},
                              {text("CycleCount"), 57},
                              {text("BatterySerialNumber"), text("D865033Y2CXF9CPAW")}};
    }

    int record(const QByteArray& input = {})
    {
        QBuffer buffer;
        buffer.setData(input);
        buffer.open(QIODevice::ReadOnly);
        return recordHistory(computer.platform, powerHistory, buffer, report());
    }

    qint64 now() const { return computer.clock.now().toSecsSinceEpoch(); }
    std::vector<Sample> samples() const { return SampleStore(database()).samplesBetween(0, always); }
    QVariantList snapshots() const { return SnapshotArchive(archive()).read().records; }

    FakePowerHistory powerHistory;
};

TEST_F(RecordCommandTest, StoresTheSamplesOfItsInput)
{
    const Sample first = sampleAt(now() - 60, 80.25);
    const Sample second = sampleAt(now(), 80);
    EXPECT_EQ(record(sampleLine(first) + sampleLine(second)), EX_OK);
    EXPECT_EQ(samples(), (std::vector<Sample>{first, second}));
    EXPECT_EQ(lines, QStringList());
}

TEST_F(RecordCommandTest, ManySamplesAreReadInParts)
{
    QByteArray input;
    for (qint64 number = 0; number < 10'001; ++number)
        input += sampleLine(sampleAt(now() - number));
    EXPECT_EQ(record(input), EX_OK);
    EXPECT_EQ(samples().size(), 10'001U);
}

TEST_F(RecordCommandTest, LinesThatAreNoSamplesAreCounted)
{
    const QByteArray line = sampleLine(sampleAt(now()));
    EXPECT_EQ(record("nonsense\n" + line + "1 2 3\n" + QByteArray(1000, 'x')), EX_DATAERR);
    EXPECT_EQ(samples().size(), 1U);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith(text("standard input: "))) << lines[0].toStdString();
    EXPECT_EQ(snapshots().size(), 1); // the rest is done all the same
}

TEST_F(RecordCommandTest, SavesTheFirstSnapshotOfADay)
{
    EXPECT_EQ(record(), EX_OK);
    ASSERT_EQ(snapshots().size(), 1);
    const QVariantMap snapshot = snapshots()[0].toMap();
    EXPECT_EQ(snapshot.value(text("Battery.FullChargeCapacity")), qint64{4512});
    EXPECT_EQ(snapshot.value(text("Battery.CycleCount")), qint64{57});
    EXPECT_EQ(snapshot.value(text("Data.Raw")).toMap().value(text("CurrentCapacity")), qint64{4000});
    EXPECT_EQ(snapshot.value(text("Data.SnapshotDate")), computer.clock.now());
    computer.clock.advance(3600);
    EXPECT_EQ(record(), EX_OK);
    EXPECT_EQ(snapshots().size(), 1);
    computer.clock.advance(secondsOfDay);
    EXPECT_EQ(record(), EX_OK);
    EXPECT_EQ(snapshots().size(), 2);
    EXPECT_EQ(lines, QStringList());
}

TEST_F(RecordCommandTest, ASwappedBatteryHasItsOwnSnapshot)
{
    record();
    computer.battery().insert(text("BatterySerialNumber"), text("D865033Y2CXF9CPXX"));
    EXPECT_EQ(record(), EX_OK);
    EXPECT_EQ(snapshots().size(), 2);
}

TEST_F(RecordCommandTest, ASnapshotThatWasDeletedTodayDoesNotComeBack)
{
    record();
    SnapshotArchive(archive()).remove(snapshots());
    EXPECT_EQ(record(), EX_OK);
    EXPECT_EQ(snapshots(), QVariantList());
}

TEST_F(RecordCommandTest, NothingNamesTheBatteryWhenAllIsDeleted)
{
    record(sampleLine(sampleAt(now())));
    const QByteArray battery = snapshots()[0].toMap().value(text("Battery.BatteryID")).toByteArray();
    ASSERT_FALSE(battery.isEmpty());
    EXPECT_TRUE(SnapshotArchive(archive()).removeAll().isGood());
    EXPECT_TRUE(SampleStore(database()).removeAll().isGood());
    for (const QString& name : files())
        EXPECT_FALSE(bytesOf(folder() + u'/' + name).contains(battery)) << name.toStdString();
    record();
    EXPECT_EQ(snapshots(), QVariantList()); // today's stays deleted
}

TEST_F(RecordCommandTest, ABatteryWhoseDriverIsNotReadyIsLeftForLater)
{
    computer.battery().insert(text("MaxCapacity"), 0);
    EXPECT_EQ(record(), EX_OK);
    EXPECT_EQ(snapshots(), QVariantList());
    addBattery();
    EXPECT_EQ(record(), EX_OK);
    EXPECT_EQ(snapshots().size(), 1);
}

TEST_F(RecordCommandTest, WithoutABatteryThereIsNoSnapshot)
{
    computer.registry.entries.clear();
    EXPECT_EQ(record(), EX_OK);
    EXPECT_FALSE(QFile::exists(archive()));
}

TEST_F(RecordCommandTest, DoesNothingWhenRecordingIsSwitchedOff)
{
    computer.userDefaults.standardDefaults.values.insert(text("recordHistory"), false);
    EXPECT_EQ(record(sampleLine(sampleAt(now())) + "nonsense\n"), EX_OK);
    EXPECT_FALSE(QDir(folder()).exists());
    EXPECT_EQ(lines, QStringList());
}

TEST_F(RecordCommandTest, TakesOverTheFirstWeek)
{
    powerHistory.recorded = RecordedPower{{{now() - 100, 80, PowerHistoryPoint::State::Full}}, {}};
    EXPECT_EQ(record(sampleLine(sampleAt(now()))), EX_OK);
    EXPECT_EQ(samples().size(), 2U);
}

TEST_F(RecordCommandTest, MakesOldSamplesCoarserOnceADay)
{
    QByteArray input;
    for (qint64 age = 40 * secondsOfDay; age > 39 * secondsOfDay; age -= 600)
        input += sampleLine(sampleAt(now() - age));
    record(input);
    EXPECT_EQ(samples().size(), 144U);
    computer.clock.advance(secondsOfDay);
    record();
    EXPECT_EQ(samples().size(), 24U); // from 03:04 to 02:54
}

TEST_F(RecordCommandTest, KeepsSamplesForAsLongAsTheUserWants)
{
    computer.userDefaults.standardDefaults.values.insert(text("historyDays"), 7);
    record(sampleLine(sampleAt(now() - 8 * secondsOfDay)) + sampleLine(sampleAt(now())));
    computer.clock.advance(secondsOfDay);
    record();
    ASSERT_EQ(samples().size(), 1U);
    computer.clock.advance(8 * secondsOfDay);
    record();
    EXPECT_EQ(samples().size(), 0U);
    EXPECT_EQ(snapshots().size(), 3);
}

// A clock that was wrong for an hour must cost no history.
TEST_F(RecordCommandTest, AJumpOfTheClockRemovesNothing)
{
    computer.userDefaults.standardDefaults.values.insert(text("historyDays"), 7);
    record(sampleLine(sampleAt(now())));
    const QDateTime right = computer.clock.time;
    computer.clock.time = right.addYears(70);
    record();
    computer.clock.time = right.addDays(1);
    record();
    EXPECT_EQ(samples().size(), 1U);
}

TEST_F(RecordCommandTest, WhatIsDamagedIsSetAsideAndNamedOnce)
{
    write(database(), "damaged");
    write(archive(), "damaged too");
    EXPECT_EQ(record(sampleLine(sampleAt(now()))), EX_OK);
    EXPECT_EQ(samples().size(), 1U);
    EXPECT_EQ(snapshots().size(), 1);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(database() + text(" is damaged, set aside as ")));
    EXPECT_TRUE(lines[1].startsWith(archive() + text(" is damaged, set aside as ")));
}

TEST_F(RecordCommandTest, WhatIsDamagedIsNamedWithoutSamplesToo)
{
    write(database(), "damaged");
    powerHistory.recorded.reset();
    EXPECT_EQ(record(), EX_OK);
    ASSERT_EQ(lines.size(), 1) << lines.join(u'\n').toStdString();
    EXPECT_TRUE(lines[0].startsWith(database() + text(" is damaged, set aside as ")));
}

TEST_F(RecordCommandTest, AFolderThatCannotBeMadeIsOneLineForEachFile)
{
    write(folder(), "a file");
    EXPECT_EQ(record(sampleLine(sampleAt(now()))), EX_CANTCREAT);
    EXPECT_EQ(lines, (QStringList{text("cannot write %1: Not a directory").arg(database()),
                                  text("cannot write %1: Not a directory").arg(archive())}));
}

TEST_F(RecordCommandTest, AUserWithoutAHomeFolder)
{
    computer.userDirectories.applicationSupport.clear();
    EXPECT_EQ(record(), EX_CANTCREAT);
    EXPECT_EQ(lines.size(), 1);
}

TEST(ExitCodes, OfWriting)
{
    EXPECT_EQ(exitCodeOfWriting(EACCES), EX_CANTCREAT);
    EXPECT_EQ(exitCodeOfWriting(EROFS), EX_CANTCREAT);
    EXPECT_EQ(exitCodeOfWriting(EWOULDBLOCK), EX_TEMPFAIL);
    EXPECT_EQ(exitCodeOfWriting(ENOSPC), EX_IOERR);
    EXPECT_EQ(exitCodeOfWriting(EIO), EX_IOERR);
}

} // namespace
