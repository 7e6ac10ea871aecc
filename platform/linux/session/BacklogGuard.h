#pragma once

#include <functional>

#include <QDBusConnection>
#include <QObject>

namespace quindle {

/// Tells when somebody on a bus says more than is taken, or asks and does not take the answers: what waits in
/// the process, on the bus and in between has no bound of its own. Now and then the bus is asked for a sign,
/// which comes behind all that waits, and what is heard meanwhile is counted.
class BacklogGuard final : public QObject
{
    Q_OBJECT

public:
    /// Hosts that read their answers have a few dozen calls on the way, even when they start.
    static constexpr int mostOnTheWay = 250;

    /// `overrun` is called once for each connection, from the main loop.
    explicit BacklogGuard(std::function<void()> overrun, QObject* parent = nullptr);

    /// Counts what this object is told: one that is offered on the bus, or hears signals of it. Nothing else
    /// may be queued for it. After an overrun it is told nothing more of that connection.
    void watch(QObject& object);

    /// The connection from now on; counting begins anew. Of one that is not connected nothing is told on.
    void setBus(const QDBusConnection& bus);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void count();
    void askForSign();

    static constexpr int unasked = 25; ///< what is heard before the bus is asked

    std::function<void()> m_overrun;
    QDBusConnection m_bus;
    int m_round = 0; ///< counts the connections
    int m_heard = 0; ///< since the last sign, or since the bus was asked for the next
    bool m_isAsked = false;
    bool m_isDeaf = true; ///< what comes is dropped
};

} // namespace quindle
