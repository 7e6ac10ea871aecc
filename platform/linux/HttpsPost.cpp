#include "platform/linux/HttpsPost.h"

#include <utility>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace quindle {

namespace {

/// Errors above these are the server's own words; those below say that no complete answer came.
bool isAnswered(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::NoError ||
           (error >= QNetworkReply::ContentAccessDenied && error != QNetworkReply::ProtocolFailure);
}

} // namespace

HttpsPost::HttpsPost(HttpsLimits limits)
    : m_limits(limits)
{
}

HttpsPost::HttpsPost(HttpsLimits limits, const QSslConfiguration& configuration)
    : m_limits(limits)
    , m_configuration(configuration)
{
}

HttpsPost::~HttpsPost() = default;

QNetworkRequest HttpsPost::requestFor(const QUrl& url, qsizetype length) const
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::ContentLengthHeader, length);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quindle-Helper"));
    request.setRawHeader("Accept-Language", "en"); // otherwise the user's language would be told
    if (m_configuration)
        request.setSslConfiguration(*m_configuration);
    return request;
}

void HttpsPost::post(const QString& url, const QByteArray& body,
                     std::function<void(int status, const QByteArray& body)> answered)
{
    const QUrl address(url);
    if (address.scheme() != u"https" || address.host().isEmpty())
        return;
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    // Not its post(), which would add a content type.
    QNetworkReply* reply = m_manager->sendCustomRequest(requestFor(address, body.size()), "POST", body);
    const qint64 largest = m_limits.size;
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, largest] {
        if (reply->bytesAvailable() > largest)
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply, answered = std::move(answered)] {
        reply->deleteLater();
        const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        if (status.isValid() && isAnswered(reply->error()))
            answered(status.toInt(), reply->readAll());
    });
    QTimer::singleShot(m_limits.time, reply, &QNetworkReply::abort);
}

} // namespace quindle
