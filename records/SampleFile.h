#pragma once

#include <functional>

#include "records/Database.h"
#include "records/StoreOutcome.h"

namespace quindle {

/// The database file of the samples: made when it is first written, opened when it is first needed, set aside
/// when it is damaged. Several processes may use it at once; one object is for one thread.
class SampleFile
{
public:
    /// False after a command that failed.
    using Work = std::function<bool(Database&)>;

    explicit SampleFile(const QString& path);

    const QString& path() const { return m_path; }

    /// Does all of the work in one transaction, or nothing of it. Makes the file (0600) and its folder (0700)
    /// first. A damaged file is set aside and the work done on a new one.
    StoreOutcome change(const Work& work);

    /// Does work that changes nothing, or that cannot run in a transaction. `work` is not called where there
    /// is no file. A damaged file is set aside; there is nothing to read then.
    StoreOutcome look(const Work& work);

    /// Reads all of the file, to find damage that only shows where it is.
    StoreOutcome check();

    /// Removes what was set aside so far.
    StoreOutcome removeDamaged() const;

private:
    using Attempt = std::function<StoreOutcome()>;

    StoreOutcome withNewIfDamaged(const Attempt& attempt);
    StoreOutcome tryToChange(const Work& work);
    StoreOutcome tryToLook(const Work& work);
    StoreOutcome openToWrite();
    StoreOutcome openToRead();
    StoreOutcome setAside();
    StoreOutcome moveAside() const;
    StoreOutcome refusal(const Database& database, bool isWriting);
    bool isOpen() const;
    void rememberFile();
    bool connect(Database& database) const;

    QString m_path;
    QByteArray m_file; ///< the path as the system knows it, links followed
    Database m_database;
    quint64 m_device = 0; ///< of the open file, as the number below
    quint64 m_number = 0;
    bool m_isDamaged = false; ///< as the last command found
};

} // namespace quindle
