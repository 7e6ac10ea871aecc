#include "records/SnapshotArchive.h"

#include <cerrno>
#include <unistd.h>

#include "common/FileContents.h"
#include "common/Paths.h"
#include "platform/posix/FileLock.h"
#include "platform/posix/FileReplacement.h"
#include "records/SnapshotIdentity.h"
#include "records/SnapshotMerge.h"

namespace quindle {

namespace {

/// Writers hold the lock while they read and write a file, which takes seconds for a century.
constexpr std::chrono::milliseconds archivePatience(15000);

/// A file that a program left unfinished has records of neither kind; one that cannot be read may be whole.
struct Found
{
    ArchivedRecords archived;
    int error = 0; ///< of reading; errno's value
};

Found recordsIn(const QByteArray& file, const ReadingProgress& progress = {})
{
    constexpr qint64 largestFile =
        qint64{1024} * 1024 * 1024; // bytes; a century of records takes a fifth of it
    const FileContents contents = fileContents(pathText(file), largestFile);
    // Nothing was saved yet; that is no fault.
    if (contents.error == ENOENT || contents.error == ENOTDIR)
        return {};
    if (contents.error != 0)
        return {.archived = {{}, QStringLiteral("it ") + readingFault(contents.error)},
                .error = contents.error};
    return {.archived = recordsFromKeyedArchive(contents.bytes, progress), .error = 0};
}

std::optional<FileLock> lockOnArchive(const QByteArray& file)
{
    return FileLock::take(file + ".lock", archivePatience);
}

} // namespace

SnapshotArchive::SnapshotArchive(const QString& path)
    : m_path(path)
    , m_file(linkTarget(pathBytes(path)))
{
}

ArchivedRecords SnapshotArchive::read(const ReadingProgress& progress) const
{
    ArchivedRecords archived = recordsIn(m_file, progress).archived;
    if (!archived.fault.isEmpty())
        archived.fault = m_path + QStringLiteral(": ") + archived.fault;
    return archived;
}

StoreOutcome SnapshotArchive::change(const Change& change)
{
    if (const int error = makeFolder(folderOf(m_file)))
        return writingFault(m_path, error);
    const auto lock = lockOnArchive(m_file);
    if (!lock)
        return writingFault(m_path, errno);
    // Under the lock, so that no other writer's record is lost.
    const Found found = recordsIn(m_file);
    if (found.error != 0)
        return readingFaultOf(m_path, found.error, found.archived.fault);
    const auto records = change(found.archived.records);
    // Nothing to change: the file stays as it is, to the byte.
    if (!records)
        return {};
    StoreOutcome outcome;
    if (!found.archived.fault.isEmpty())
        outcome = setAside();
    if (!outcome.isGood())
        return outcome;
    // Safe now: their writer no longer holds the lock.
    removeLeftovers(m_file);
    if (const int error = replaceFile(m_file, keyedArchive(*records)))
        outcome = {.fault = writingFault(m_path, error).fault, .notice = outcome.notice, .error = error};
    return outcome;
}

StoreOutcome SnapshotArchive::append(const QVariantMap& record)
{
    return change([&](const QVariantList& records) { return records + QVariantList{record}; });
}

StoreOutcome SnapshotArchive::appendIfDue(const QVariantMap& record)
{
    return change([&](const QVariantList& records) {
        return isSnapshotDue(records, record) ? std::optional(records + QVariantList{record}) : std::nullopt;
    });
}

StoreOutcome SnapshotArchive::merge(const QVariantList& records, qsizetype* added)
{
    return change([&](const QVariantList& present) {
        const MergedSnapshots merged = mergedSnapshots(present, records);
        if (added)
            *added = merged.added;
        return merged.added > 0 ? std::optional(merged.records) : std::nullopt;
    });
}

StoreOutcome SnapshotArchive::remove(const QVariantList& records)
{
    return change([&](const QVariantList& present) {
        const QVariantList left = withoutSnapshots(present, records);
        return left.size() < present.size() ? std::optional(left) : std::nullopt;
    });
}

StoreOutcome SnapshotArchive::removeAll()
{
    const auto lock = lockOnArchive(m_file);
    if (!lock)
        // Without the folder there is no archive either.
        return errno == ENOENT || errno == ENOTDIR ? StoreOutcome() : writingFault(m_path, errno);
    removeLeftovers(m_file);
    if (::unlink(m_file.constData()) != 0 && errno != ENOENT)
        return writingFault(m_path, errno);
    const int error = removeDamaged(m_file);
    return error == 0 ? StoreOutcome() : writingFault(m_path, error);
}

StoreOutcome SnapshotArchive::setAside() const
{
    QByteArray newFile;
    const int error = setAsideAsDamaged(m_file, newFile);
    if (error != 0)
        return writingFault(m_path, error,
                            QStringLiteral("it is damaged and cannot be set aside: ") +
                                qt_error_string(error));
    return {.fault = {}, .notice = setAsideNotice(m_path, pathText(newFile)), .error = 0};
}

} // namespace quindle
