#pragma once

#include <stdexcept>

#include <QProcess>
#include <QString>
#include <QStringList>

namespace quindle {

/// Runs http_server.py while it lives.
class HttpServer
{
public:
    HttpServer()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(QUINDLE_PYTHON), {QStringLiteral(QUINDLE_HTTP_SERVER)});
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(20000))
                throw std::runtime_error("the server does not start");
        m_port = m_process.readLine().trimmed().toInt();
    }

    ~HttpServer()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    QString host() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
    QString address(const char* path) const
    {
        return QStringLiteral("http://") + host() + QLatin1String(path);
    }

private:
    QProcess m_process;
    int m_port = 0;
};

} // namespace quindle
