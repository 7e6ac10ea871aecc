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

FileContents contentsOf(const QByteArray& file)
{
    constexpr qint64 largestFile =
        qint64{1024} * 1024 * 1024; // bytes; a century of records takes a fifth of it
    return fileContents(pathText(file), largestFile);
}

/// Nothing was saved yet; that is no fault.
bool isMissing(const FileContents& contents)
{
    return contents.error == ENOENT || contents.error == ENOTDIR;
}

QString faultOf(const FileContents& contents)
{
    return QStringLiteral("it ") + readingFault(contents.error);
}

/// What says when it was made, and of which battery.
QStringList identifyingKeys()
{
    return {QStringLiteral("Data.SnapshotDate"), QStringLiteral("Battery.BatteryID")};
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
    const FileContents contents = contentsOf(m_file);
    if (isMissing(contents))
        return {};
    ArchivedRecords archived = contents.error != 0 ? ArchivedRecords{{}, faultOf(contents)}
                                                   : recordsFromKeyedArchive(contents.bytes, progress);
    if (!archived.fault.isEmpty())
        archived.fault = m_path + QStringLiteral(": ") + archived.fault;
    return archived;
}

StoreOutcome SnapshotArchive::change(const Change& change)
{
    return rewrite([&change](const std::optional<QByteArray>& bytes) {
        const ArchivedRecords archived = bytes ? recordsFromKeyedArchive(*bytes) : ArchivedRecords();
        const auto records = change(archived.records);
        return Rewritten{.bytes = records ? std::optional(keyedArchive(*records)) : std::nullopt,
                         .wasDamaged = !archived.fault.isEmpty()};
    });
}

StoreOutcome SnapshotArchive::rewrite(const Rewriting& rewriting)
{
    if (const int error = makeFolder(folderOf(m_file)))
        return writingFault(m_path, error);
    const auto lock = lockOnArchive(m_file);
    if (!lock)
        return writingFault(m_path, errno);
    // Under the lock, so that no other writer's record is lost.
    const FileContents contents = contentsOf(m_file);
    if (contents.error != 0 && !isMissing(contents))
        return readingFaultOf(m_path, contents.error, faultOf(contents));
    const Rewritten rewritten = rewriting(isMissing(contents) ? std::nullopt : std::optional(contents.bytes));
    // Nothing to change: the file stays as it is, to the byte.
    if (!rewritten.bytes)
        return {};
    StoreOutcome outcome;
    if (rewritten.wasDamaged)
        outcome = setAside();
    if (!outcome.isGood())
        return outcome;
    // Safe now: their writer no longer holds the lock.
    removeLeftovers(m_file);
    if (const int error = replaceFile(m_file, *rewritten.bytes))
        outcome = {.fault = writingFault(m_path, error).fault, .notice = outcome.notice, .error = error};
    return outcome;
}

StoreOutcome SnapshotArchive::append(const QVariantMap& record)
{
    return appendWhere(record, [](const QVariantList&) { return true; });
}

StoreOutcome SnapshotArchive::appendIfDue(const QVariantMap& record)
{
    return appendWhere(record,
                       [&record](const QVariantList& records) { return isSnapshotDue(records, record); });
}

/// Ten years of records are only copied, so only what identifies them is read.
StoreOutcome SnapshotArchive::appendWhere(const QVariantMap& record,
                                          const std::function<bool(const QVariantList& records)>& isDue)
{
    return rewrite([&](const std::optional<QByteArray>& bytes) -> Rewritten {
        const ArchivedRecords outline =
            bytes ? outlineOfKeyedArchive(*bytes, identifyingKeys()) : ArchivedRecords();
        if (!isDue(outline.records))
            return {};
        if (!bytes || !outline.fault.isEmpty())
            return {.bytes = keyedArchive({record}), .wasDamaged = bytes.has_value()};
        return {.bytes = keyedArchiveWith(*bytes, record)};
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
