#include "application/saved/SavedSnapshots.h"

#include <filesystem>

#include "common/FileContents.h"
#include "common/Paths.h"
#include "common/Translation.h"
#include "plist/KeyedArchive.h"

namespace quindle {

namespace {

constexpr qint64 largestImport = qint64{1024} * 1024 * 1024; // bytes

/// What was done with how many.
struct DoneWords
{
    const char* one;
    const char* many;
};

constexpr DoneWords imported{QT_TRANSLATE_NOOP("Snapshots", "1 snapshot imported"),
                             QT_TRANSLATE_N_NOOP("Snapshots", "%1 snapshots imported")};
constexpr DoneWords deleted{QT_TRANSLATE_NOOP("Snapshots", "1 snapshot deleted"),
                            QT_TRANSLATE_N_NOOP("Snapshots", "%1 snapshots deleted")};
constexpr DoneWords restored{QT_TRANSLATE_NOOP("Snapshots", "1 snapshot restored"),
                             QT_TRANSLATE_N_NOOP("Snapshots", "%1 snapshots restored")};

QString countedText(qsizetype count, const DoneWords& done)
{
    return count == 1 ? translated("Snapshots", done.one)
                      : translated("Snapshots", done.many, nullptr, count).arg(count);
}

/// Why it failed, else what became of a damaged file, else what was done.
QString lineOf(const StoreOutcome& outcome, const QString& done)
{
    if (!outcome.isGood())
        return outcome.fault;
    return outcome.notice.isEmpty() ? done : outcome.notice;
}

QString importInto(SnapshotArchive& archive, const QString& path)
{
    const FileContents contents = fileContents(path, largestImport);
    if (contents.error != 0)
        return path + QStringLiteral(": it ") + readingFault(contents.error);
    const ArchivedRecords others = recordsFromKeyedArchive(contents.bytes);
    if (!others.fault.isEmpty())
        return path + QStringLiteral(": ") + others.fault;
    qsizetype added = 0;
    const StoreOutcome outcome = archive.merge(others.records, &added);
    return lineOf(outcome, countedText(added, imported));
}

} // namespace

SavedSnapshots::SavedSnapshots(const QString& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
{
}

void SavedSnapshots::load()
{
    // A century of records takes seconds to read, so only a changed file is read again.
    if (!isBusy() && m_file != stateOf(m_path))
        run([](SnapshotArchive&) { return QString(); });
}

SavedSnapshots::FileState SavedSnapshots::stateOf(const QString& path)
{
    // Not by the toolkit, which finds no file in a folder whose name is not UTF-8.
    const std::filesystem::path file(pathBytes(path).toStdString());
    std::error_code missing;
    const auto modified = std::filesystem::last_write_time(file, missing).time_since_epoch().count();
    return {static_cast<qint64>(modified), std::filesystem::file_size(file, missing)};
}

void SavedSnapshots::add(const QVariantMap& record)
{
    run([record](SnapshotArchive& archive) {
        return lineOf(archive.append(record), translated("Snapshots", "1 snapshot saved"));
    });
}

void SavedSnapshots::remove(const QVariantList& records)
{
    run([records](SnapshotArchive& archive) {
        return lineOf(archive.remove(records), countedText(records.size(), deleted));
    });
}

void SavedSnapshots::merge(const QVariantList& records)
{
    run([records](SnapshotArchive& archive) {
        qsizetype added = 0;
        const StoreOutcome outcome = archive.merge(records, &added);
        return lineOf(outcome, countedText(added, restored));
    });
}

void SavedSnapshots::importFrom(const QString& path)
{
    run([path](SnapshotArchive& archive) { return importInto(archive, path); });
}

void SavedSnapshots::removeAll()
{
    Q_EMIT removingAll();
    run([](SnapshotArchive& archive) {
        return lineOf(archive.removeAll(), translated("Snapshots", "All snapshots deleted"));
    });
}

void SavedSnapshots::run(const Change& change)
{
    if (m_path.isEmpty()) {
        Q_EMIT message(
            translated("Snapshots", "There is no folder for snapshots: the user has no home folder"));
        return;
    }
    // Counted, since the next change may be asked for before this one is done.
    setBusy(m_tasks + 1);
    const auto reportProgress = [this](int percent) {
        m_work.callBack([this, percent] { Q_EMIT progressed(percent); });
    };
    const auto work = [path = m_path, change, reportProgress] {
        SnapshotArchive archive(path);
        const QString line = change(archive);
        // Before it is read: what another program writes meanwhile is read the next time.
        const FileState file = stateOf(path);
        ArchivedRecords archived = archive.read(reportProgress);
        return Result{std::move(archived.records), std::move(archived.fault), line, file};
    };
    m_work.run(work, [this](const Result& result) { take(result); });
}

void SavedSnapshots::take(const Result& result)
{
    setBusy(m_tasks - 1);
    m_records = result.records;
    m_fault = result.fault;
    m_file = result.file;
    Q_EMIT changed();
    if (!result.line.isEmpty())
        Q_EMIT message(result.line);
}

void SavedSnapshots::setBusy(int tasks)
{
    const bool wasBusy = isBusy();
    m_tasks = tasks;
    if (wasBusy != isBusy())
        Q_EMIT busyChanged();
}

} // namespace quindle

#include "moc_SavedSnapshots.cpp"
