// What the history costs: ten years of daily snapshots and samples, and archives that are longer still.

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "history/SavedHistory.h"
#include "records/SampleStore.h"
#include "records/SnapshotArchive.h"
#include "records/Thinning.h"
#include "records/trend/CapacityPoints.h"
#include "tests/support/InventedHistory.h"

using namespace quindle;

namespace {

constexpr int tenYears = 3652;        // days
constexpr qint64 end = 1'795'370'400; // 22 November 2026, 18:00 UTC

double megabytes(const QString& path)
{
    return static_cast<double>(QFileInfo(path).size()) / 1e6;
}

/// That many records, one an hour: no battery lives as long as the longest archive covers.
QVariantList snapshots(int count)
{
    const QVariantList invented = inventedSnapshots({.end = end, .days = tenYears});
    QVariantList records;
    for (int number = 0; number < count; ++number) {
        QVariantMap record = invented[number % invented.size()].toMap();
        record.insert(QStringLiteral("Data.SnapshotDate"),
                      QDateTime::fromSecsSinceEpoch(end + (number - count) * secondsOfHour, Qt::UTC));
        // Different from all others, so that it is written and read on its own.
        QVariantMap raw = record.value(QStringLiteral("Data.Raw")).toMap();
        raw.insert(QStringLiteral("UpdateTime"), qint64{number});
        record.insert(QStringLiteral("Data.Raw"), raw);
        records.append(record);
    }
    return records;
}

/// The archive is on the disk that temporary files are on, and each append waits for it.
void appendSnapshot(benchmark::State& state)
{
    const QTemporaryDir folder;
    SnapshotArchive archive(savedHistoryFile(folder.path()));
    const QVariantList records = snapshots(static_cast<int>(state.range(0)));
    archive.merge(records);
    const QVariantMap last = records.constLast().toMap();
    for (auto _ : state)
        if (!archive.append(last).isGood())
            state.SkipWithError("a snapshot could not be appended");
    state.counters["MB"] = megabytes(archive.path());
}

void openArchive(benchmark::State& state)
{
    const QTemporaryDir folder;
    SnapshotArchive archive(savedHistoryFile(folder.path()));
    archive.merge(snapshots(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        const auto points = capacityPoints(archive.read().records);
        if (static_cast<qint64>(points.size()) != state.range(0))
            state.SkipWithError("not all snapshots were read");
    }
    state.counters["MB"] = megabytes(archive.path());
}

/// Ten years of samples, thinned every ten days.
const QString& database()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QString fault = inventHistory({.end = end, .days = tenYears}, folder.path());
        return fault.isEmpty() ? historyFile(folder.path()) : QString();
    }();
    return path;
}

void readSamples(benchmark::State& state)
{
    SampleStore store(database());
    std::size_t count = 0;
    for (auto _ : state)
        count = store.samplesBetween(end - state.range(0) * secondsOfDay, end).size();
    if (count == 0)
        state.SkipWithError("no samples");
    state.counters["samples"] = static_cast<double>(count);
    state.counters["MB"] = megabytes(database());
}

/// As `quindle --record` does it once an hour: opened, written, closed.
void appendHour(benchmark::State& state)
{
    qint64 moment = end;
    SampleStore(database()).firstMoment(); // make it
    for (auto _ : state) {
        std::vector<Sample> samples;
        for (int number = 0; number < 60; ++number)
            samples.push_back(
                {.moment = moment += 60, .charge = 50, .power = -8, .state = SampleState::Discharging});
        if (!SampleStore(database()).append(samples).isGood())
            state.SkipWithError("samples could not be appended");
    }
}

BENCHMARK(appendSnapshot)->Arg(3650)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openArchive)->Arg(3650)->Arg(36500)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(readSamples)->Arg(1)->Arg(30)->Arg(tenYears)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(appendHour)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
