#include "platform/linux/statusitem/WatcherLink.h"

#include <algorithm>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTimer>

#include "platform/linux/session/NameOwner.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logWatcher, "quindle.statusitem.watcher", QtWarningMsg)

constexpr int maximumAttempts = 3;

QString watcherService()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QDBusMessage processOf(const QString& connectionName)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage message = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                                          QStringLiteral("GetConnectionUnixProcessID"));
    message << connectionName;
    return message;
}

QDBusMessage watcherCall(const QString& interface, const QString& method)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        watcherService(), QStringLiteral("/StatusNotifierWatcher"), interface, method);
    // Starting a watcher is the desktop's business.
    message.setAutoStartService(false);
    return message;
}

HostProcess processWithId(uint pid)
{
    const QString folder = QStringLiteral("/proc/%1/").arg(pid);
    HostProcess process;
    process.program = QFileInfo(QFile::symLinkTarget(folder + QStringLiteral("exe"))).fileName();
    // A program that was updated while it runs.
    process.program.remove(QStringLiteral(" (deleted)"));
    QFile arguments(folder + QStringLiteral("cmdline"));
    if (arguments.open(QIODevice::ReadOnly))
        process.commandLine = QString::fromLocal8Bit(arguments.read(4096).replace('\0', ' ')).trimmed();
    return process;
}

} // namespace

bool listsItemOf(const QString& uniqueName, const QStringList& items)
{
    return std::any_of(items.begin(), items.end(), [&uniqueName](const QString& item) {
        if (!item.startsWith(uniqueName))
            return false;
        const QString rest = item.mid(uniqueName.size());
        return rest.isEmpty() || rest.startsWith(QLatin1Char('/')) || rest.startsWith(QLatin1Char('@'));
    });
}

WatcherLink::WatcherLink(QDBusConnection bus, QString itemPath, std::chrono::milliseconds checkDelay,
                         RunLoop& runLoop, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
    , m_itemPath(std::move(itemPath))
    , m_checkDelay(checkDelay)
    , m_changes(runLoop, 0, [this] { answerOwner(); })
{
}

void WatcherLink::start()
{
    if (!m_bus.isConnected()) {
        answerOwner();
        return;
    }
    const auto changed = [this](const QString& owner) {
        m_owner = owner;
        m_changes.request();
    };
    new NameOwner(m_bus, watcherService(), changed, this);
}

// Even when the owner is the same as last time: it left in between, and has forgotten its items.
void WatcherLink::answerOwner()
{
    ++m_round;
    if (m_owner.isEmpty())
        Q_EMIT watcherLost();
    else
        askProcess();
}

void WatcherLink::askProcess()
{
    call(processOf(m_owner), [this](const QDBusMessage& answer) {
        const uint pid = answer.arguments().value(0).toUInt();
        // The process may be gone by now; an unknown host is a square one.
        const bool answered = answer.type() == QDBusMessage::ReplyMessage && pid != 0;
        Q_EMIT watcherFound(answered ? processWithId(pid) : HostProcess());
    });
}

void WatcherLink::registerItem()
{
    sendRegistration(1);
}

void WatcherLink::sendRegistration(int attempt)
{
    QDBusMessage message = watcherCall(watcherService(), QStringLiteral("RegisterStatusNotifierItem"));
    // By path: with a name of its own, one host loses items now and then.
    message << m_itemPath;
    call(message, [this](const QDBusMessage& answer) {
        const QString failure = answer.errorMessage(); // empty after a success
        if (!failure.isEmpty() && failure != m_failure)
            qCWarning(logWatcher) << "registration failed:" << failure;
        m_failure = failure;
    });
    // The answer does not prove that the watcher keeps the item; its list does.
    const auto check = [this, attempt, round = m_round] {
        if (round == m_round)
            checkRegistration(attempt);
    };
    QTimer::singleShot(m_checkDelay, Qt::CoarseTimer, this, check);
}

void WatcherLink::checkRegistration(int attempt)
{
    QDBusMessage message =
        watcherCall(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << watcherService() << QStringLiteral("RegisteredStatusNotifierItems");
    call(message, [this, attempt](const QDBusMessage& answer) {
        // A watcher that does not list its items is trusted.
        if (answer.type() != QDBusMessage::ReplyMessage)
            return;
        const QVariant items = answer.arguments().value(0).value<QDBusVariant>().variant();
        if (listsItemOf(m_bus.baseService(), items.toStringList()))
            return;
        if (attempt < maximumAttempts)
            sendRegistration(attempt + 1);
        else
            qCWarning(logWatcher) << "the watcher does not list the item";
    });
}

void WatcherLink::call(const QDBusMessage& message, const Answered& answered)
{
    auto* pending = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    const auto hear = [this, answered, round = m_round](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        if (round == m_round)
            answered(finished->reply());
    };
    connect(pending, &QDBusPendingCallWatcher::finished, this, hear);
}

} // namespace quindle

#include "moc_WatcherLink.cpp"
