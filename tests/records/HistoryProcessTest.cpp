// The files of the history between processes: several at once, and one that is killed.

#include <csignal>
#include <limits>
#include <random>
#include <thread>

#include "tests/records/TemporaryHistory.h"

using namespace quindle;

namespace {

constexpr qint64 beginning = 1'700'000'000;
constexpr qint64 forEver = std::numeric_limits<qint64>::max();
constexpr qint64 batch = 7;

using HistoryProcessTest = TemporaryHistory;

// scripts/faults-long asks for more: writes wait for the disk, which may take a busy machine 30 ms.
int countFrom(const char* variable, int otherwise)
{
    const int asked = qEnvironmentVariableIntValue(variable);
    return asked > 0 ? asked : otherwise;
}

/// Samples that are written together.
std::vector<Sample> batchFrom(qint64 moment)
{
    std::vector<Sample> samples;
    for (qint64 number = 0; number < batch; ++number)
        samples.push_back(sampleAt(moment + number));
    return samples;
}

/// Lets `work` run in a process of its own for up to that long, and kills it.
void killSomewhere(const std::function<void()>& work, std::mt19937& random, int mostMicroseconds)
{
    const pid_t writer = forked(work);
    std::uniform_int_distribution<int> microseconds(0, mostMicroseconds);
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    ::kill(writer, SIGKILL);
    ::waitpid(writer, nullptr, 0);
}

TEST_F(HistoryProcessTest, AKillLeavesWholeBatchesOfSamples)
{
    std::mt19937 random(20261122);
    const int rounds = countFrom("QUINDLE_KILLS", 60);
    qint64 next = beginning;
    // On a busy machine more rounds than asked for may pass until something is written.
    for (int round = 0; round < rounds || next == beginning; ++round) {
        killSomewhere(
            [&] {
                SampleStore store(database());
                for (qint64 moment = next;; moment += batch)
                    store.append(batchFrom(moment));
            },
            random, 20'000 + round * 100);
        StoreOutcome outcome;
        const std::vector<Sample> added = SampleStore(database()).samplesBetween(next, forEver, &outcome);
        ASSERT_EQ(outcome.fault, QString()) << round;
        ASSERT_EQ(added.size() % batch, 0U) << round;
        next += static_cast<qint64>(added.size());
        ASSERT_TRUE(added.empty() || added.back().moment == next - 1) << round;
    }
    SampleStore store(database());
    EXPECT_TRUE(store.append(batchFrom(next)).isGood());
    EXPECT_EQ(store.thin(beginning).notice, QString()); // which reads all of the file
    EXPECT_EQ(store.samplesBetween(0, forEver).size(), static_cast<std::size_t>(next + batch - beginning));
}

TEST_F(HistoryProcessTest, AKillLeavesAWholeArchive)
{
    std::mt19937 random(20261122);
    const int rounds = countFrom("QUINDLE_KILLS", 60);
    qsizetype before = 0;
    for (int round = 0; round < rounds || before == 0; ++round) {
        killSomewhere(
            [&] {
                SnapshotArchive own(archive());
                for (qint64 number = before;; ++number)
                    own.append(recordAt(beginning + number));
            },
            random, 60'000 + round * 100);
        const ArchivedRecords read = SnapshotArchive(archive()).read();
        ASSERT_EQ(read.fault, QString()) << round;
        ASSERT_GE(read.records.size(), before) << round;
        for (qsizetype number = before; number < read.records.size(); ++number)
            ASSERT_EQ(read.records[number], recordAt(beginning + number)) << round;
        before = read.records.size();
    }
    EXPECT_TRUE(SnapshotArchive(archive()).append(recordAt(beginning + before)).isGood());
    EXPECT_EQ(files(), QStringList{QStringLiteral("QuindleData.qndarchive")});
}

TEST_F(HistoryProcessTest, TwoWritersLoseNothing)
{
    const int samples = countFrom("QUINDLE_WRITES", 200);
    const int records = countFrom("QUINDLE_WRITES", 200) / 10;
    std::vector<pid_t> writers;
    for (const qint64 writer : {0, 1})
        writers.push_back(forked([&, writer] {
            SampleStore store(database());
            for (qint64 number = 0; number < samples; ++number)
                if (!store.append({sampleAt(beginning + number * 2 + writer)}).isGood())
                    ::_exit(1);
            SnapshotArchive own(archive());
            for (qint64 number = 0; number < records; ++number)
                if (!own.append(recordAt(beginning + number * 2 + writer)).isGood())
                    ::_exit(1);
        }));
    for (const pid_t writer : writers)
        EXPECT_EQ(statusOf(writer), 0);
    EXPECT_EQ(SampleStore(database()).samplesBetween(0, forEver).size(), 2U * static_cast<unsigned>(samples));
    EXPECT_EQ(SnapshotArchive(archive()).read().records.size(), 2 * records);
}

// One makes the file while the others want to.
TEST_F(HistoryProcessTest, SeveralFirstWritersMakeOneFile)
{
    for (int round = 0; round < 5; ++round) {
        QDir(folder()).removeRecursively();
        std::vector<pid_t> writers;
        for (qint64 writer = 0; writer < 6; ++writer)
            writers.push_back(forked([&, writer] {
                const StoreOutcome outcome = SampleStore(database()).append({sampleAt(beginning + writer)});
                ::_exit(outcome.isGood() && outcome.notice.isEmpty() ? 0 : 1);
            }));
        for (const pid_t writer : writers)
            EXPECT_EQ(statusOf(writer), 0);
        EXPECT_EQ(SampleStore(database()).samplesBetween(0, forEver).size(), 6U);
    }
}

// Both find it damaged; the second one must not set aside what the first one has made.
TEST_F(HistoryProcessTest, SeveralFindOneDamagedFile)
{
    write(database(), "no database at all");
    std::vector<pid_t> writers;
    for (qint64 writer = 0; writer < 6; ++writer)
        writers.push_back(forked([&, writer] {
            ::_exit(SampleStore(database()).append({sampleAt(beginning + writer)}).isGood() ? 0 : 1);
        }));
    for (const pid_t writer : writers)
        EXPECT_EQ(statusOf(writer), 0);
    EXPECT_EQ(SampleStore(database()).samplesBetween(0, forEver).size(), 6U);
    EXPECT_EQ(files().filter(QStringLiteral("damaged")).size(), 1);
}

} // namespace
