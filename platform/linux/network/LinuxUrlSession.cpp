#include "platform/linux/network/LinuxUrlSession.h"

#include <dlfcn.h>
#include <utility>

#include <QLoggingCategory>
#include <QUrl>

#include "common/Paths.h"
#include "platform/Bundle.h"
#include "platform/linux/network/NetworkModule.h"

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
    // One try per process: a module that failed once fails again, and is logged once.
    m_loaded = true;
    // Never closed: its objects outlive any moment at which it could be.
    void* const module = ::dlopen(pathBytes(m_modulePath).constData(), RTLD_LAZY);
    const auto make =
        module ? reinterpret_cast<MakeUrlSession>(::dlsym(module, makeUrlSessionName)) : nullptr;
    const QString fault = make ? QStringLiteral("%1 is of another version").arg(m_modulePath)
                               : QString::fromLocal8Bit(::dlerror());
    if (make)
        m_session.reset(make(QUINDLE_VERSION));
    if (!m_session)
        qCWarning(networkLog).noquote() << QStringLiteral("no network: ") + fault;
    return m_session.get();
}

} // namespace quindle
