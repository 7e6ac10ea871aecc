#pragma once

#include <functional>
#include <memory>

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QTimer>

class QFileSystemWatcher;

namespace quindle {

/// A connection to a message bus that comes back. While there is none, before the bus first came or after it
/// was lost, it is tried again as soon as a new socket appears where the bus is expected, and also after a
/// pause that doubles up to 5 minutes. Main thread only.
class BusLink : public QObject
{
    Q_OBJECT

public:
    static constexpr int usualPause = 10'000;

    /// Identifies the socket at a path: its inode, and when that was last changed; zeros for none.
    struct Socket
    {
        quint64 inode = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        friend bool operator==(const Socket&, const Socket&) = default;
    };

    /// Begins with the connection that the whole process shares; when that is not available or lost,
    /// connections of its own follow. The first try comes after `firstPause` milliseconds.
    explicit BusLink(QDBusConnection::BusType type, int firstPause = usualPause, QObject* parent = nullptr);

    /// Shares its connections with nobody; they are named `ownName`.
    BusLink(QDBusConnection::BusType type, QString ownName, int firstPause = usualPause,
            QObject* parent = nullptr);
    ~BusLink() override;

    /// Lets `open` begin with the connection that the whole process shares, and log nothing, because that
    /// connection's other link does.
    void followShared();

    /// Connects, and calls `subscribe` with each connection that is made, now and later, and `lost` when one
    /// is lost. Without a bus one line is logged.
    void open(std::function<void(QDBusConnection&)> subscribe, std::function<void()> lost = {});

    /// Closes the connection because a peer abuses it; it must not be the shared one. It counts as lost, and
    /// is made again after the first pause.
    void drop();

    /// The present connection; one that is not connected when there is none.
    QDBusConnection connection() const { return m_connection; }

private Q_SLOTS:
    void onDisconnected();

private:
    QDBusConnection firstConnection();
    bool take(const QDBusConnection& connection);
    void waitForBus(int pause);
    void watchSocketFolder();
    void lookAtSocket();
    void reconnect();
    void closeOwn();

    QDBusConnection::BusType m_type;
    QDBusConnection m_connection;
    QString m_ownName;
    bool m_startsShared;
    bool m_logs = true;
    bool m_triedOwn = false;
    int m_firstPause;
    QTimer m_retry;
    QString m_socket;
    Socket m_socketTried; ///< at the last try
    std::unique_ptr<QFileSystemWatcher> m_folderWatcher;
    std::function<void(QDBusConnection&)> m_subscribe;
    std::function<void()> m_lost;
};

/// The address of a bus: what the environment says, else its usual place. Empty for a session bus that
/// nothing names.
QString busAddress(QDBusConnection::BusType type);

/// The socket file of an address; empty when it names none (an abstract socket, another transport).
QString busSocketFile(const QString& address);

} // namespace quindle
