#pragma once

#include <chrono>
#include <functional>

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include "platform/linux/os/MonotonicClock.h"

class QProcess;

namespace quindle {

/// The program that holds the item's icon in an X11 tray, and the connection to it: it says on its standard
/// output where it listens. It ends itself when the connection is closed, by this object's end or by this
/// process's.
class TrayProgram final : public QObject
{
    Q_OBJECT

public:
    /// `program` is an absolute path. `connected` is called with the connection to it, and when it has gone
    /// with one that is not connected. Main thread only.
    TrayProgram(QString program, std::function<void(const QDBusConnection&)> connected,
                MonotonicClock clock = timeSinceBoot);
    ~TrayProgram() override;

    /// Whether it should be started: it does not run, and has not failed a moment ago.
    bool isWanted() const;

    /// Starts it if it is wanted. That it fails is logged once, and again only after it has stayed.
    void start();

Q_SIGNALS:
    /// It has ended and is wanted again now.
    void wanted();

private:
    void connectToIt();
    void disconnectFromIt();
    void handleFailedStart();
    void handleEnd();
    void log(const QString& line);

    QString m_program;
    std::function<void(const QDBusConnection&)> m_connected;
    MonotonicClock m_clock;
    std::chrono::milliseconds m_started{};
    std::chrono::milliseconds m_pauseEnds{};
    int m_failures = 0;
    bool m_isLogged = false;
    QProcess* m_process = nullptr; ///< null while it does not run
};

} // namespace quindle
