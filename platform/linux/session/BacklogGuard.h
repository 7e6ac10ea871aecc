#pragma once

#include <functional>

#include <QDBusConnection>
#include <QObject>

namespace quindle {

/// Notices when a peer on a bus sends more than this process can handle, or asks and does not read the
/// answers: the queues in the process, on the bus and in between are unbounded. Now and then it sends the bus
/// a question, whose answer comes after everything that is queued, and counts what arrives before it.
class BacklogGuard final : public QObject
{
    Q_OBJECT

public:
    /// A host that reads its answers has a few dozen calls under way, even while it starts.
    static constexpr int mostOnTheWay = 250;

    /// `overrun` is called once for each connection, from the main loop.
    explicit BacklogGuard(std::function<void()> overrun, QObject* parent = nullptr);

    /// Counts the messages for this object, which is offered on the bus or receives its signals. Nothing else
    /// may be queued for it. After an overrun it gets nothing more from that connection.
    void watch(QObject& object);

    /// The connection from now on; counting begins anew. Nothing is passed on from one that is not connected.
    void setBus(const QDBusConnection& bus);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void count();
    void askForSign();

    static constexpr int unasked = 25; ///< messages before the bus is asked

    std::function<void()> m_overrun;
    QDBusConnection m_bus;
    int m_round = 0; ///< counts the connections
    int m_heard = 0; ///< since the last answer, or since the bus was asked again
    bool m_isAsked = false;
    bool m_isDeaf = true; ///< what arrives is dropped
};

} // namespace quindle
