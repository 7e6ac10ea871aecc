#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include "application/saved/BackgroundWork.h"
#include "samples/Sample.h"

namespace quindle {

class PowerHistory;

/// The recorded samples as the pages see them, read in the background. Main thread only.
class SavedSamples : public QObject
{
    Q_OBJECT

public:
    /// An empty path: there is no place for them, and none are found.
    explicit SavedSamples(const QString& path, QObject* parent = nullptr);

    /// Reads those from one moment to another; `found` follows, for the last call only.
    void read(qint64 from, qint64 to);

    void removeAll();

    /// Takes over what another service has recorded before, where that was not done yet (see
    /// records/FirstWeek.h); `service` is called in the background. `now` is in seconds since 1970.
    void takeOver(const std::function<std::unique_ptr<PowerHistory>()>& service, qint64 now);

Q_SIGNALS:
    /// Those before the moment `ownSince` come from another service's history.
    void found(const std::vector<quindle::Sample>& samples, qint64 ownSince);

    /// Others were recorded since the last ones were read.
    void changed();

    /// One line for the user: why something could not be done, or where a damaged file was put.
    void message(const QString& line);

private:
    void watch();
    void report(const QString& line);

    QString m_path;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
    int m_asked = 0;
    BackgroundWork m_work;
};

} // namespace quindle
