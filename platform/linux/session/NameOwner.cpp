#include "platform/linux/session/NameOwner.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace quindle {

NameOwner::NameOwner(const QDBusConnection& bus, const QString& name, Changed changed, QObject* parent)
    : QObject(parent)
    , m_changed(std::move(changed))
{
    // Watched before it is asked for, so that no change is missed.
    auto* watcher = new QDBusServiceWatcher(name, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { setOwner(owner); });
    const QString busName = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage question = QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"),
                                                           busName, QStringLiteral("GetNameOwner"));
    question << name;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] { hearAnswer(*answer); });
}

void NameOwner::hearAnswer(QDBusPendingCallWatcher& answer)
{
    answer.deleteLater();
    // A name without an owner is answered by an error.
    const QDBusPendingReply<QString> owner = answer;
    // A change that arrived before the answer is newer.
    if (!m_isKnown)
        setOwner(owner.isValid() ? owner.value() : QString());
}

void NameOwner::setOwner(const QString& owner)
{
    if (m_isKnown && owner == m_owner)
        return;
    m_isKnown = true;
    m_owner = owner;
    m_changed(owner);
}

} // namespace quindle

#include "moc_NameOwner.cpp"
