#include "platform/linux/session/InstanceBusName.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include "platform/linux/session/ActivationToken.h"

namespace quindle {

namespace {

const QString tokenKey = QStringLiteral("activation-token");

// Without queueing: a process that waits in line for the name would start later, unasked.
constexpr uint doNotQueue = 4;
constexpr uint nameIsOthers = 3;
constexpr int answerPatience = 4000; // milliseconds

QDBusMessage busCall(const QString& method, const QVariantList& arguments)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage call =
        QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage requestName(const InstanceName& name)
{
    return busCall(QStringLiteral("RequestName"), {name.bus, doNotQueue});
}

/// Gives no reason where the owner has ended in the meantime.
QDBusMessage activateOwner(const QDBusConnection& connection, const InstanceName& name)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        name.bus, name.path, QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    // The bus must not start a third process for the call.
    call.setAutoStartService(false);
    QVariantMap platformData;
    if (const QByteArray token = activationTokenOfProcess(); !token.isEmpty())
        platformData.insert(tokenKey, QString::fromUtf8(token));
    call << platformData;
    return connection.call(call, QDBus::Block, answerPatience);
}

bool hasGone(const QDBusMessage& answer)
{
    const QDBusError::ErrorType type = QDBusError(answer).type();
    return type == QDBusError::ServiceUnknown ||
           answer.errorName() == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner");
}

QString silentOwner(const QDBusConnection& connection, const InstanceName& instance)
{
    const QDBusMessage process =
        connection.call(busCall(QStringLiteral("GetConnectionUnixProcessID"), {instance.bus}));
    const uint id = process.arguments().value(0).toUInt();
    const QString name = id == 0 ? QString() : QStringLiteral(", process %1,").arg(id);
    return QStringLiteral("another one%1 runs in this session but does not answer").arg(name);
}

} // namespace

ApplicationAdaptor::ApplicationAdaptor(QObject* object, Activated activated)
    : QDBusAbstractAdaptor(object)
    , m_activated(std::move(activated))
{
}

void ApplicationAdaptor::Activate(const QVariantMap& platformData)
{
    // Afterwards: the other start waits for the answer to its call.
    const auto activate = [this, token = platformData.value(tokenKey).toString().toUtf8()] {
        m_activated(token);
    };
    QMetaObject::invokeMethod(this, activate, Qt::QueuedConnection);
}

InstanceBusName::InstanceBusName(InstanceName name, QObject* parent)
    : QObject(parent)
    , m_name(std::move(name))
    , m_link(QDBusConnection::SessionBus, QStringLiteral("quindle-instance"))
    , m_guard([this] { pauseAnswers(); })
{
    m_link.followShared();
    m_guard.watch(*this);
    new ApplicationAdaptor(this, [this](const QByteArray& token) { show(token); });
}

void InstanceBusName::show(const QByteArray& activationToken) const
{
    const ActivationToken used(activationToken);
    if (m_showRequested)
        m_showRequested();
}

std::optional<StartAnswer> InstanceBusName::start()
{
    m_link.open([this](QDBusConnection& connection) { offer(connection); });
    m_isStarted = true;
    if (!m_link.connection().isConnected())
        return std::nullopt;
    return startOn(m_link.connection());
}

/// Before the name is taken, so that a process that finds it taken also finds the object to call.
void InstanceBusName::offer(QDBusConnection& connection)
{
    answerCalls(connection);
    if (m_isStarted)
        takeLater(connection);
}

void InstanceBusName::answerCalls(QDBusConnection& connection)
{
    m_guard.setBus(connection);
    connection.registerObject(m_name.path, this, QDBusConnection::ExportAdaptors);
}

void InstanceBusName::pauseAnswers()
{
    m_link.connection().unregisterObject(m_name.path);
    QTimer::singleShot(BusLink::usualPause, this, [this] {
        QDBusConnection present = m_link.connection();
        answerCalls(present);
    });
}

std::optional<StartAnswer> InstanceBusName::startOn(const QDBusConnection& connection) const
{
    for (;;) {
        const QDBusMessage answer = connection.call(requestName(m_name));
        if (answer.type() != QDBusMessage::ReplyMessage)
            return std::nullopt;
        if (answer.arguments().value(0).toUInt() != nameIsOthers)
            return StartAnswer{};
        const QDBusMessage activated = activateOwner(connection, m_name);
        if (activated.type() == QDBusMessage::ReplyMessage)
            return StartAnswer{StartAnswer::Outcome::AnotherWoken, {}};
        // The owner ended between the two calls; the name is free, or the next one's.
        if (!hasGone(activated))
            return StartAnswer{StartAnswer::Outcome::GivenUp, silentOwner(connection, m_name)};
    }
}

void InstanceBusName::takeLater(const QDBusConnection& connection)
{
    auto* taking = new QDBusPendingCallWatcher(connection.asyncCall(requestName(m_name)), this);
    connect(taking, &QDBusPendingCallWatcher::finished, this, [this, taking] {
        const QDBusPendingReply<uint> reply = *taking;
        taking->deleteLater();
        if (reply.isValid() && reply.value() == nameIsOthers && m_takenByAnother)
            m_takenByAnother();
    });
}

} // namespace quindle

#include "moc_InstanceBusName.cpp"
