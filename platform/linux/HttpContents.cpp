#include "platform/linux/HttpContents.h"

#include <memory>

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThread>
#include <QTimer>
#include <QUrl>

namespace quindle {

namespace {

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quindle-Helper"));
    request.setRawHeader("Accept-Language", "en"); // otherwise the user's language would be told
    return request;
}

/// One exchange on the loop of the present thread.
std::optional<QByteArray> exchange(const QUrl& url, const HttpLimits& limits)
{
    QEventLoop loop;
    QTimer::singleShot(limits.time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(requestFor(url)));
    // So much is held at once, whatever the server sends.
    reply->setReadBufferSize(limits.size + 1);
    QByteArray body;
    const auto take = [&] {
        body += reply->read(limits.size + 1 - body.size());
        if (body.size() > limits.size)
            loop.quit();
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    if (!reply->isFinished() || reply->error() != QNetworkReply::NoError)
        return std::nullopt;
    take();
    if (body.size() > limits.size)
        return std::nullopt;
    return body;
}

} // namespace

std::optional<QByteArray> httpContents(const QString& url, const HttpLimits& limits)
{
    const QUrl address(url);
    if (address.scheme() != u"http" || address.host().isEmpty())
        return std::nullopt;
    std::optional<QByteArray> contents;
    const std::unique_ptr<QThread> worker(QThread::create([&] { contents = exchange(address, limits); }));
    worker->start();
    worker->wait();
    return contents;
}

} // namespace quindle
