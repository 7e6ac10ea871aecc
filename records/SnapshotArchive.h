#pragma once

#include <functional>
#include <optional>

#include <QVariant>

#include "plist/KeyedArchive.h"
#include "records/StoreOutcome.h"

namespace quindle {

/// The archive of snapshot records: a keyed archive in one file, which is replaced as a whole (0600) under a
/// lock between processes. Each change is made to what the file holds at that moment. A damaged file is set
/// aside before something is written, never overwritten. One object is for one thread.
class SnapshotArchive
{
public:
    /// What becomes of the records; nothing when they stay as they are, and then nothing is written.
    using Change = std::function<std::optional<QVariantList>(const QVariantList& records)>;

    explicit SnapshotArchive(const QString& path);

    const QString& path() const { return m_path; }

    /// The records in the archive's order; none where there is no file. `fault` names file and reason.
    ArchivedRecords read(const ReadingProgress& progress = {}) const;

    StoreOutcome change(const Change& change);

    StoreOutcome append(const QVariantMap& record);

    /// Appends the record if it is the first of its battery today (see isSnapshotDue).
    StoreOutcome appendIfDue(const QVariantMap& record);

    /// Adds what is not there yet, and counts it in `added`.
    StoreOutcome merge(const QVariantList& records, qsizetype* added = nullptr);

    /// Removes these records, where they are there.
    StoreOutcome remove(const QVariantList& records);

    /// Removes the file, and those that were damaged and set aside.
    StoreOutcome removeAll();

private:
    struct Rewritten
    {
        std::optional<QByteArray> bytes; ///< nothing when the file stays as it is
        bool wasDamaged = false;
    };
    /// Of what the file holds; nothing where there is none.
    using Rewriting = std::function<Rewritten(const std::optional<QByteArray>& bytes)>;

    StoreOutcome rewrite(const Rewriting& rewriting);
    StoreOutcome appendWhere(const QVariantMap& record,
                             const std::function<bool(const QVariantList& records)>& isDue);
    StoreOutcome setAside() const;

    QString m_path;
    QByteArray m_file; ///< the path as the system knows it, links followed
};

} // namespace quindle
