#include "platform/linux/LinuxUrlSession.h"

#include <utility>

#include <QLibrary>
#include <QLoggingCategory>
#include <QUrl>

#include "platform/Bundle.h"
#include "platform/linux/HttpContents.h"
#include "platform/linux/Poster.h"

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
    if (QUrl(url).host().isEmpty())
        return;
    if (!m_loaded)
        load();
    if (m_poster)
        m_poster->post(url, body, std::move(answered));
}

std::optional<QByteArray> LinuxUrlSession::contents(const QString& url)
{
    return httpContents(url);
}

void LinuxUrlSession::load()
{
    m_loaded = true;
    QLibrary module(m_modulePath);
    using MakePoster = Poster* (*)();
    const auto make = reinterpret_cast<MakePoster>(module.resolve("quindleMakePoster"));
    if (make)
        m_poster.reset(make());
    else
        qCWarning(networkLog).noquote() << QStringLiteral("nothing can be sent: ") + module.errorString();
}

} // namespace quindle
