#include "platform/linux/LinuxUrlSession.h"

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

LinuxUrlSession::~LinuxUrlSession() = default;

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

UrlSession* LinuxUrlSession::sessionFor(const QString& url)
{
    if (QUrl(url).host().isEmpty())
        return nullptr;
    if (!m_loaded)
        load();
    return m_session.get();
}

void LinuxUrlSession::load()
{
    m_loaded = true;
    QLibrary module(m_modulePath);
    using MakeSession = UrlSession* (*)();
    const auto make = reinterpret_cast<MakeSession>(module.resolve("quindleNetworkSession"));
    if (make)
        m_session.reset(make());
    else
        qCWarning(networkLog).noquote() << QStringLiteral("nothing can be sent: ") + module.errorString();
}

} // namespace quindle
