#include "tests/support/MessageBus.h"

#include <stdexcept>

#include <QFile>
#include <QTextStream>

namespace quindle {

MessageBus::MessageBus(const QString& type)
{
    QFile configuration(configurationFile());
    if (!configuration.open(QIODevice::WriteOnly))
        throw std::runtime_error("the configuration of a message bus cannot be written");
    QTextStream(&configuration) << QStringLiteral(
                                       "<busconfig><type>%1</type><listen>%2</listen>"
                                       "<policy context=\"default\"><allow send_destination=\"*\"/>"
                                       "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy>"
                                       "</busconfig>")
                                       .arg(type, address());
}

MessageBus::~MessageBus()
{
    stop();
}

void MessageBus::start()
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--config-file=") + configurationFile(), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address")});
    if (!m_daemon.waitForReadyRead(60'000))
        throw std::runtime_error("no message bus: is dbus-daemon installed?");
    m_daemon.readAll();
}

void MessageBus::stop()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
    QFile::remove(socket());
}

QString MessageBus::address() const
{
    return QStringLiteral("unix:path=") + socket();
}

QString MessageBus::socket() const
{
    return m_folder.filePath(QStringLiteral("bus"));
}

QString MessageBus::configurationFile() const
{
    return m_folder.filePath(QStringLiteral("bus.conf"));
}

} // namespace quindle
