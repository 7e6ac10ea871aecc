#include "application/saved/SavedSamples.h"

#include <QFile>
#include <QFileInfo>

#include "common/Paths.h"
#include "platform/PowerHistory.h"
#include "records/FirstWeek.h"
#include "records/SampleStore.h"

namespace quindle {

namespace {

struct FoundSamples
{
    std::vector<Sample> samples;
    qint64 ownSince = 0;
    StoreOutcome outcome;
};

FoundSamples samplesIn(const QString& path, qint64 from, qint64 to)
{
    FoundSamples found;
    const auto stored = SampleStore(path).storedBetween(from, to, &found.outcome);
    found.samples.reserve(stored.size());
    for (const StoredSample& each : stored) {
        found.samples.push_back(each.sample);
        if (each.source == SampleSource::UPower)
            // In order of time: after the last one of UPower's all are the helper's.
            found.ownSince = each.sample.moment + 1;
    }
    return found;
}

/// Why it failed, else what became of a damaged file.
QString lineOf(const StoreOutcome& outcome)
{
    return outcome.isGood() ? outcome.notice : outcome.fault;
}

} // namespace

SavedSamples::SavedSamples(const QString& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
{
    // A writer changes the file several times.
    m_settling.setSingleShot(true);
    m_settling.setInterval(200);
    connect(&m_settling, &QTimer::timeout, this, &SavedSamples::changed);
    const auto settle = [this] { m_settling.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, settle);
}

void SavedSamples::read(qint64 from, qint64 to)
{
    const int asked = ++m_asked;
    if (m_path.isEmpty())
        return;
    watch();
    const auto work = [path = m_path, from, to] { return samplesIn(path, from, to); };
    m_work.run(work, [this, asked](const FoundSamples& result) {
        report(lineOf(result.outcome));
        // Otherwise another range was chosen meanwhile, whose answer comes too.
        if (asked == m_asked)
            Q_EMIT found(result.samples, result.ownSince);
    });
}

/// The file, which reading does not change; only until it is there the folder that it will be in, or the one
/// above that is there, since reading makes files beside it.
void SavedSamples::watch()
{
    QString wanted = QFile::decodeName(pathBytes(m_path));
    while (!QFileInfo::exists(wanted) && QFileInfo(wanted).path() != wanted)
        wanted = QFileInfo(wanted).path();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (watched == QStringList(wanted))
        return;
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_watcher.addPath(wanted);
}

void SavedSamples::takeOver(const std::function<std::unique_ptr<PowerHistory>()>& service, qint64 now)
{
    if (m_path.isEmpty())
        return;
    const auto work = [path = m_path, service, now] {
        SampleStore store(path);
        return takeOverFirstWeek(store, *service(), now);
    };
    m_work.run(work, [this](const StoreOutcome& outcome) {
        if (outcome.isGood())
            Q_EMIT changed();
        report(lineOf(outcome));
    });
}

void SavedSamples::removeAll()
{
    if (m_path.isEmpty())
        return;
    m_work.run([path = m_path] { return SampleStore(path).removeAll(); },
               [this](const StoreOutcome& outcome) { report(lineOf(outcome)); });
}

void SavedSamples::report(const QString& line)
{
    if (!line.isEmpty())
        Q_EMIT message(line);
}

} // namespace quindle

#include "moc_SavedSamples.cpp"
