#include "platform/linux/network/LinuxUrlSession.h"

#include <dlfcn.h>
#include <utility>

#include <QLoggingCategory>
#include <QUrl>

#include "common/Paths.h"
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
    using MakeUrlSession = UrlSession* (*)();
    // Never closed: what it made outlives any moment at which it could be.
    void* const module = ::dlopen(pathBytes(m_modulePath).constData(), RTLD_LAZY);
    const auto make =
        module ? reinterpret_cast<MakeUrlSession>(::dlsym(module, "quindleMakeUrlSession")) : nullptr;
    if (make)
        m_session.reset(make());
    else
        qCWarning(networkLog).noquote()
            << QStringLiteral("no network: ") + QString::fromLocal8Bit(::dlerror());
    return m_session.get();
}

} // namespace quindle
