#pragma once

#include <functional>

#include <QDBusConnection>
#include <QObject>

namespace quindle {

/// A connection to a message bus that comes back. It is the one that the whole process shares; when that is
/// lost, connections of its own follow, tried after a pause, then ever more slowly up to every 5 minutes. A
/// bus that was never there is not tried again. Main thread only.
class BusLink : public QObject
{
    Q_OBJECT

public:
    static constexpr int usualPause = 10'000;

    /// The first try after a loss comes after `firstPause` milliseconds.
    explicit BusLink(QDBusConnection::BusType type, int firstPause = usualPause);
    ~BusLink() override;

    /// Connects, and calls `subscribe` with each connection that is made, now and later. Without a bus one
    /// line is logged.
    void open(std::function<void(QDBusConnection&)> subscribe);

    /// The present connection; one that is not connected when there is none.
    QDBusConnection connection() const { return m_connection; }

private Q_SLOTS:
    void onDisconnected();

private:
    bool take(const QDBusConnection& connection);
    void reconnect();
    void closeOwn();

    QDBusConnection::BusType m_type;
    QDBusConnection m_connection;
    QString m_ownName;
    bool m_triedOwn = false;
    int m_firstPause;
    int m_pause = 0;
    std::function<void(QDBusConnection&)> m_subscribe;
};

} // namespace quindle
