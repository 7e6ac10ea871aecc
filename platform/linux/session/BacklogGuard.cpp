#include "platform/linux/session/BacklogGuard.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEvent>

namespace quindle {

BacklogGuard::BacklogGuard(std::function<void()> overrun, QObject* parent)
    : QObject(parent)
    , m_overrun(std::move(overrun))
    , m_bus(QString())
{
}

void BacklogGuard::watch(QObject& object)
{
    object.installEventFilter(this);
}

void BacklogGuard::setBus(const QDBusConnection& bus)
{
    m_bus = bus;
    ++m_round;
    m_heard = 0;
    m_isAsked = false;
    m_isDeaf = !bus.isConnected();
}

bool BacklogGuard::eventFilter(QObject* /*watched*/, QEvent* event)
{
    // The library delivers each call and signal to the main thread in such an event.
    if (event->type() == QEvent::MetaCall && !m_isDeaf)
        count();
    // Dropped here, before the library unpacks it: a flood must cost nothing any more.
    return event->type() == QEvent::MetaCall && m_isDeaf;
}

void BacklogGuard::count()
{
    ++m_heard;
    if (!m_isAsked && m_heard >= unasked)
        askForSign();
    // An honest peer has dozens of calls under way, a flood thousands.
    if (m_heard <= mostOnTheWay)
        return;
    m_isDeaf = true;
    // Later: an object is not taken off the bus while a message is delivered to it.
    const auto report = [this, round = m_round] {
        if (round == m_round)
            m_overrun();
    };
    QMetaObject::invokeMethod(this, report, Qt::QueuedConnection);
}

void BacklogGuard::askForSign()
{
    m_isAsked = true;
    m_heard = 0;
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    const QDBusMessage question = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"),
                                                                 bus, QStringLiteral("GetId"));
    auto* sign = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(sign, &QDBusPendingCallWatcher::finished, this, [this, sign, round = m_round] {
        sign->deleteLater();
        if (round != m_round)
            return;
        m_isAsked = false;
        m_heard = 0;
    });
}

} // namespace quindle

#include "moc_BacklogGuard.cpp"
