#pragma once

#include <vector>

#include <QObject>

#include "application/pages/BackgroundWork.h"
#include "samples/Sample.h"

namespace quindle {

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

Q_SIGNALS:
    void found(const std::vector<quindle::Sample>& samples);

    /// One line for the user: why something could not be done.
    void told(const QString& line);

private:
    QString m_path;
    int m_asked = 0;
    BackgroundWork m_work;
};

} // namespace quindle
