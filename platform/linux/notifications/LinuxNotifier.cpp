#include "platform/linux/notifications/LinuxNotifier.h"

#include <utility>

#include <QDBusPendingCallWatcher>
#include <QLoggingCategory>
#include <QStringList>
#include <QVariantMap>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(notifierLog, "quindle.warnings")

constexpr int patienceAtEnd = 500; // milliseconds
constexpr int asTheServerLikes = -1;
constexpr int forEver = 0;

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalNumber = QStringLiteral("battery-warning");

QDBusMessage serviceCall(const QString& server, const QString& method)
{
    return QDBusMessage::createMethodCall(server, QStringLiteral("/org/freedesktop/Notifications"),
                                          serviceName, method);
}

QDBusMessage portalCall(const QString& method)
{
    return QDBusMessage::createMethodCall(portalName, QStringLiteral("/org/freedesktop/portal/desktop"),
                                          QStringLiteral("org.freedesktop.portal.Notification"), method);
}

QVariantMap hintsOf(const Notification& notification)
{
    return {{QStringLiteral("urgency"), QVariant::fromValue(static_cast<uchar>(notification.urgency))},
            {QStringLiteral("category"), QStringLiteral("device")},
            {QStringLiteral("desktop-entry"), QStringLiteral("quindle")}};
}

QVariantMap portalValuesOf(const Notification& notification)
{
    const QStringList priorities{QStringLiteral("low"), QStringLiteral("normal"), QStringLiteral("urgent")};
    return {{QStringLiteral("title"), notification.title},
            {QStringLiteral("body"), notification.text},
            {QStringLiteral("priority"), priorities.value(static_cast<int>(notification.urgency))}};
}

bool isAnswer(const QDBusMessage& message)
{
    return message.type() == QDBusMessage::ReplyMessage;
}

} // namespace

LinuxNotifier::LinuxNotifier()
    : m_bus(QDBusConnection::SessionBus, QStringLiteral("quindle-notifier"))
{
}

void LinuxNotifier::show(const Notification& notification)
{
    m_wanted = notification;
    m_hasNews = true;
    doNext();
}

void LinuxNotifier::withdraw()
{
    m_wanted.reset();
    m_hasNews = true;
    doNext();
}

void LinuxNotifier::finish()
{
    m_wanted.reset();
    forgetOnAnotherBus();
    // Waited for: after the end nobody could close it.
    if (m_place != Place::Nowhere)
        m_bus.connection().call(withdrawalCall(), QDBus::Block, patienceAtEnd);
    forget();
}

void LinuxNotifier::doNext()
{
    if (m_isCalling || !std::exchange(m_hasNews, false))
        return;
    forgetOnAnotherBus();
    if (m_wanted)
        // Where the last one is, so that a newer one replaces it.
        showIn(m_place == Place::Portal ? Place::Portal : Place::Service);
    else if (m_place != Place::Nowhere)
        call(withdrawalCall(), &LinuxNotifier::hearWithdrawal);
}

void LinuxNotifier::showIn(Place place)
{
    if (place == Place::Service) {
        call(showCall(), &LinuxNotifier::hearService);
        return;
    }
    QDBusMessage message = portalCall(QStringLiteral("AddNotification"));
    message << portalNumber << portalValuesOf(*m_wanted);
    call(message, &LinuxNotifier::hearPortal);
}

QDBusMessage LinuxNotifier::showCall() const
{
    // Most servers close a warning after some seconds, when nobody may have seen it.
    const bool staysShown = m_wanted->urgency == Notification::Urgency::Critical;
    QDBusMessage message = serviceCall(m_server.isEmpty() ? serviceName : m_server, QStringLiteral("Notify"));
    message << QStringLiteral("Quindle") << m_number << m_wanted->iconName << m_wanted->title
            << m_wanted->text << QStringList() << hintsOf(*m_wanted)
            << (staysShown ? forEver : asTheServerLikes);
    return message;
}

QDBusMessage LinuxNotifier::withdrawalCall() const
{
    if (m_place == Place::Portal)
        return portalCall(QStringLiteral("RemoveNotification")) << portalNumber;
    return serviceCall(m_server, QStringLiteral("CloseNotification")) << m_number;
}

void LinuxNotifier::call(const QDBusMessage& message, void (LinuxNotifier::*answered)(const QDBusMessage&))
{
    m_isCalling = true;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.connection().asyncCall(message), this);
    const auto hear = [this, watcher, answered] {
        watcher->deleteLater();
        m_isCalling = false;
        (this->*answered)(watcher->reply());
        doNext();
    };
    // Without a bus it is finished at once, without a signal.
    if (watcher->isFinished())
        QMetaObject::invokeMethod(this, hear, Qt::QueuedConnection);
    else
        connect(watcher, &QDBusPendingCallWatcher::finished, this, hear);
}

void LinuxNotifier::hearService(const QDBusMessage& answer)
{
    if (isAnswer(answer) && answer.signature() == QStringLiteral("u")) {
        m_place = Place::Service;
        // By its unique name: the number means nothing to another server.
        m_server = answer.service();
        m_number = answer.arguments().constFirst().toUInt();
        m_busNumber = m_bus.number();
        m_hasReported = false;
        return;
    }
    const bool serverHasGone = !m_server.isEmpty();
    forget();
    // Something else is wanted by now: the next call begins with the service again.
    if (m_hasNews || !m_wanted)
        return;
    showIn(serverHasGone ? Place::Service : Place::Portal);
}

void LinuxNotifier::hearPortal(const QDBusMessage& answer)
{
    forget();
    if (isAnswer(answer)) {
        m_place = Place::Portal;
        m_busNumber = m_bus.number();
        m_hasReported = false;
        return;
    }
    if (!std::exchange(m_hasReported, true))
        qCWarning(notifierLog).noquote()
            << QStringLiteral("no service shows notifications: %1").arg(answer.errorMessage());
}

void LinuxNotifier::hearWithdrawal(const QDBusMessage& /*answer*/)
{
    forget();
}

/// There the same unique name may be another server's, or any program's.
void LinuxNotifier::forgetOnAnotherBus()
{
    m_bus.connection();
    if (m_bus.number() != m_busNumber)
        forget();
}

void LinuxNotifier::forget()
{
    m_place = Place::Nowhere;
    m_server.clear();
    m_number = 0;
}

} // namespace quindle

#include "moc_LinuxNotifier.cpp"
