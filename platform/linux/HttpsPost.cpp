#include "platform/linux/HttpsPost.h"

#include <algorithm>
#include <utility>

#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace quindle {

namespace {

/// A body that can be read once only. From one that can be read again the network library repeats the whole
/// request, several times, when a server ends the connection without an answer.
class BodyReadOnce : public QIODevice
{
public:
    BodyReadOnce(QByteArray body, QObject* parent)
        : QIODevice(parent)
        , m_body(std::move(body))
    {
        open(ReadOnly | Unbuffered);
    }

    bool isSequential() const override { return true; }
    bool reset() override { return false; }
    bool atEnd() const override { return m_position == m_body.size(); }
    qint64 bytesAvailable() const override { return m_body.size() - m_position; }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const qint64 length = std::min(maxSize, bytesAvailable());
        std::copy_n(m_body.constData() + m_position, length, data);
        m_position += length;
        return length;
    }
    qint64 writeData(const char* /*data*/, qint64 /*maxSize*/) override { return -1; }

private:
    QByteArray m_body;
    qint64 m_position = 0;
};

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
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
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
    auto* bodyOnce = new BodyReadOnce(body, m_manager.get());
    // Not its post(), which would add a content type.
    QNetworkReply* reply = m_manager->sendCustomRequest(requestFor(address, body.size()), "POST", bodyOnce);
    bodyOnce->setParent(reply);
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
