#include "platform/linux/statusitem/TrayProgram.h"

#include <utility>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QLoggingCategory>
#include <QProcess>
#include <QTimer>

#include "platform/linux/statusitem/TrayRestart.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logTray, "quindle.statusitem.tray", QtWarningMsg)

/// Time for a program without a connection to end itself.
constexpr std::chrono::seconds timeToEnd(5);

QProcessEnvironment environment()
{
    QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    // The login item alone decides what runs in the next session, and windows are not its business.
    for (const char* variable : {"SESSION_MANAGER", "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"})
        own.remove(QLatin1String(variable));
    return own;
}

const QString peerName = QStringLiteral("quindle-tray");

/// Lets a program that has lost its connection end itself, and kills one that does not.
void leaveAlone(QProcess* process)
{
    process->disconnect();
    process->setParent(QCoreApplication::instance());
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QTimer::singleShot(timeToEnd, process, &QProcess::kill);
}

} // namespace

TrayProgram::TrayProgram(QString program, std::function<void(const QDBusConnection&)> connected,
                         MonotonicClock clock, std::chrono::milliseconds patience)
    : m_program(std::move(program))
    , m_connected(std::move(connected))
    , m_clock(std::move(clock))
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    m_patience.callOnTimeout(this, &TrayProgram::giveUp);
}

TrayProgram::~TrayProgram()
{
    if (m_process)
        leaveAlone(m_process);
    disconnectFromIt();
}

bool TrayProgram::isWanted() const
{
    return !m_process && m_clock() >= m_pauseEnds;
}

void TrayProgram::start()
{
    if (!isWanted())
        return;
    m_started = m_clock();
    m_process = new QProcess(this);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            handleFailedStart();
    });
    connect(m_process, &QProcess::finished, this, &TrayProgram::handleEnd);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &TrayProgram::connectToIt);
    m_process->setProcessEnvironment(environment());
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_patience.start();
    m_process->start(m_program, {QStringLiteral("--tray")});
}

void TrayProgram::connectToIt()
{
    if (!m_process->canReadLine())
        return;
    const QString address = QString::fromLatin1(m_process->readLine()).trimmed();
    m_process->closeReadChannel(QProcess::StandardOutput);
    const auto peer = QDBusConnection::connectToPeer(address, peerName);
    if (!peer.isConnected()) {
        m_process->kill();
        return;
    }
    m_connected(peer);
    waitForAnswer(peer);
}

/// A socket accepts connections even for a stopped program.
void TrayProgram::waitForAnswer(const QDBusConnection& peer)
{
    const QDBusMessage ping = QDBusMessage::createMethodCall(
        QString(), QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    auto* answer = new QDBusPendingCallWatcher(peer.asyncCall(ping), m_process);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        if (!finished->isError())
            m_patience.stop();
    });
}

/// Its display's server may hang before it has a window, for example.
void TrayProgram::giveUp()
{
    log(QStringLiteral("%1 does not answer: it is ended, and started again later").arg(m_program));
    m_process->kill();
}

void TrayProgram::disconnectFromIt()
{
    m_connected(QDBusConnection(QString()));
    QDBusConnection::disconnectFromPeer(peerName);
}

void TrayProgram::handleFailedStart()
{
    log(QStringLiteral("the item is in no X11 tray: %1: %2").arg(m_program, m_process->errorString()));
    handleEnd();
}

void TrayProgram::handleEnd()
{
    m_patience.stop();
    std::exchange(m_process, nullptr)->deleteLater();
    disconnectFromIt();
    m_failures = failuresAfter(m_failures, m_clock() - m_started);
    m_pauseEnds = m_clock() + pauseAfter(m_failures);
    if (m_failures == 0)
        m_isLogged = false;
    if (logsFailure(m_failures))
        log(QStringLiteral("%1 ends again and again; it is restarted less and less often").arg(m_program));
    if (isWanted())
        Q_EMIT wanted();
}

void TrayProgram::log(const QString& line)
{
    if (!std::exchange(m_isLogged, true))
        qCWarning(logTray).noquote() << line;
}

} // namespace quindle

#include "moc_TrayProgram.cpp"
