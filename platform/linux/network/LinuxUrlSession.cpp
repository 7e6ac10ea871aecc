#include "platform/linux/network/LinuxUrlSession.h"

#include <utility>

#include <QLibrary>
#include <QLoggingCategory>
#include <QUrl>

#include "platform/Bundle.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(networkLog, "quindle.network")

} // namespace

QString networkModule(const Bundle& programBundle)
{
    return programBundle.path() + QStringLiteral("/Contents/PlugIns/quindle-network.so");
}

LinuxUrlSession::LinuxUrlSession(QString modulePath)
    : m_modulePath(std::move(modulePath))
{
}

void LinuxUrlSession::post(const QString& url, const QByteArray& body,
                           std::function<void(int status, const QByteArray& body)> answered)
{
    if (UrlSession* session = sessionFor(url))
        session->post(url, body, std::move(answered));
}

std::optional<QByteArray> LinuxUrlSession::contents(const QString& url)
{
    UrlSession* session = sessionFor(url);
    return session ? session->contents(url) : std::nullopt;
}

/// None without a host: as built no host is configured, and nothing is loaded.
UrlSession* LinuxUrlSession::sessionFor(const QString& url)
{
    if (QUrl(url).host().isEmpty() || m_loaded)
        return m_session.get();
    m_loaded = true;
    QLibrary module(m_modulePath);
    using MakeUrlSession = UrlSession* (*)();
    const auto make = reinterpret_cast<MakeUrlSession>(module.resolve("quindleMakeUrlSession"));
    if (make)
        m_session.reset(make());
    else
        qCWarning(networkLog).noquote() << QStringLiteral("no network: ") + module.errorString();
    return m_session.get();
}

} // namespace quindle
