// Days of a helper's life in a row, as fast as they go: nothing it holds may grow.
//
//     quindle-soak DAYS

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <unistd.h>

#include <QApplication>

#include "platform/NotificationCenter.h"
#include "records/SampleStore.h"
#include "records/Thinning.h"
#include "tests/soak/Measures.h"
#include "tests/soak/SoakedHelper.h"

using namespace quindle;

namespace {

constexpr int tensOfSecondsInSixHours = 6 * 60 * 6;

// Fonts, pictures and the allocator's own lists are filled by then.
constexpr int warmUpDays = 1;

// Two texts that stayed behind every hour would be more.
constexpr qint64 mostHeapGrowth = 4096;
constexpr qint64 bytesOfRegistration = 600; // four observers in their lists
constexpr qint64 mostResidentGrowth = 1024 * 1024;

bool fail(const char* what, qint64 was, qint64 is)
{
    std::fprintf(stderr, "%s: %lld, then %lld\n", what, static_cast<long long>(was),
                 static_cast<long long>(is));
    return false;
}

/// The gate registers the four observers once more whenever it opens.
int registrations(int gatesOpened)
{
    return std::min(1 + gatesOpened, NotificationCenter::mostRegistrations);
}

/// Each registration is heard by the program's bus and passed on to every one inside it.
int expectedRefreshes(int gatesOpened)
{
    return registrations(gatesOpened) * registrations(gatesOpened);
}

bool livesThroughDay(SoakedHelper& helper)
{
    for (int quarter = 0; quarter < 4; ++quarter) {
        for (int tick = 0; tick < tensOfSecondsInSixHours; ++tick)
            helper.passTenSeconds();
        const int expected = expectedRefreshes(helper.gatesOpened());
        const int refreshes = helper.changeSetting();
        if (refreshes != expected)
            return fail("refreshes for one change of a setting", expected, refreshes);
    }
    return true;
}

bool isSteady(const Measures& first, const Measures& last, int gatesOpened)
{
    const qint64 heapGrowth = mostHeapGrowth + registrations(gatesOpened) * bytesOfRegistration;
    if (last.openFiles != first.openFiles)
        return fail("open files", first.openFiles, last.openFiles);
    if (last.heap - first.heap > heapGrowth)
        return fail("bytes in use", first.heap, last.heap);
    if (last.resident - first.resident > mostResidentGrowth)
        return fail("resident bytes", first.resident, last.resident);
    return true;
}

/// The battery of this day changes each minute, and nothing is written more often than each hour and before
/// sleep.
bool hasRecorded(const Recorder& recorder, const Recorder& before)
{
    constexpr int minutes = 24 * 60;
    constexpr int sleeps = 3;
    const int samples = recorder.samples - before.samples;
    const int starts = recorder.starts - before.starts;
    // Views and swaps take a moment more.
    if (samples < minutes / 2 || samples > minutes + 10)
        return fail("samples recorded in a day", minutes, samples);
    // The hours of sleep count too: the clock goes on.
    if (starts < 24 || starts > 24 + 2 * sleeps)
        return fail("starts of the recorder in a day", 24, starts);
    return true;
}

/// What has grown old is one sample an hour by now, the rest is there as it was recorded. Thinning comes once
/// a day, and one more day may have passed without.
bool hasThinned(const SoakedHelper& helper)
{
    constexpr std::size_t hoursOfOldDay = 25; // it began within one
    SampleStore store(helper.history());
    const qint64 now = helper.now();
    const qint64 old = hourlyBefore(now) - 2 * secondsOfDay;
    const std::vector<Sample> thinned = store.samplesBetween(0, old - 1);
    const auto areOfOneHour = [](const Sample& one, const Sample& other) {
        return one.moment / secondsOfHour == other.moment / secondsOfHour;
    };
    if (thinned.size() < hoursOfOldDay - 1 ||
        std::adjacent_find(thinned.begin(), thinned.end(), areOfOneHour) != thinned.end())
        return fail("samples of the old day", hoursOfOldDay, static_cast<qint64>(thinned.size()));
    const auto young = static_cast<qint64>(store.samplesBetween(old, now).size());
    const bool isAllYoung = thinned.size() <= hoursOfOldDay;
    if (isAllYoung && young != helper.recorder().samples)
        return fail("samples since then", helper.recorder().samples, young);
    return true;
}

bool soak(int days)
{
    SoakedHelper helper;
    std::vector<Measures> measures;
    std::puts("  day  heap (bytes)  resident (kB)  files  uploads  samples");
    for (int day = 1; day <= days; ++day) {
        const Recorder before = helper.recorder();
        if (!livesThroughDay(helper) || !hasRecorded(helper.recorder(), before))
            return false;
        measures.push_back(Measures::now());
        const Measures& now = measures.back();
        std::printf("%5d  %12lld  %13lld  %5d  %7d  %7d\n", day, static_cast<long long>(now.heap),
                    static_cast<long long>(now.resident / 1024), now.openFiles, helper.posts(),
                    helper.recorder().samples);
        std::fflush(stdout);
    }
    if (helper.posts() != helper.gatesOpened() || helper.posts() < days - 1)
        return fail("uploads", helper.gatesOpened(), helper.posts());
    return hasThinned(helper) && isSteady(measures.at(warmUpDays - 1), measures.back(), helper.gatesOpened());
}

/// Starts the program once more with an allocator that keeps nothing in reserve: what it keeps counts as in
/// use, and hides what stays behind.
void countExactly(char** argv)
{
    if (qEnvironmentVariableIsSet("GLIBC_TUNABLES"))
        return;
    qputenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0:glibc.malloc.mxfast=0");
    execv("/proc/self/exe", argv);
}

} // namespace

int main(int argc, char** argv)
{
    countExactly(argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int days = argc == 2 ? std::atoi(argv[1]) : 0;
    if (days <= warmUpDays) {
        std::fputs("usage: quindle-soak DAYS, at least 2\n", stderr);
        return 2;
    }
    return soak(days) ? 0 : 1;
}
