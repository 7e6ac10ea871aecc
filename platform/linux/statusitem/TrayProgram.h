#pragma once

#include <chrono>
#include <functional>

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QTimer>

#include "platform/linux/os/MonotonicClock.h"

class QProcess;

namespace quindle {

/// The program that holds the item's icon in an X11 tray, and the connection to it: it prints where it
/// listens. It ends itself when the connection is closed, with this object or this process.
class TrayProgram final : public QObject
{
    Q_OBJECT

public:
    /// `program` is an absolute path. `connected` is called with the connection to it, and with an
    /// unconnected one when it is gone. A program that has not answered within the patience is killed, and
    /// started again later. Main thread only.
    TrayProgram(QString program, std::function<void(const QDBusConnection&)> connected,
                MonotonicClock clock = timeSinceBoot,
                std::chrono::milliseconds patience = std::chrono::seconds(10));
    ~TrayProgram() override;

    /// Whether it should be started: it does not run, and has not failed a moment ago.
    bool isWanted() const;

    bool isRunning() const { return m_process != nullptr; }

    /// Starts it if it is wanted. A failure is logged once, and again only after a run that lasted.
    void start();

Q_SIGNALS:
    /// It has ended and is wanted again now.
    void wanted();

private:
    void connectToIt();
    void waitForAnswer(const QDBusConnection& peer);
    void giveUp();
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
    QTimer m_patience;             ///< while it has not answered
    QProcess* m_process = nullptr; ///< null while it does not run
};

} // namespace quindle
