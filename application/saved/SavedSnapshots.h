#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QVariant>

#include "application/saved/BackgroundWork.h"
#include "records/SnapshotArchive.h"

namespace quindle {

/// The archive of snapshots as the pages see it: read and changed in the background, and read again when
/// another program has changed the file. Main thread only.
class SavedSnapshots : public QObject
{
    Q_OBJECT

public:
    /// An empty path: there is no place for an archive, and nothing can be saved.
    explicit SavedSnapshots(const QString& path, QObject* parent = nullptr);

    /// As last read, in the archive's order.
    const QVariantList& records() const { return m_records; }

    /// Why the archive could not be read, in one line; empty when it was read, or there is none.
    const QString& fault() const { return m_fault; }

    /// Whether the archive is being read or changed.
    bool isBusy() const { return m_tasks > 0; }

    /// Reads the file where it has changed since it was last read, or was never read.
    void load();

    // Changes; each announces its outcome, and reads the archive again.
    void add(const QVariantMap& record);
    void remove(const QVariantList& records);
    void merge(const QVariantList& records);
    /// Those of another archive.
    void importFrom(const QString& path);
    void removeAll();

Q_SIGNALS:
    /// `records` or `fault` have changed.
    void changed();

    /// `isBusy` has changed.
    void busyChanged();

    /// All are being removed, for good.
    void removingAll();

    /// How much of the archive is read.
    void progressed(int percent);

    /// One line for the user: what was done, or why it was not.
    void message(const QString& line);

private:
    /// Whether the file has changed since it was read.
    struct FileState
    {
        qint64 modified = 0;
        quint64 size = 0;

        bool operator==(const FileState&) const = default;
    };

    struct Result
    {
        QVariantList records;
        QString fault;
        QString line; ///< for the user; empty for none
        FileState file;
    };

    /// Changes the archive. Gives the line for the user.
    using Change = std::function<QString(SnapshotArchive& archive)>;

    static FileState stateOf(const QString& path);

    void run(const Change& change);
    void take(const Result& result);
    void setBusy(int tasks);

    QString m_path;
    QVariantList m_records;
    QString m_fault;
    std::optional<FileState> m_file; ///< when it was read last
    int m_tasks = 0;
    BackgroundWork m_work;
};

} // namespace quindle
